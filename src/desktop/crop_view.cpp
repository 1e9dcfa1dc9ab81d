#include "desktop/crop_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "export/qt_image.h"

namespace vendrel {
namespace {

constexpr int kMargin = 8;  // screen pixels round the photo, so that corners can be taken hold of
constexpr int kReach = 12;  // round a corner
constexpr int kHandle = 9;  // a corner's mark
const QColor kShade(0, 0, 0, 150);

Qt::CursorShape PointerFor(CropGrip grip) {
    switch (grip) {
        case CropGrip::Inside:
            return Qt::SizeAllCursor;
        case CropGrip::TopLeft:
        case CropGrip::BottomRight:
            return Qt::SizeFDiagCursor;
        case CropGrip::TopRight:
        case CropGrip::BottomLeft:
            return Qt::SizeBDiagCursor;
        default:
            return Qt::ArrowCursor;
    }
}

void PaintShade(QPainter& painter, const QRectF& photo, const QRectF& frame) {
    QPainterPath shade;
    shade.addRect(photo);
    QPainterPath kept;
    kept.addRect(frame);
    painter.fillPath(shade.subtracted(kept), kShade);
}

// Twice, so that lines are seen on light and on dark.
void PaintLines(QPainter& painter, const QVector<QLineF>& lines) {
    painter.setPen(QColor(0, 0, 0, 110));
    for (const QLineF& line : lines) {
        painter.drawLine(line.translated(1, 1));
    }
    painter.setPen(QColor(255, 255, 255, 170));
    painter.drawLines(lines);
}

void PaintThirds(QPainter& painter, const QRectF& frame) {
    QVector<QLineF> lines;
    for (const int third : {1, 2}) {
        const double x = std::round(frame.left() + frame.width() * third / 3);
        const double y = std::round(frame.top() + frame.height() * third / 3);
        lines << QLineF(x, frame.top(), x, frame.bottom());
        lines << QLineF(frame.left(), y, frame.right(), y);
    }
    PaintLines(painter, lines);
}

void PaintBorder(QPainter& painter, const QRectF& frame, const QColor& mark) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(frame.adjusted(-1, -1, 1, 1));
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(frame);
    for (const QPointF corner :
         {frame.topLeft(), frame.topRight(), frame.bottomLeft(), frame.bottomRight()}) {
        QRectF handle(0, 0, kHandle, kHandle);
        handle.moveCenter(corner);
        painter.fillRect(handle, mark);
        painter.drawRect(handle);
    }
}

}  // namespace

CropView::CropView(const CropPhoto& form, QWidget* parent) : QWidget(parent), form_(form) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(320, 240);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CropView::Follow() {
    image_ = ToImage(form_.Controls().Picture);
    update();
}

QRectF CropView::PhotoRect() const {
    const BitmapSize photo = form_.Controls().Photo;
    const QSizeF size =
        QSizeF(photo.Width, photo.Height)
            .scaled(width() - 2 * kMargin, height() - 2 * kMargin, Qt::KeepAspectRatio);
    return QRectF(QPointF(std::floor((width() - size.width()) / 2),
                          std::floor((height() - size.height()) / 2)),
                  size);
}

double CropView::Scale() const {
    return PhotoRect().width() / std::max(1, form_.Controls().Photo.Width);
}

QRectF CropView::FrameRect() const {
    const CropRect& frame = form_.Controls().Frame;
    return QRectF(Shown({frame.Left, frame.Top}),
                  Shown({frame.Left + frame.Width, frame.Top + frame.Height}));
}

QPoint CropView::Shown(QPoint photo) const {
    return (PhotoRect().topLeft() + QPointF(photo) * Scale()).toPoint();
}

QPoint CropView::PhotoPixel(QPointF shown) const {
    return ((shown - PhotoRect().topLeft()) / Scale()).toPoint();
}

int CropView::Reach() const {
    return static_cast<int>(std::lround(kReach / Scale()));
}

void CropView::paintEvent(QPaintEvent* /*event*/) {
    if (image_.isNull()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(PhotoRect(), image_);
    const QRectF frame = FrameRect();
    PaintShade(painter, PhotoRect(), frame);
    PaintThirds(painter, frame);
    PaintBorder(painter, frame, hasFocus() ? palette().color(QPalette::Highlight) : Qt::gray);
}

void CropView::ShowPointer(QPoint photo) {
    setCursor(PointerFor(form_.GripAt(photo.x(), photo.y(), Reach())));
}

void CropView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        emit Pressed(PhotoPixel(event->position()), Reach());
    }
}

void CropView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) {
        emit Dragged(PhotoPixel(event->position()));
    } else {
        ShowPointer(PhotoPixel(event->position()));
    }
}

void CropView::mouseReleaseEvent(QMouseEvent* event) {
    emit Released();
    ShowPointer(PhotoPixel(event->position()));
}

void CropView::keyPressEvent(QKeyEvent* event) {
    struct Arrow {
        int Key;
        int Right;
        int Down;
    };
    for (const Arrow& arrow : {Arrow{Qt::Key_Left, -1, 0},
                               {Qt::Key_Right, 1, 0},
                               {Qt::Key_Up, 0, -1},
                               {Qt::Key_Down, 0, 1}}) {
        if (event->key() != arrow.Key) {
            continue;
        }
        if (event->modifiers().testFlag(Qt::ShiftModifier)) {
            emit Grown(arrow.Right - arrow.Down);
        } else {
            emit Moved(arrow.Right, arrow.Down);
        }
        return;
    }
    QWidget::keyPressEvent(event);
}

}  // namespace vendrel
