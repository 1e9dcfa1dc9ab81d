#include "desktop/touch_up_paints.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "desktop/add_paint_dialog.h"
#include "desktop/text.h"

namespace vendrel {

TouchUpPaints::TouchUpPaints(EditorWork work, QWidget* parent)
    : QWidget(parent),
      work_(std::move(work)),
      list_(new PaintRows),
      order_(Named<QComboBox>("PaintOrder", tr("Order of the paints"))),
      alone_(EditorButton("Alone", tr("Alone"), tr("Show the chosen paint alone (A)"), work_,
                          &TouchUpForm::Alone_Click)),
      chosen_(new ValueLabel("ChosenPaint", tr("The chosen paint"))),
      add_(EditorButton<QPushButton>("AddPaint", tr("Add…"),
                                     tr("Add a paint of the catalogue, up to 50"))),
      remove_(EditorButton<QPushButton>(
          "RemovePaint", tr("Remove"),
          tr("Leave the chosen paint out; its stipples take the one that looks most like it"),
          work_, &TouchUpForm::RemovePaint_Click)),
      tidy_(EditorButton<QPushButton>(
          "TidyPaints", tr("T&idy"),
          tr("Tidy paints: leave out those that no stipple uses; others get new symbols"), work_,
          &TouchUpForm::TidyPaints_Click)) {
    list_->setObjectName(QStringLiteral("Palette"));
    list_->setAccessibleName(tr("Paints"));
    list_->setAccessibleDescription(tr(
        "In the order of symbols a paint can be dragged, or moved with Alt and the arrow keys."));
    order_->addItems({tr("By symbol"), tr("By hue"), tr("By lightness"), tr("By use")});
    order_->setFocusPolicy(Qt::TabFocus);
    alone_->setCheckable(true);
    auto* above = new QHBoxLayout;
    above->addWidget(order_);
    above->addWidget(alone_);
    above->addWidget(chosen_, 1);
    chosen_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* below = new QHBoxLayout;
    below->addWidget(add_);
    below->addWidget(remove_);
    below->addWidget(tidy_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addLayout(above);
    column->addWidget(list_, 1);
    column->addLayout(below);
    Connect();
}

void TouchUpPaints::Connect() {
    connect(list_, &PaintRows::Chosen, this, [this](int paint) {
        work_([paint](TouchUpForm& form) { form.PaintList_Click(paint); });
    });
    connect(list_, &PaintRows::Dragged, this, [this](int paint, int to) {
        work_([paint, to](TouchUpForm& form) { form.MovePaint_Click(paint, to); });
    });
    connect(order_, &QComboBox::activated, this, [this](int order) {
        work_(
            [order](TouchUpForm& form) { form.PaintOrder_Click(static_cast<PaintOrder>(order)); });
    });
    connect(add_, &QPushButton::clicked, this, &TouchUpPaints::AskForPaint);
}

void TouchUpPaints::AskForPaint() {
    std::optional<PaintColor> paint;
    work_([&](TouchUpForm& form) {
        AddPaintDialog dialog([&form](const std::string& words) { return form.OfferPaints(words); },
                              window());
        if (dialog.exec() == QDialog::Accepted) {
            paint = dialog.Chosen();
        }
        if (paint) {
            form.AddPaint_Click(*paint);
        }
    });
}

void TouchUpPaints::Mirror(const TouchUpControls& shown) {
    list_->Follow(shown);
    chosen_->Show(Text(shown.ChosenPaint));
    add_->setEnabled(shown.AddEnabled);
    remove_->setEnabled(shown.RemoveEnabled);
    tidy_->setEnabled(shown.TidyEnabled);
    alone_->setChecked(shown.Alone);
    order_->setCurrentIndex(static_cast<int>(shown.Order));
}

}  // namespace vendrel
