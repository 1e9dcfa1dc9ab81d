#pragma once

#include <QObject>

namespace vendrel {

/// Turns the system's wish that the program end (a logout, a closed terminal, kill) into a Qt
/// signal, so that open work can be kept first. A second wish ends the program at once. One object
/// per program.
class EndSignals : public QObject {
    Q_OBJECT

  public:
    EndSignals();
    ~EndSignals() override;

  signals:
    void Asked();
};

}  // namespace vendrel
