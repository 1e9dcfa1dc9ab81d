#pragma once

#include <QPushButton>

#include "desktop/fit_panel.h"
#include "desktop/form_dialog.h"
#include "forms/fit_photo.h"

namespace vendrel {

/// The window that asks how a dropped or pasted photo comes onto the sheet.
class FitPhotoDialog : public FormDialog {
    Q_OBJECT

  public:
    FitPhotoDialog(const ViewContext& context, QWidget* parent);

    void Prepare() override { Mirror(); }
    void Load() override { panel_->FocusWay(); }
    void Mirror() override { panel_->Mirror(form_.Fit().Controls()); }

  protected:
    void Dismiss() override { form_.CancelButton_Click(); }

  private:
    FitPhoto& form_;
    FitPanel* panel_;
};

}  // namespace vendrel
