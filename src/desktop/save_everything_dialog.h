#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

#include "desktop/form_dialog.h"

namespace vendrel {

/// What is saved beside sheet, pictures and chart.
class SaveEverythingDialog : public FormDialog {
    Q_OBJECT

  public:
    SaveEverythingDialog(const ViewContext& context, QWidget* parent);

    void Load() override;
    void Mirror() override;

  protected:
    void Dismiss() override { form_.CancelButton_Click(); }

  private:
    SaveEverythingForm& form_;
    QLabel* always_;
    QCheckBox* grid_;
    QCheckBox* pdf_;
    QComboBox* paper_;
    QCheckBox* svg_;
    QCheckBox* page_;
    QLabel* folders_;
};

}  // namespace vendrel
