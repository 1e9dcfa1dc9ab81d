#include "desktop/form_dialog.h"

namespace vendrel {

FormDialog::FormDialog(const ViewContext& context, QWidget* parent)
    : QDialog(parent), context_(context) {
    setModal(true);
}

void FormDialog::reject() {
    Run([this] { Dismiss(); });
}

}  // namespace vendrel
