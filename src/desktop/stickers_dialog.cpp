#include "desktop/stickers_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <algorithm>

#include "desktop/named.h"
#include "desktop/text.h"

namespace vendrel {

StickersDialog::StickersDialog(QWidget* parent)
    : QDialog(parent),
      sheet_(Named<QComboBox>("StickerSheet", tr("Sheet of labels"))),
      width_(Named<QDoubleSpinBox>("StickerWidth", tr("Width of a label in millimeters"))),
      height_(Named<QDoubleSpinBox>("StickerHeight", tr("Height of a label in millimeters"))),
      used_(Named<QSpinBox>("StickersUsed", tr("Labels that are gone from the first sheet"))) {
    setWindowTitle(tr("Pot Labels as PDF"));
    for (const StickerSheet& sheet : StickerSheets()) {
        sheet_->addItem(Text(sheet.Name));
    }
    sheet_->addItem(tr("A grid on A4 to cut out"));
    for (QDoubleSpinBox* side : {width_, height_}) {
        side->setRange(8, 200);
        side->setSuffix(tr(" mm"));
    }
    width_->setValue(40);
    height_->setValue(20);
    auto* size = new QHBoxLayout;
    size->addWidget(width_);
    size->addWidget(height_);
    auto* rows = new QFormLayout(this);
    rows->addRow(tr("&Sheet"), sheet_);
    rows->addRow(LabelFor(*width_, tr("&Label")), size);
    rows->addRow(tr("Labels &gone already"), used_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("&Save PDF…"));
    rows->addRow(buttons);
    connect(sheet_, &QComboBox::activated, this, [this] { Mirror(); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    Mirror();
}

void StickersDialog::Mirror() {
    const bool grid = sheet_->currentIndex() == static_cast<int>(StickerSheets().size());
    width_->setEnabled(grid);
    height_->setEnabled(grid);
    used_->setEnabled(!grid);
    used_->setMaximum(grid ? 0 : Sheet().Count() - 1);
}

StickerSheet StickersDialog::Sheet() const {
    constexpr double kMargin = 7;  // what printers cannot reach
    const auto index = static_cast<std::size_t>(sheet_->currentIndex());
    return index < StickerSheets().size()
               ? StickerSheets()[index]
               : StickerGrid({210, 297}, {width_->value(), height_->value()}, kMargin);
}

int StickersDialog::Used() const {
    return used_->value();
}

}  // namespace vendrel
