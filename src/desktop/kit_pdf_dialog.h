#pragma once

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QRadioButton>

#include "desktop/form_dialog.h"
#include "forms/kit_pdf.h"

namespace vendrel {

/// Paper and canvas size of the printed kit.
class KitPdfDialog : public FormDialog {
    Q_OBJECT

  public:
    KitPdfDialog(const ViewContext& context, QWidget* parent);

    void Load() override {}
    void Mirror() override;

  protected:
    void Dismiss() override { form_.CancelButton_Click(); }

  private:
    void CanvasChanged();

    KitPdfForm form_;
    QComboBox* paper_;
    QRadioButton* legible_;
    QRadioButton* chosenSize_;
    QDoubleSpinBox* width_;
};

}  // namespace vendrel
