#pragma once

#include <QLabel>

namespace vendrel {

/// A value under the name the form knows it by. Screen readers say what it is and what it reads:
/// "Loners: 7 loners left".
class ValueLabel : public QLabel {
    Q_OBJECT

  public:
    ValueLabel(const char* name, const QString& spoken);

    void Show(const QString& value);
    /// A sentence too long for the window goes on in further lines rather than being cut off.
    void WrapWhole();

  private:
    QString spoken_;
};

}  // namespace vendrel
