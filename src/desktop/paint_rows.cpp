#include "desktop/paint_rows.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QSignalBlocker>

#include "desktop/paint_items.h"
#include "desktop/text.h"
#include "support/list.h"

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
            emit Chosen(PaintOf(row));
        }
    });
}

int PaintRows::PaintOf(QTreeWidgetItem* row) const {
    const int at = indexOfTopLevelItem(row);
    return Holds(rows_, at) ? At(rows_, at) : 0;
}

void PaintRows::Follow(const TouchUpControls& shown) {
    const QSignalBlocker quiet(this);
    const int count = shown.Palette.Count();
    if (count != shown_.Count()) {
        clear();
        shown_ = OneBased<TouchUpPaint>(count);
        for (int i = 1; i <= count; ++i) {
            shown_[i].Count = -1;
            auto* row = new QTreeWidgetItem;
            row->setFlags(row->flags() & ~Qt::ItemIsDropEnabled);
            addTopLevelItem(row);
        }
    }
    rows_ = shown.Rows;
    setDragDropMode(shown.Order == PaintOrder::Symbol ? InternalMove : NoDragDrop);
    for (int i = 1; i <= count; ++i) {
        const int paint = At(rows_, i - 1);
        if (shown.Palette[paint] != shown_[i]) {
            shown_[i] = shown.Palette[paint];
            ShowRow(*topLevelItem(i - 1), shown_[i]);
        }
        if (paint == shown.Brush.Paint && topLevelItem(i - 1) != currentItem()) {
            setCurrentItem(topLevelItem(i - 1));
        }
    }
}

// The rows follow the palette, which follows the step.
void PaintRows::dropEvent(QDropEvent* event) {
    const int from = indexOfTopLevelItem(currentItem());
    const QModelIndex under = indexAt(event->position().toPoint());
    int to = under.isValid() ? under.row() : topLevelItemCount() - 1;
    if (under.isValid() && dropIndicatorPosition() == BelowItem && to < from) {
        ++to;
    } else if (under.isValid() && dropIndicatorPosition() == AboveItem && to > from) {
        --to;
    }
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
    setState(NoState);  // or the line where it was dropped stays
    viewport()->update();
    if (Holds(rows_, from) && Holds(rows_, to)) {
        emit Dragged(At(rows_, from), At(rows_, to));
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
