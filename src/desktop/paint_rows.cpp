#include "desktop/paint_rows.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include "desktop/paint_items.h"
#include "desktop/text.h"

namespace vendrel {
namespace {

enum Column { kSymbol, kName, kCount };

}  // namespace

PaintRows::PaintRows(QWidget* parent) : QTreeWidget(parent) {
    setColumnCount(3);
    setHeaderLabels({tr("Symbol"), tr("Paint"), tr("Stipples")});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTextElideMode(Qt::ElideRight);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(kSymbol, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(kName, QHeaderView::Stretch);
    header()->setSectionResizeMode(kCount, QHeaderView::ResizeToContents);
    headerItem()->setTextAlignment(kCount, Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* row) {
        if (row != nullptr) {
            emit Chosen(indexOfTopLevelItem(row) + 1);
        }
    });
}

void PaintRows::Follow(const OneBased<TouchUpPaint>& palette, int chosen) {
    const QSignalBlocker quiet(this);
    if (palette.Count() != shown_.Count()) {
        clear();
        shown_ = OneBased<TouchUpPaint>(palette.Count());
        for (int i = 1; i <= palette.Count(); ++i) {
            shown_[i].Count = -1;
            addTopLevelItem(new QTreeWidgetItem);
        }
    }
    for (int i = 1; i <= palette.Count(); ++i) {
        if (palette[i] != shown_[i]) {
            shown_[i] = palette[i];
            ShowRow(*topLevelItem(i - 1), palette[i]);
        }
    }
    if (QTreeWidgetItem* row = topLevelItem(chosen - 1); row != currentItem()) {
        setCurrentItem(row);
    }
}

void PaintRows::ShowRow(QTreeWidgetItem& row, const TouchUpPaint& paint) {
    const QPalette::ColorGroup group = paint.Count > 0 ? QPalette::Active : QPalette::Disabled;
    for (const Column column : {kSymbol, kName, kCount}) {
        row.setForeground(column, palette().brush(group, QPalette::Text));
    }
    row.setIcon(kSymbol, SwatchIcon(paint.Swatch));
    row.setText(kSymbol, Text(paint.Symbol));
    row.setText(kName, Text(paint.Name));
    row.setToolTip(kName, Text(paint.Label));
    row.setText(kCount, QString::number(paint.Count));
    row.setTextAlignment(kCount, Qt::AlignRight | Qt::AlignVCenter);
}

}  // namespace vendrel
