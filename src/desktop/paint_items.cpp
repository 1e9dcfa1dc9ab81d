#include "desktop/paint_items.h"

#include <QItemSelectionModel>
#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>
#include <algorithm>

#include "support/list.h"

namespace vendrel {
namespace {

constexpr int kSwatch = 20;  // pixels
constexpr int kSwatchRole = Qt::UserRole;
constexpr int kSecondRole = Qt::UserRole + 1;
constexpr int kOwnedRole = Qt::UserRole + 2;
constexpr int kTick = 17;  // pixels, with the gap to the swatch
constexpr const char* kTicked = "ticked";

PaintItem ItemOf(const QListWidgetItem& line) {
    return {line.data(kSwatchRole).toInt(), line.data(kSecondRole).toInt(), line.text(),
            line.data(Qt::AccessibleTextRole).toString(), line.data(kOwnedRole).toBool()};
}

void Show(QListWidget& list, int row, const PaintItem& item, bool ticks) {
    QListWidgetItem& line = *list.item(row);
    line.setIcon(ticks ? OwnedIcon(item.Swatch, item.Owned, list.palette().color(QPalette::Text))
                       : SwatchIcon(item.Swatch, item.Second));
    line.setText(item.Label);
    line.setData(kSwatchRole, item.Swatch);
    line.setData(kSecondRole, item.Second);
    line.setData(kOwnedRole, item.Owned);
    line.setData(Qt::AccessibleTextRole, item.Spoken.isEmpty() ? QVariant() : item.Spoken);
    line.setToolTip(item.Owned ? item.Spoken : item.Label);
}

// Line by line, so that a list whose figures change keeps its place. True when it does not change.
bool Fill(QListWidget& list, const std::vector<PaintItem>& items, bool ticks) {
    const bool wasTicked = list.property(kTicked).toBool();
    list.setProperty(kTicked, ticks);
    const int count = static_cast<int>(items.size());
    bool same = list.count() == count;
    while (list.count() > count) {
        delete list.takeItem(list.count() - 1);
    }
    for (int row = 0; row < count; ++row) {
        if (row == list.count()) {
            list.addItem(new QListWidgetItem);
        }
        if (ItemOf(*list.item(row)) != At(items, row) || list.item(row)->icon().isNull() ||
            ticks != wasTicked) {
            Show(list, row, At(items, row), ticks);
            same = false;
        }
    }
    return same;
}

void DrawSwatch(QPainter& painter, int left, Color color) {
    painter.fillRect(left, 0, kSwatch, kSwatch,
                     QColor(RedOf(color), GreenOf(color), BlueOf(color)));
}

QIcon IconOf(const QPixmap& picture) {
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected);  // a chosen line must not tint the paint
    return icon;
}

}  // namespace

QIcon SwatchIcon(Color first, Color second) {
    const int count = second == kNoColor ? 1 : 2;
    QPixmap picture(kSwatch * count, kSwatch);
    QPainter painter(&picture);
    DrawSwatch(painter, 0, first);
    if (count == 2) {
        DrawSwatch(painter, kSwatch, second);
    }
    painter.setPen(QColor(128, 128, 128));
    painter.drawRect(0, 0, kSwatch * count - 1, kSwatch - 1);
    return IconOf(picture);
}

QIcon OwnedIcon(Color paint, bool owned, const QColor& ink) {
    QPixmap picture(kSwatch + kTick, kSwatch);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    DrawSwatch(painter, kTick, paint);
    painter.setPen(QColor(128, 128, 128));
    painter.drawRect(kTick, 0, kSwatch - 1, kSwatch - 1);
    if (owned) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(ink, 2));
        painter.drawPolyline(QPolygonF{QPointF(1.5, 10), QPointF(5, 14), QPointF(11.5, 5)});
    }
    return IconOf(picture);
}

void MirrorPaints(QListWidget& list, const std::vector<PaintItem>& items, int index) {
    const QSignalBlocker quiet(list);
    const bool pairs = !items.empty() && items.front().Second != kNoColor;
    list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // long names are elided
    list.setTextElideMode(Qt::ElideRight);
    const bool ticks = std::ranges::any_of(items, &PaintItem::Owned);
    list.setIconSize(QSize(kSwatch * (pairs ? 2 : 1) + (ticks ? kTick : 0), kSwatch));
    if (Fill(list, items, ticks) && list.selectedItems().size() > 1) {
        return;
    }
    if (index < 0) {
        list.clearSelection();
    } else {
        list.setCurrentRow(index, QItemSelectionModel::ClearAndSelect);
    }
}

}  // namespace vendrel
