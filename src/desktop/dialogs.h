#pragma once

#include <memory>

#include "desktop/form_dialog.h"
#include "shell/ui.h"

namespace vendrel {

/// The view of a form; nullptr for forms that have none.
[[nodiscard]] std::unique_ptr<FormDialog> MakeDialog(FormId form, const ViewContext& context,
                                                     QWidget* parent);

}  // namespace vendrel
