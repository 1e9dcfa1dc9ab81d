#pragma once

#include <QLineEdit>

#include "desktop/form_dialog.h"

namespace vendrel {

/// Asks for the title that a kit is saved under.
class SaveKitDialog : public FormDialog {
    Q_OBJECT

  public:
    SaveKitDialog(const ViewContext& context, QWidget* parent);

    void Prepare() override;
    void Mirror() override {}

  protected:
    void Dismiss() override { Context().Form.Kits().TitleCancel_Click(); }

  private:
    QLineEdit* title_;
};

}  // namespace vendrel
