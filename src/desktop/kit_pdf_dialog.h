#pragma once

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>

#include "desktop/form_dialog.h"
#include "forms/kit_pdf.h"

namespace vendrel {

/// Paper and canvas size of the printed kit, and what they make of it.
class KitPdfDialog : public FormDialog {
    Q_OBJECT

  public:
    KitPdfDialog(const ViewContext& context, QWidget* parent);

    void Load() override;
    void Mirror() override;

  protected:
    void Dismiss() override { form_.CancelButton_Click(); }

  private:
    [[nodiscard]] QLayout* MakeChoices();
    [[nodiscard]] QWidget* MakeFigures();
    [[nodiscard]] QLayout* MakeButtons();
    void Connect();
    void CanvasChanged();
    void MirrorFigures(const PlanFigures& figures);

    KitPdfForm form_;
    QComboBox* paper_;
    QComboBox* symbols_;
    QRadioButton* legible_;
    QRadioButton* chosenSize_;
    QDoubleSpinBox* width_;
    QComboBox* lines_;
    QSlider* gray_;
    QLabel* pages_;
    QLabel* canvas_;
    QLabel* smallest_;
    QLabel* warning_;
};

}  // namespace vendrel
