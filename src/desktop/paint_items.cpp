#include "desktop/paint_items.h"

#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>

namespace vendrel {
namespace {

constexpr int kSwatch = 20;  // pixels
constexpr int kSwatchRole = Qt::UserRole;
constexpr int kSecondRole = Qt::UserRole + 1;

PaintItem ItemAt(const QListWidget& list, int row) {
    const QListWidgetItem& item = *list.item(row);
    return {item.data(kSwatchRole).toInt(), item.data(kSecondRole).toInt(), item.text()};
}

bool Shows(const QListWidget& list, const std::vector<PaintItem>& items) {
    if (list.count() != static_cast<int>(items.size())) {
        return false;
    }
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (ItemAt(list, static_cast<int>(i)) != items[i]) {
            return false;
        }
    }
    return true;
}

void Fill(QListWidget& list, const std::vector<PaintItem>& items) {
    list.clear();
    for (const PaintItem& item : items) {
        auto* line = new QListWidgetItem(SwatchIcon(item.Swatch, item.Second), item.Label, &list);
        line->setData(kSwatchRole, item.Swatch);
        line->setData(kSecondRole, item.Second);
        line->setToolTip(item.Label);
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
    if (!Shows(list, items)) {
        const bool pairs = !items.empty() && items.front().Second != kNoColor;
        list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // long names are elided
        list.setTextElideMode(Qt::ElideRight);
        list.setIconSize(QSize(kSwatch * (pairs ? 2 : 1), kSwatch));
        Fill(list, items);
    }
    if (index < 0) {
        list.clearSelection();
    } else {
        list.setCurrentRow(index);
    }
}

}  // namespace vendrel
