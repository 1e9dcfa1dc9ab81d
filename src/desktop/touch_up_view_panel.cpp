#include "desktop/touch_up_view_panel.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/named.h"

namespace vendrel {

TouchUpViewPanel::TouchUpViewPanel(TouchUpCanvas& canvas, const EditorWork& work, QWidget* parent)
    : QWidget(parent),
      canvas_(canvas),
      gridLines_(Named<QCheckBox>("GridLines", tr("Grid lines"))),
      symbols_(Named<QCheckBox>("Symbols", tr("Symbols"))),
      edits_(Named<QCheckBox>("ShowEdits", tr("Show edits"))),
      photo_(Named<QSlider>("PhotoStrength", tr("Strength of the photo"))),
      beside_(Named<QComboBox>("Beside", tr("Beside the stipples"))) {
    gridLines_->setText(tr("&Grid lines"));
    symbols_->setText(tr("S&ymbols"));
    symbols_->setToolTip(tr("Shown as soon as the stipples are large enough for them"));
    edits_->setText(tr("&Edits"));
    edits_->setToolTip(tr("Tint the stipples that were edited (E)"));
    edits_->setFocusPolicy(Qt::TabFocus);
    OnClick(edits_, work, &TouchUpForm::ShowEdits_Click);
    photo_->setOrientation(Qt::Horizontal);
    photo_->setRange(0, 100);
    photo_->setToolTip(tr("How far the photo shows through; hold P to see it alone"));
    beside_->addItems({tr("nothing"), tr("the photo"), tr("the finished painting")});
    beside_->setFocusPolicy(Qt::TabFocus);
    auto* checks = new QHBoxLayout;
    checks->addWidget(gridLines_);
    checks->addWidget(symbols_);
    checks->addWidget(edits_);
    checks->addStretch(1);
    auto* rows = new QFormLayout;
    rows->addRow(LabelFor(*photo_, tr("Ph&oto")), photo_);
    rows->addRow(LabelFor(*beside_, tr("&Beside")), beside_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->setSpacing(4);
    column->addLayout(checks);
    column->addLayout(rows);
    column->addStretch(1);
    connect(gridLines_, &QCheckBox::toggled, this, &TouchUpViewPanel::ChooseLook);
    connect(symbols_, &QCheckBox::toggled, this, &TouchUpViewPanel::ChooseLook);
    connect(photo_, &QSlider::valueChanged, this, &TouchUpViewPanel::ChooseLook);
    connect(beside_, &QComboBox::currentIndexChanged, this, &TouchUpViewPanel::BesideChosen);
}

void TouchUpViewPanel::Mirror(const TouchUpControls& shown) {
    edits_->setChecked(shown.ShowEdits);
}

Beside TouchUpViewPanel::WhatBeside() const {
    return static_cast<Beside>(beside_->currentIndex());
}

void TouchUpViewPanel::ChooseLook() {
    canvas_.SetLook({.GridLines = gridLines_->isChecked(),
                     .Symbols = symbols_->isChecked(),
                     .PhotoPercent = photo_->value(),
                     .PhotoOnly = canvas_.Look().PhotoOnly});
}

}  // namespace vendrel
