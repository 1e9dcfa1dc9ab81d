#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>

#include "desktop/form_dialog.h"
#include "desktop/plan_panel.h"
#include "desktop/value_label.h"

namespace vendrel {

/// What is saved beside sheet, pictures and chart.
class SaveEverythingDialog : public FormDialog {
    Q_OBJECT

  public:
    SaveEverythingDialog(const ViewContext& context, QWidget* parent);

    void Prepare() override;
    void Mirror() override;

  protected:
    void Dismiss() override { form_.CancelButton_Click(); }

  private:
    void Arrange();
    void Connect();

    SaveEverythingForm& form_;
    QLineEdit* name_;
    ValueLabel* always_;
    QCheckBox* grid_;
    QCheckBox* pdf_;
    QCheckBox* svg_;
    QCheckBox* page_;
    QCheckBox* list_;
    PlanPanel* plan_;
    ValueLabel* folders_;
};

}  // namespace vendrel
