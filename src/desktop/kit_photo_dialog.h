#pragma once

#include "desktop/form_dialog.h"
#include "desktop/value_label.h"

namespace vendrel {

/// Asks for the photo of a kit that moved or changed.
class KitPhotoDialog : public FormDialog {
    Q_OBJECT

  public:
    KitPhotoDialog(const ViewContext& context, QWidget* parent);

    void Prepare() override { Mirror(); }
    void Mirror() override;

  protected:
    void Dismiss() override { Context().Form.Kits().PhotoCancel_Click(); }

  private:
    void Choose();

    ValueLabel* problem_;
};

}  // namespace vendrel
