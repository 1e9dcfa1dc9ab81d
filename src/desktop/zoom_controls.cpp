#include "desktop/zoom_controls.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

#include "desktop/named.h"

namespace vendrel {
namespace {

// Buttons show an action's icon text, the menu its text.
QToolButton* ButtonOf(QAction* action, const QString& sign) {
    auto* button = Named<QToolButton>("", action->text().remove(QLatin1Char('&')));
    action->setIconText(sign);
    action->setToolTip(button->accessibleName() + QStringLiteral(" (") +
                       action->shortcut().toString(QKeySequence::NativeText) + QLatin1Char(')'));
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

}  // namespace

ZoomControls::ZoomControls(QMenu& menu)
    : zoomIn_(MakeAction(menu, "ZoomIn", tr("Zoom &In"),
                         {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal})),
      zoomOut_(MakeAction(menu, "ZoomOut", tr("Zoom &Out"), {Qt::CTRL | Qt::Key_Minus})),
      fit_(MakeAction(menu, "ZoomFit", tr("&Fit to Window"), {Qt::CTRL | Qt::Key_0})),
      pixels_(MakeAction(menu, "ZoomPixels", tr("&Pixel for Pixel"), {Qt::CTRL | Qt::Key_1})),
      percent_(Named<QSpinBox>("Zoom", tr("Zoom"))) {
    fit_->setCheckable(true);
    percent_->setRange(ZoomView::kSmallest, ZoomView::kLargest);
    percent_->setSuffix(tr(" %"));
    percent_->setSingleStep(10);
    percent_->setKeyboardTracking(false);
    percent_->setAlignment(Qt::AlignCenter);
    percent_->setFocusPolicy(Qt::StrongFocus);
    percent_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    percent_->setFrame(false);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addWidget(ButtonOf(zoomOut_, QStringLiteral("\u2212")));
    row->addWidget(percent_);
    row->addWidget(ButtonOf(zoomIn_, QStringLiteral("+")));
    row->addWidget(ButtonOf(fit_, tr("Fit")));
    Connect();
    Mirror();
}

QAction* ZoomControls::MakeAction(QMenu& menu, const char* name, const QString& caption,
                                  const QList<QKeySequence>& keys) {
    QAction* action = menu.addAction(caption);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcuts(keys);
    return action;
}

void ZoomControls::Connect() {
    const auto on = [this](QAction* action, const auto& work) {
        connect(action, &QAction::triggered, this, [this, work] {
            if (view_ != nullptr) {
                work(*view_);
            }
            Mirror();
        });
    };
    on(zoomIn_, [](ZoomView& view) { view.ZoomIn(); });
    on(zoomOut_, [](ZoomView& view) { view.ZoomOut(); });
    on(fit_, [](ZoomView& view) { view.Fit(); });
    on(pixels_, [](ZoomView& view) { view.ZoomTo(100); });
    connect(percent_, &QSpinBox::valueChanged, this, [this](int percent) {
        if (view_ != nullptr) {
            view_->ZoomTo(percent);
        }
    });
}

void ZoomControls::Follow(ZoomView* view) {
    if (view == view_) {
        return;
    }
    if (view_ != nullptr) {
        disconnect(view_, nullptr, this, nullptr);
    }
    view_ = view;
    if (view_ != nullptr) {
        connect(view_, &ZoomView::Zoomed, this, &ZoomControls::Mirror);
    }
    Mirror();
}

void ZoomControls::Mirror() {
    const bool shown = view_ != nullptr;
    const int percent = shown ? qRound(view_->Percent()) : 100;
    const QSignalBlocker quiet(percent_);
    percent_->setValue(percent);
    setEnabled(shown);
    fit_->setChecked(shown && view_->Fits());
    fit_->setEnabled(shown);
    pixels_->setEnabled(shown);
    zoomIn_->setEnabled(shown && percent < ZoomView::kLargest);
    zoomOut_->setEnabled(shown && percent > ZoomView::kSmallest);
}

}  // namespace vendrel
