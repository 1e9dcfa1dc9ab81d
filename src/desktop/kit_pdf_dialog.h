#pragma once

#include "desktop/form_dialog.h"
#include "desktop/plan_panel.h"
#include "forms/kit_pdf.h"

namespace vendrel {

/// Paper and canvas size of the printed kit, and what they make of it.
class KitPdfDialog : public FormDialog {
    Q_OBJECT

  public:
    KitPdfDialog(const ViewContext& context, QWidget* parent);

    void Prepare() override;
    void Mirror() override { plan_->Mirror(form_.Plan()); }

  protected:
    void Dismiss() override { form_.CancelButton_Click(); }

  private:
    KitPdfForm form_;
    PlanPanel* plan_;
};

}  // namespace vendrel
