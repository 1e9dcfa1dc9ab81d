#include "desktop/swatch_box.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "desktop/text.h"
#include "output/chart_contents.h"

namespace vendrel {
namespace {

// Squares below this edge would be more gap than colour.
constexpr int kSmallestWithGap = 6;

}  // namespace

SwatchBox::SwatchBox(std::function<const PaintColor*(int)> paintAt, QWidget* parent)
    : QWidget(parent), paintAt_(std::move(paintAt)) {
    setFocusPolicy(Qt::TabFocus);
}

void SwatchBox::SetLayout(const SwatchLayout& layout) {
    layout_ = layout;
    current_ = std::clamp(current_, 0, std::max(Count() - 1, 0));
    Tell();
    update();
}

void SwatchBox::SetTitle(const QString& title) {
    title_ = title;
    Tell();
}

int SwatchBox::Count() const {
    int count = 0;
    while (paintAt_(count) != nullptr) {
        ++count;
    }
    return count;
}

QRect SwatchBox::PlaceOf(int swatch) const {
    return {layout_.Left(swatch), layout_.Top(swatch), layout_.Size, layout_.Size};
}

void SwatchBox::Tell() {
    const PaintColor* paint = layout_.Columns > 0 && hasFocus() ? paintAt_(current_) : nullptr;
    setAccessibleName(paint == nullptr ? title_
                                       : tr("%1, paint %2 of %3")
                                             .arg(Text(PaintLabel(*paint)))
                                             .arg(current_ + 1)
                                             .arg(Count()));
}

void SwatchBox::GoTo(int swatch) {
    current_ = std::clamp(swatch, 0, std::max(Count() - 1, 0));
    Tell();
    update();
    if (const PaintColor* paint = paintAt_(current_)) {
        QToolTip::showText(mapToGlobal(PlaceOf(current_).bottomLeft()), Text(PaintLabel(*paint)),
                           this);
    }
}

void SwatchBox::keyPressEvent(QKeyEvent* event) {
    switch (layout_.Columns > 0 ? event->key() : 0) {
        case Qt::Key_Left:
            return GoTo(current_ - 1);
        case Qt::Key_Right:
            return GoTo(current_ + 1);
        case Qt::Key_Up:
            return GoTo(current_ < layout_.Columns ? current_ : current_ - layout_.Columns);
        case Qt::Key_Down:
            return GoTo(current_ + layout_.Columns < Count() ? current_ + layout_.Columns
                                                             : current_);
        case Qt::Key_Home:
            return GoTo(0);
        case Qt::Key_End:
            return GoTo(Count() - 1);
        default:
            QWidget::keyPressEvent(event);
    }
}

void SwatchBox::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    Tell();
}

void SwatchBox::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    QToolTip::hideText();
    Tell();
}

void SwatchBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    if (layout_.Columns == 0) {
        return;
    }
    const int edge = layout_.Size - (layout_.Size >= kSmallestWithGap ? 1 : 0);
    for (int i = 0; const PaintColor* paint = paintAt_(i); ++i) {
        painter.fillRect(layout_.Left(i), layout_.Top(i), edge, edge,
                         QColor(paint->Red, paint->Green, paint->Blue));
    }
    if (hasFocus() && paintAt_(current_) != nullptr) {
        // Seen on every paint.
        const QRect ring = PlaceOf(current_).adjusted(0, 0, -1, -1);
        painter.setPen(Qt::black);
        painter.drawRect(ring.adjusted(1, 1, -1, -1));
        painter.setPen(Qt::white);
        painter.drawRect(ring);
    }
}

bool SwatchBox::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const int index = layout_.IndexAt(help->pos().x(), help->pos().y());
    if (const PaintColor* paint = paintAt_(index)) {
        QToolTip::showText(help->globalPos(), Text(PaintLabel(*paint)), this, PlaceOf(index));
    } else {
        QToolTip::hideText();
    }
    return true;
}

void SwatchBox::resizeEvent(QResizeEvent* event) {
    emit Resized(event->size().width(), event->size().height());
}

}  // namespace vendrel
