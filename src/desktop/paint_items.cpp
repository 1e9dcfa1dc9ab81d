#include "desktop/paint_items.h"

#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>

#include "support/list.h"

namespace vendrel {
namespace {

constexpr int kSwatch = 20;  // pixels
constexpr int kSwatchRole = Qt::UserRole;
constexpr int kSecondRole = Qt::UserRole + 1;

PaintItem ItemOf(const QListWidgetItem& line) {
    return {line.data(kSwatchRole).toInt(), line.data(kSecondRole).toInt(), line.text(),
            line.data(Qt::AccessibleTextRole).toString()};
}

void Show(QListWidgetItem& line, const PaintItem& item) {
    line.setIcon(SwatchIcon(item.Swatch, item.Second));
    line.setText(item.Label);
    line.setData(kSwatchRole, item.Swatch);
    line.setData(kSecondRole, item.Second);
    line.setData(Qt::AccessibleTextRole, item.Spoken.isEmpty() ? QVariant() : item.Spoken);
    line.setToolTip(item.Label);
}

// Line by line, so that a list whose figures change keeps its place.
void Fill(QListWidget& list, const std::vector<PaintItem>& items) {
    const int count = static_cast<int>(items.size());
    while (list.count() > count) {
        delete list.takeItem(list.count() - 1);
    }
    for (int row = 0; row < count; ++row) {
        if (row == list.count()) {
            list.addItem(new QListWidgetItem);
        }
        if (ItemOf(*list.item(row)) != At(items, row) || list.item(row)->icon().isNull()) {
            Show(*list.item(row), At(items, row));
        }
    }
}

}  // namespace

QIcon SwatchIcon(Color first, Color second) {
    const int count = second == kNoColor ? 1 : 2;
    QPixmap picture(kSwatch * count, kSwatch);
    QPainter painter(&picture);
    const auto paint = [&painter](int left, Color color) {
        painter.fillRect(left, 0, kSwatch, kSwatch,
                         QColor(RedOf(color), GreenOf(color), BlueOf(color)));
    };
    paint(0, first);
    if (count == 2) {
        paint(kSwatch, second);
    }
    painter.setPen(QColor(128, 128, 128));
    painter.drawRect(0, 0, kSwatch * count - 1, kSwatch - 1);
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected);  // a chosen line must not tint the paint
    return icon;
}

void MirrorPaints(QListWidget& list, const std::vector<PaintItem>& items, int index) {
    const QSignalBlocker quiet(list);
    const bool pairs = !items.empty() && items.front().Second != kNoColor;
    list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // long names are elided
    list.setTextElideMode(Qt::ElideRight);
    list.setIconSize(QSize(kSwatch * (pairs ? 2 : 1), kSwatch));
    Fill(list, items);
    if (index < 0) {
        list.clearSelection();
    } else {
        list.setCurrentRow(index);
    }
}

}  // namespace vendrel
