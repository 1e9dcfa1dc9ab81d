#include "desktop/paint_rows.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "desktop/paint_items.h"
#include "desktop/text.h"
#include "support/list.h"

namespace vendrel {
namespace {

enum RowColumn { kSymbol, kName, kCount };

constexpr int kFigureMargin = 12;  // pixels

}  // namespace

PaintRows::PaintRows(QWidget* parent) : QTreeWidget(parent) {
    setColumnCount(3);
    setHeaderLabels({tr("Symbol"), tr("Paint"), tr("Stipples")});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setTextElideMode(Qt::ElideRight);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::Fixed);
    header()->setSectionResizeMode(kName, QHeaderView::Stretch);
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
            row->setTextAlignment(kCount, Qt::AlignRight | Qt::AlignVCenter);
            addTopLevelItem(row);
        }
    }
    rows_ = shown.Rows;
    setDragDropMode(shown.Order == PaintOrder::Symbol ? InternalMove : NoDragDrop);
    bool looks = false;
    for (int i = 1; i <= count; ++i) {
        const int paint = At(rows_, i - 1);
        looks = ShowRow(i, shown.Palette[paint]) || looks;
        if (paint == shown.Brush.Paint && topLevelItem(i - 1) != currentItem()) {
            setCurrentItem(topLevelItem(i - 1));
        }
    }
    if (looks) {
        FitColumns();
    }
}

// Not by the header itself: it would measure all rows with each of a stroke's figures.
void PaintRows::FitColumns() {
    resizeColumnToContents(kSymbol);
    int stipples = 0;
    for (int i = 1; i <= shown_.Count(); ++i) {
        stipples += shown_[i].Count;
    }
    const int figure = fontMetrics().horizontalAdvance(QString::number(stipples)) + kFigureMargin;
    header()->resizeSection(kCount, std::max(figure, header()->sectionSizeHint(kCount)));
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

// True where more than a figure changed.
bool PaintRows::ShowRow(int at, const TouchUpPaint& paint) {
    const TouchUpPaint before = std::exchange(shown_[at], paint);
    QTreeWidgetItem& row = *topLevelItem(at - 1);
    if (before.Count != paint.Count) {
        row.setText(kCount, QString::number(paint.Count));
    }
    const bool used = paint.Count > 0;
    if (before.Count < 0 || (before.Count > 0) != used) {
        for (const RowColumn column : {kSymbol, kName, kCount}) {
            row.setForeground(column, palette().brush(used ? QPalette::Active : QPalette::Disabled,
                                                      QPalette::Text));
        }
    }
    if (before.Count >= 0 && before.Swatch == paint.Swatch && before.Symbol == paint.Symbol &&
        before.Label == paint.Label) {
        return false;
    }
    row.setIcon(kSymbol, SwatchIcon(paint.Swatch));
    row.setText(kSymbol, Text(paint.Symbol));
    row.setText(kName, Text(paint.Name));
    row.setToolTip(kName, Text(paint.Label));
    return true;
}

}  // namespace vendrel
