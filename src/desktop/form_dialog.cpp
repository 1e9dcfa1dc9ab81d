#include "desktop/form_dialog.h"

#include <QLayout>
#include <QResizeEvent>
#include <QScreen>
#include <algorithm>

#include "desktop/named.h"

namespace vendrel {

FormDialog::FormDialog(const ViewContext& context, QWidget* parent)
    : QDialog(parent), context_(context) {
    setModal(true);
}

void FormDialog::reject() {
    Run([this] { Dismiss(); });
}

// What is not on screen yet does not tell the tabs around it that it has grown.
void FormDialog::SettleSize() {
    for (QWidget* part : findChildren<QWidget*>()) {
        part->ensurePolished();
        part->updateGeometry();
    }
    for (QLayout* part : findChildren<QLayout*>()) {
        part->invalidate();
    }
    layout()->activate();
}

// Grown after it was placed, it may reach beyond the screen.
void FormDialog::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    const QRect room = screen()->availableGeometry();
    const QRect frame = frameGeometry();
    if (isVisible() && !room.contains(frame)) {
        move(std::max(room.left(), std::min(frame.left(), room.right() - frame.width())),
             std::max(room.top(), std::min(frame.top(), room.bottom() - frame.height())));
    }
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
