#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "desktop/value_label.h"
#include "forms/fit_choice.h"

namespace vendrel {

/// How a photo comes onto the sheet: its preview and what is said of it, the ways to choose from
/// where it does not fit by itself, and the way to the crop window. Beside lists there is room for
/// one preview; a window of its own shows what every way makes of the photo.
class FitPanel : public QWidget {
    Q_OBJECT

  public:
    enum class Shows { ChosenWay, EveryWay };

    explicit FitPanel(Shows shows);

    void Mirror(const FitControls& shown);
    /// What the Tab key goes through, in order.
    [[nodiscard]] std::array<QWidget*, 4> Controls() const;
    /// Puts the keyboard on the chosen way.
    void FocusWay();
    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    void WayChosen(PhotoFit way);
    void CropAsked();

  private:
    struct Way {
        PhotoFit Fit = PhotoFit::Keep;
        QRadioButton* Button = nullptr;
        QLabel* Picture = nullptr;  // where every way is shown
        QLabel* Sentence = nullptr;
    };

    [[nodiscard]] Way MakeWay(PhotoFit fit, const char* name, const QString& text);
    void Arrange();
    void ArrangeInOneColumn();
    void ArrangeSideBySide();
    void MirrorWay(const Way& way, const FitControls& shown) const;

    Shows shows_;
    QLabel* preview_;
    ValueLabel* description_;
    QGroupBox* box_;
    std::array<Way, 3> ways_;
    QPushButton* cropButton_;
};

}  // namespace vendrel
