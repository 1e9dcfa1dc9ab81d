#include "desktop/zoom_view.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <cmath>

#include "export/qt_image.h"

namespace vendrel {
namespace {

constexpr std::array kSteps = {10.0,  15.0,  20.0,  25.0,  33.0,  50.0,  67.0,  80.0, 100.0,
                               125.0, 150.0, 200.0, 300.0, 400.0, 500.0, 600.0, 800.0};

double StepAbove(double percent) {
    return *std::upper_bound(kSteps.begin(), kSteps.end() - 1, percent + 0.5);
}

double StepBelow(double percent) {
    return *(std::lower_bound(kSteps.begin() + 1, kSteps.end(), percent - 0.5) - 1);
}

}  // namespace

ZoomView::ZoomView(const Surface& surface, QWidget* parent)
    : QAbstractScrollArea(parent), surface_(surface) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(160, 120);
}

int ZoomView::Scale(qreal devicePixelRatio) {
    return std::max(1, static_cast<int>(devicePixelRatio));
}

// Logical pixels per photo pixel.
double ZoomView::Edge() const {
    const qreal ratio = devicePixelRatioF();
    return percent_ / 100 * Scale(ratio) / ratio;
}

QSizeF ZoomView::PictureSize() const {
    return QSizeF(size_) * Edge();
}

bool ZoomView::HasMore() const {
    return horizontalScrollBar()->maximum() > 0 || verticalScrollBar()->maximum() > 0;
}

QRectF ZoomView::PictureRect() const {
    const QSizeF picture = PictureSize();
    const QSize room = viewport()->size();
    const auto start = [](double whole, int seen, const QScrollBar* bar) {
        return whole <= seen ? std::floor((seen - whole) / 2) : -bar->value();
    };
    return {QPointF(start(picture.width(), room.width(), horizontalScrollBar()),
                    start(picture.height(), room.height(), verticalScrollBar())),
            picture};
}

void ZoomView::Refresh() {
    stale_ = true;
    if (const QSize size(surface_.Width(), surface_.Height()); size != size_) {
        size_ = size;
        Place();
    }
    viewport()->update();
}

void ZoomView::Fit() {
    fits_ = true;
    Place();
}

void ZoomView::ZoomTo(double percent) {
    ZoomTo(percent, QRectF(viewport()->rect()).center());
}

void ZoomView::ZoomIn() {
    ZoomTo(StepAbove(percent_));
}

void ZoomView::ZoomOut() {
    ZoomTo(StepBelow(percent_));
}

void ZoomView::ZoomTo(double percent, QPointF around) {
    const QPointF spot = (around - PictureRect().topLeft()) / Edge();
    fits_ = false;
    percent_ = std::clamp<double>(percent, kSmallest, kLargest);
    Place();
    horizontalScrollBar()->setValue(qRound(spot.x() * Edge() - around.x()));
    verticalScrollBar()->setValue(qRound(spot.y() * Edge() - around.y()));
}

// Sets the zoom that fits and the scroll bars after the window's or the picture's size or the zoom
// changed.
void ZoomView::Place() {
    if (fits_ && !size_.isEmpty()) {
        percent_ = 100;
        const QSizeF whole = PictureSize();
        const QSize room = maximumViewportSize();
        percent_ *= std::min(room.width() / whole.width(), room.height() / whole.height());
        percent_ = std::clamp<double>(percent_, kSmallest, kLargest);
    }
    const QSize picture(static_cast<int>(std::ceil(PictureSize().width())),
                        static_cast<int>(std::ceil(PictureSize().height())));
    const auto setUp = [this](QScrollBar* bar, int whole, int room) {
        // Rounded up, a picture that fits may be a part of a pixel too large.
        bar->setRange(0, std::max(0, whole - room - (fits_ ? 1 : 0)));
        bar->setPageStep(room);
        bar->setSingleStep(20);
    };
    // Of a picture that fits, bars from before may not keep one another.
    const QSize seen = fits_ ? maximumViewportSize() : viewport()->size();
    setUp(horizontalScrollBar(), picture.width(), seen.width());
    setUp(verticalScrollBar(), picture.height(), seen.height());
    scaled_ = {};
    ShowPointer();
    viewport()->update();
    emit Zoomed();
}

void ZoomView::resizeEvent(QResizeEvent* /*event*/) {
    Place();
}

void ZoomView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    viewport()->update();
}

void ZoomView::TakeImage() {
    if (stale_) {
        image_ = ToImage(surface_);
        scaled_ = {};
        stale_ = false;
    }
}

void ZoomView::paintEvent(QPaintEvent* event) {
    TakeImage();
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().color(QPalette::Mid));
    if (image_.isNull()) {
        return;
    }
    if (percent_ < 100) {
        PaintSmaller(painter);
    } else {
        PaintCrisp(painter, event->rect());
    }
    // Who goes by the mouse looks at the picture alone.
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
    }
}

void ZoomView::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void ZoomView::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

void ZoomView::PaintSmaller(QPainter& painter) {
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = (PictureSize() * ratio).toSize().expandedTo({1, 1});
    if (scaled_.size() != pixels) {
        scaled_ = image_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        scaled_.setDevicePixelRatio(ratio);
    }
    painter.drawImage(PictureRect().topLeft(), scaled_);
}

// Whole photo pixels that show: at 800 % the rest would cost most of the time.
void ZoomView::PaintCrisp(QPainter& painter, const QRect& exposed) const {
    const QRectF picture = PictureRect();
    const double edge = Edge();
    const QRectF seen = QRectF(exposed).translated(-picture.topLeft());
    const QRect from = QRectF(seen.topLeft() / edge, seen.size() / edge)
                           .toAlignedRect()
                           .adjusted(-1, -1, 1, 1)
                           .intersected(image_.rect());
    painter.drawImage(
        QRectF(picture.topLeft() + QPointF(from.topLeft()) * edge, QSizeF(from.size()) * edge),
        image_, from);
}

void ZoomView::ShowPointer() {
    if (dragging_) {
        viewport()->setCursor(Qt::ClosedHandCursor);
    } else if (HasMore()) {
        viewport()->setCursor(Qt::OpenHandCursor);
    } else {
        viewport()->unsetCursor();
    }
}

void ZoomView::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton;
    dragFrom_ = event->position().toPoint();
}

void ZoomView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint now = event->position().toPoint();
    if (!pressed_ ||
        (!dragging_ && (now - dragFrom_).manhattanLength() < QApplication::startDragDistance())) {
        return;
    }
    dragging_ = true;
    ShowPointer();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - (now - dragFrom_).x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - (now - dragFrom_).y());
    dragFrom_ = now;
}

void ZoomView::mouseReleaseEvent(QMouseEvent* /*event*/) {
    const bool clicked = pressed_ && !dragging_;
    pressed_ = false;
    dragging_ = false;
    ShowPointer();
    if (clicked) {
        emit Clicked();
    }
}

void ZoomView::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    wheel_ += event->angleDelta().y();
    for (; wheel_ >= QWheelEvent::DefaultDeltasPerStep;
         wheel_ -= QWheelEvent::DefaultDeltasPerStep) {
        ZoomTo(StepAbove(percent_), event->position());
    }
    for (; wheel_ <= -QWheelEvent::DefaultDeltasPerStep;
         wheel_ += QWheelEvent::DefaultDeltasPerStep) {
        ZoomTo(StepBelow(percent_), event->position());
    }
    event->accept();
}

}  // namespace vendrel
