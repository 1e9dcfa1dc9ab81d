#pragma once

#include "desktop/form_dialog.h"

namespace vendrel {

/// Title and version.
class AboutDialog : public FormDialog {
    Q_OBJECT

  public:
    AboutDialog(const ViewContext& context, QWidget* parent);

    void Mirror() override {}
    /// Nothing hangs on it: it closes in mid-work as well.
    void reject() override { hide(); }

  protected:
    void Dismiss() override {}
};

}  // namespace vendrel
