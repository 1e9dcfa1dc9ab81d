#include "desktop/compare_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace vendrel {
namespace {

constexpr double kGap = 6;
constexpr double kLargestZoom = 8;
constexpr double kWheelNotch = 120;
constexpr QRgb kMark = qRgba(120, 0, 90, 120);  // over the pixels, premultiplied

}  // namespace

CompareView::CompareView(const std::array<QString, kPictures>& captions) : captions_(captions) {
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(480, 240);
    setCursor(Qt::OpenHandCursor);
}

void CompareView::SetPictures(std::array<QImage, kPictures> pictures) {
    const bool sameSize = pictures[0].size() == pictures_[0].size();
    pictures_ = std::move(pictures);
    if (!sameSize) {
        Fit();
    }
    update();
}

void CompareView::SetMarks(const ValueGrid& marks, int stippleSize) {
    stippleSize_ = stippleSize;
    marks_ = QImage(marks.Across() + 1, marks.Down() + 1, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y <= marks.Down(); ++y) {
        for (int x = 0; x <= marks.Across(); ++x) {
            marks_.setPixel(x, y, marks(x, y) != 0 ? kMark : 0);
        }
    }
    update();
}

void CompareView::SetMarking(bool marking) {
    marking_ = marking;
    setCursor(marking ? Qt::CrossCursor : Qt::OpenHandCursor);
}

void CompareView::Fit() {
    zoom_ = 0;
    center_ = QPointF(pictures_[0].width(), pictures_[0].height()) / 2;
    update();
    emit Zoomed();
}

QRectF CompareView::Pane(int picture) const {
    const double caption = fontMetrics().height() + kGap;
    const double width = (this->width() - (kPictures - 1) * kGap) / kPictures;
    return {picture * (width + kGap), caption, width, height() - caption};
}

QPointF CompareView::Middle() const {
    const QRectF pane = Pane(0);
    return {pane.width() / 2, pane.height() / 2};
}

double CompareView::FitZoom() const {
    const QRectF pane = Pane(0);
    const QSize size = pictures_[0].size();
    return size.isEmpty() ? 1
                          : std::min(pane.width() / size.width(), pane.height() / size.height());
}

double CompareView::Zoom() const {
    return zoom_ > 0 ? zoom_ : FitZoom();
}

int CompareView::PaneAt(QPointF at) const {
    for (int picture = 0; picture < kPictures; ++picture) {
        if (Pane(picture).contains(at)) {
            return picture;
        }
    }
    return -1;
}

QPointF CompareView::InPane(QPointF at) const {
    const int pane = PaneAt(at);
    return at - Pane(std::max(pane, 0)).topLeft();
}

QPointF CompareView::PixelAt(QPointF at) const {
    return center_ + (InPane(at) - Middle()) / Zoom();
}

void CompareView::ZoomAround(QPointF inPane, double times) {
    const double before = Zoom();
    const double after = std::clamp(before * times, FitZoom(), kLargestZoom);
    // What is under the pointer stays there.
    center_ += (inPane - Middle()) * (1 / before - 1 / after);
    zoom_ = after > FitZoom() ? after : 0;
    KeepInside();
    emit Zoomed();
}

void CompareView::MoveBy(QPointF pixels) {
    center_ += pixels;
    KeepInside();
}

void CompareView::KeepInside() {
    const QSize size = pictures_[0].size();
    const auto keep = [this](double at, double pane, int length) {
        const double half = std::min(pane / Zoom(), double(length)) / 2;
        return std::clamp(at, half, length - half);
    };
    center_ = {keep(center_.x(), Pane(0).width(), size.width()),
               keep(center_.y(), Pane(0).height(), size.height())};
    update();
}

void CompareView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    for (int picture = 0; picture < kPictures; ++picture) {
        const QRectF pane = Pane(picture);
        painter.setPen(palette().windowText().color());
        painter.drawText(QRectF(pane.left(), 0, pane.width(), pane.top()),
                         Qt::AlignHCenter | Qt::AlignVCenter,
                         captions_[static_cast<std::size_t>(picture)]);
        painter.save();
        painter.setClipRect(pane);
        painter.fillRect(pane, palette().mid());
        PaintPicture(painter, picture);
        painter.restore();
    }
    if (hasFocus()) {
        painter.setPen(palette().highlight().color());
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void CompareView::PaintPicture(QPainter& painter, int picture) const {
    const QImage& image = pictures_[static_cast<std::size_t>(picture)];
    painter.translate(Pane(picture).topLeft() + Middle());
    painter.scale(Zoom(), Zoom());
    painter.translate(-center_);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, Zoom() < 1);
    painter.drawImage(0, 0, image);
    // What protection does to the result shows only without the layer, but a stroke shows its way.
    if (!marks_.isNull() && (picture + 1 < kPictures || strokePane_ >= 0)) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
        painter.drawImage(
            QRectF(1, 1, marks_.width() * stippleSize_, marks_.height() * stippleSize_), marks_);
    }
}

void CompareView::resizeEvent(QResizeEvent* /*event*/) {
    KeepInside();
    emit Zoomed();
}

void CompareView::mousePressEvent(QMouseEvent* event) {
    const bool marks = event->button() == Qt::LeftButton;
    if (marking_ && (marks || event->button() == Qt::RightButton) &&
        PaneAt(event->position()) >= 0) {
        strokePane_ = PaneAt(event->position());
        emit StrokeBegun(marks);
        emit StrokeMoved(PixelAt(event->position()).toPoint());
    } else {
        dragging_ = true;
        last_ = event->position();
        setCursor(Qt::ClosedHandCursor);
    }
}

void CompareView::mouseMoveEvent(QMouseEvent* event) {
    // In another picture the same stroke would be somewhere else.
    if (strokePane_ >= 0 && PaneAt(event->position()) == strokePane_) {
        emit StrokeMoved(PixelAt(event->position()).toPoint());
    } else if (dragging_) {
        MoveBy((last_ - event->position()) / Zoom());
        last_ = event->position();
    }
}

void CompareView::mouseReleaseEvent(QMouseEvent* /*event*/) {
    if (std::exchange(strokePane_, -1) >= 0) {
        update();
        emit StrokeEnded();
    }
    if (std::exchange(dragging_, false)) {
        SetMarking(marking_);
    }
}

void CompareView::wheelEvent(QWheelEvent* event) {
    ZoomAround(InPane(event->position()), std::pow(kStep, event->angleDelta().y() / kWheelNotch));
    event->accept();
}

void CompareView::keyPressEvent(QKeyEvent* event) {
    constexpr double kNudge = 40;
    const double by = kNudge / Zoom();
    switch (event->key()) {
        case Qt::Key_Left:
            return MoveBy({-by, 0});
        case Qt::Key_Right:
            return MoveBy({by, 0});
        case Qt::Key_Up:
            return MoveBy({0, -by});
        case Qt::Key_Down:
            return MoveBy({0, by});
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return ZoomIn();
        case Qt::Key_Minus:
            return ZoomOut();
        case Qt::Key_0:
            return Fit();
        default:
            QWidget::keyPressEvent(event);
    }
}

}  // namespace vendrel
