#include "desktop/swatch_box.h"

#include <QHelpEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QToolTip>
#include <utility>

#include "desktop/text.h"
#include "output/chart_contents.h"

namespace vendrel {
namespace {

// Squares below this edge would be more gap than colour.
constexpr int kSmallestWithGap = 6;

}  // namespace

SwatchBox::SwatchBox(std::function<const PaintColor*(int)> paintAt, QWidget* parent)
    : QWidget(parent), paintAt_(std::move(paintAt)) {}

void SwatchBox::SetLayout(const SwatchLayout& layout) {
    layout_ = layout;
    update();
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
}

bool SwatchBox::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const int index = layout_.IndexAt(help->pos().x(), help->pos().y());
    if (const PaintColor* paint = paintAt_(index)) {
        QToolTip::showText(
            help->globalPos(), Text(PaintLabel(*paint)), this,
            QRect(layout_.Left(index), layout_.Top(index), layout_.Size, layout_.Size));
    } else {
        QToolTip::hideText();
    }
    return true;
}

void SwatchBox::resizeEvent(QResizeEvent* event) {
    emit Resized(event->size().width(), event->size().height());
}

}  // namespace vendrel
