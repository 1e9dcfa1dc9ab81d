#include "desktop/form_dialog.h"

#include "desktop/named.h"

namespace vendrel {

FormDialog::FormDialog(const ViewContext& context, QWidget* parent)
    : QDialog(parent), context_(context) {
    setModal(true);
}

void FormDialog::reject() {
    Run([this] { Dismiss(); });
}

QPushButton* FormDialog::MakeButton(const char* name, const QString& text,
                                    const std::function<void()>& clicked) {
    auto* button = Named<QPushButton>(name, QString(text).remove(QLatin1Char('&')));
    button->setText(text);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, clicked] { Run(clicked); });
    return button;
}

}  // namespace vendrel
