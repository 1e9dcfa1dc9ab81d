#pragma once

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QRadioButton>
#include <array>

#include "forms/plan_choice.h"

namespace vendrel {

/// Paper and canvas of a printed plan, and what they make of it.
class PlanPanel : public QWidget {
    Q_OBJECT

  public:
    PlanPanel();

    void Mirror(const PlanChoice& shown);
    /// What the Tab key goes through, in order.
    [[nodiscard]] std::array<QWidget*, 4> Controls() const;

  signals:
    void PaperChosen(Paper paper);
    /// In centimeters of width; 0 for as many pages as legible symbols need.
    void CanvasChosen(double centimeters);

  private:
    [[nodiscard]] QLayout* MakeChoices();
    [[nodiscard]] QWidget* MakeFigures();
    void Connect();
    void TellCanvas();
    void MirrorFigures(const PlanFigures& figures);

    QComboBox* paper_;
    QRadioButton* legible_;
    QRadioButton* chosenSize_;
    QDoubleSpinBox* width_;
    QLabel* pages_;
    QLabel* canvas_;
    QLabel* smallest_;
    QLabel* warning_;
};

}  // namespace vendrel
