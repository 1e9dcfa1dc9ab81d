#include "desktop/touch_up_canvas.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>

namespace vendrel {
namespace {

constexpr std::array kEdges = {1.0,  2.0,  3.0,  4.0,  5.0,  6.0, 8.0,
                               10.0, 12.0, 14.0, 16.0, 20.0, 24.0};
constexpr int kWheelStep = 120;
constexpr int kSmallestRing = 18;  // pixels: found at a glance whatever the zoom
constexpr QColor kMarkColor(255, 0, 255);

double EdgeAbove(double edge) {
    return *std::upper_bound(kEdges.begin(), kEdges.end() - 1, edge + 0.01);
}

double EdgeBelow(double edge) {
    return *(std::lower_bound(kEdges.begin() + 1, kEdges.end(), edge - 0.01) - 1);
}

}  // namespace

TouchUpCanvas::TouchUpCanvas(TouchUpForm& form, QWidget* parent)
    : QAbstractScrollArea(parent), form_(form) {
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->setCursor(Qt::CrossCursor);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(240, 200);
}

void TouchUpCanvas::Start(const Surface& photo, int stippleSize) {
    sheet_.SetPhoto(photo, stippleSize);
    Follow();
    Fit();
}

void TouchUpCanvas::Follow() {
    const CellRect dirty = form_.TakeDirty();
    const QSize before(sheet_.Across(), sheet_.Down());
    if (!dirty.Empty()) {
        sheet_.Follow(form_, dirty);
        viewport()->update(place_.RectOf(dirty));
    }
    if (before != QSize(sheet_.Across(), sheet_.Down())) {
        Place();
    }
}

void TouchUpCanvas::SetLook(const EditorLook& look) {
    look_ = look;
    viewport()->update();
}

double TouchUpCanvas::FitEdge() const {
    const QSize room = maximumViewportSize();
    const double edge = std::min(static_cast<double>(room.width()) / std::max(1, sheet_.Across()),
                                 static_cast<double>(room.height()) / std::max(1, sheet_.Down()));
    return std::clamp(edge, 0.5, kLargestEdge);
}

void TouchUpCanvas::Fit() {
    fits_ = true;
    place_.Edge = FitEdge();
    Place();
    emit Zoomed();
}

void TouchUpCanvas::ZoomIn() {
    ZoomTo(EdgeAbove(place_.Edge), ZoomSpot());
}

void TouchUpCanvas::ZoomOut() {
    ZoomTo(EdgeBelow(place_.Edge), ZoomSpot());
}

// Where the painter looks: at the stipple stepped to, until the mouse moves again.
QPointF TouchUpCanvas::ZoomSpot() const {
    if (cursorLeads_) {
        return MiddleOf(cursor_);
    }
    return pointer_ ? MiddleOf(*pointer_) : QPointF(viewport()->rect().center());
}

void TouchUpCanvas::ZoomTo(double edge, QPointF around) {
    if (edge <= FitEdge()) {
        Fit();
        return;
    }
    fits_ = false;
    const QPointF spot = (around - place_.Corner) / place_.Edge;
    place_.Edge = edge;
    Place();
    horizontalScrollBar()->setValue(qRound(spot.x() * edge - around.x()));
    verticalScrollBar()->setValue(qRound(spot.y() * edge - around.y()));
    emit Zoomed();
}

// Sets scroll bars and corner after the zoom, the window's size or the sheet changed.
void TouchUpCanvas::Place() {
    const QSize sheet = SheetPlace{{}, place_.Edge}.RectOf(sheet_.Bounds()).size();
    const auto setUp = [this](QScrollBar* bar, int whole, int seen) {
        bar->setRange(0, fits_ ? 0 : std::max(0, whole - seen));
        bar->setPageStep(seen);
        bar->setSingleStep(std::max(1, static_cast<int>(place_.Edge)));
    };
    const QSize room = viewport()->size();
    setUp(horizontalScrollBar(), sheet.width(), room.width());
    setUp(verticalScrollBar(), sheet.height(), room.height());
    place_.Corner = {sheet.width() <= room.width() ? (room.width() - sheet.width()) / 2
                                                   : -horizontalScrollBar()->value(),
                     sheet.height() <= room.height() ? (room.height() - sheet.height()) / 2
                                                     : -verticalScrollBar()->value()};
    viewport()->update();
}

void TouchUpCanvas::resizeEvent(QResizeEvent* /*event*/) {
    if (fits_) {
        place_.Edge = FitEdge();
    }
    Place();
    emit Zoomed();
}

void TouchUpCanvas::scrollContentsBy(int dx, int dy) {
    place_.Corner += QPoint(dx, dy);
    viewport()->scroll(dx, dy);
}

void TouchUpCanvas::GoTo(CellPos at) {
    viewport()->update(CursorRect());
    cursor_ = at;
    cursorShown_ = true;
    cursorLeads_ = true;
    // With a margin, so that what surrounds a stipple shows too.
    const QRect around = CursorRect().adjusted(-60, -60, 60, 60);
    const QRect room = viewport()->rect();
    if (!room.contains(around)) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + around.center().x() -
                                        room.center().x());
        verticalScrollBar()->setValue(verticalScrollBar()->value() + around.center().y() -
                                      room.center().y());
    }
    viewport()->update(CursorRect());
}

void TouchUpCanvas::MoveCursor(int dx, int dy) {
    GoTo({std::clamp(cursor_.X + dx, 1, std::max(1, sheet_.Across())),
          std::clamp(cursor_.Y + dy, 1, std::max(1, sheet_.Down()))});
    emit Pointed(cursor_);
}

CellRect TouchUpCanvas::BrushAt(CellPos at) const {
    const TouchUpControls& shown = form_.Controls();
    const int size = shown.Tool == TouchUpTool::Brush ? static_cast<int>(shown.Brush.Size) : 1;
    const CellPos first{at.X - (size - 1) / 2, at.Y - (size - 1) / 2};
    return {first.X, first.Y, first.X + size - 1, first.Y + size - 1};
}

QRect TouchUpCanvas::CursorRect() const {
    QRect ring = place_.RectOf(cursor_);
    const int grow = std::max(4, (kSmallestRing - ring.width()) / 2);
    return ring.adjusted(-grow, -grow, grow, grow);
}

void TouchUpCanvas::PointTo(std::optional<CellPos> at) {
    if (at == pointer_) {
        return;
    }
    for (const std::optional<CellPos>& spot : {pointer_, at}) {
        if (spot) {
            viewport()->update(place_.RectOf(BrushAt(*spot)).adjusted(-2, -2, 2, 2));
        }
    }
    pointer_ = at;
    emit Pointed(at.value_or(CellPos{}));
}

void TouchUpCanvas::PanBy(QPoint way) {
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - way.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - way.y());
}

void TouchUpCanvas::HoldSpace(bool held) {
    spaceHeld_ = held;
    ShowPanPointer();
}

void TouchUpCanvas::ShowPanPointer() {
    viewport()->setCursor(drag_ == Drag::Pan ? Qt::ClosedHandCursor
                          : spaceHeld_       ? Qt::OpenHandCursor
                                             : Qt::CrossCursor);
}

void TouchUpCanvas::mousePressEvent(QMouseEvent* event) {
    if (drag_ != Drag::None) {
        return;
    }
    const CellPos at = place_.CellAt(event->position());
    if (event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && spaceHeld_)) {
        drag_ = Drag::Pan;
        panFrom_ = event->position().toPoint();
        ShowPanPointer();
    } else if (event->button() == Qt::LeftButton) {
        drag_ = Drag::Tool;
        viewport()->update(CursorRect());
        cursorShown_ = false;
        cursor_ = {std::clamp(at.X, 1, std::max(1, sheet_.Across())),
                   std::clamp(at.Y, 1, std::max(1, sheet_.Down()))};
        emit Pressed(at);
    } else if (event->button() == Qt::RightButton) {
        emit Picked(at);
    }
}

void TouchUpCanvas::mouseMoveEvent(QMouseEvent* event) {
    // Scrolling moves the picture under a mouse that lies still.
    if (event->globalPosition() != mouseAt_) {
        mouseAt_ = event->globalPosition();
        cursorLeads_ = false;
    }
    if (drag_ == Drag::Pan) {
        const QPoint now = event->position().toPoint();
        PanBy(now - panFrom_);
        panFrom_ = now;
        return;
    }
    const CellPos at = place_.CellAt(event->position());
    const bool moved = pointer_ != at;
    PointTo(at);
    if (drag_ == Drag::Tool && moved) {
        emit Dragged(at);
    }
}

void TouchUpCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (drag_ == Drag::Tool && event->button() == Qt::LeftButton) {
        drag_ = Drag::None;
        emit Released();
    } else if (drag_ == Drag::Pan &&
               (event->button() == Qt::MiddleButton || event->button() == Qt::LeftButton)) {
        drag_ = Drag::None;
        ShowPanPointer();
    }
}

void TouchUpCanvas::wheelEvent(QWheelEvent* event) {
    wheel_ += event->angleDelta().y();
    const QPointF around = event->position();
    for (; wheel_ >= kWheelStep; wheel_ -= kWheelStep) {
        ZoomTo(EdgeAbove(place_.Edge), around);
    }
    for (; wheel_ <= -kWheelStep; wheel_ += kWheelStep) {
        ZoomTo(EdgeBelow(place_.Edge), around);
    }
    event->accept();
}

void TouchUpCanvas::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            return MoveCursor(-1, 0);
        case Qt::Key_Right:
            return MoveCursor(1, 0);
        case Qt::Key_Up:
            return MoveCursor(0, -1);
        case Qt::Key_Down:
            return MoveCursor(0, 1);
        case Qt::Key_Return:
        case Qt::Key_Enter:
            emit Pressed(cursor_);
            emit Released();
            return;
        case Qt::Key_I:
            emit Picked(cursor_);
            return;
        default:
            event->ignore();
    }
}

bool TouchUpCanvas::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave) {
        PointTo(std::nullopt);
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void TouchUpCanvas::Blink(bool on) {
    blinkOn_ = on;
    const QRegion before = MarkedRegion();
    if (form_.Open()) {
        marked_ = form_.Marked();
    }
    viewport()->update(before | MarkedRegion());
}

// Marks that touch are joined, as a region wants them.
QRegion TouchUpCanvas::MarkedRegion() const {
    const CellRect shown = place_.CellsIn(viewport()->rect(), sheet_.Bounds());
    std::vector<QRect> rects;
    for (const CellPos& cell : marked_) {
        if (cell.X < shown.Left || cell.X > shown.Right || cell.Y < shown.Top ||
            cell.Y > shown.Bottom) {
            continue;
        }
        const QRect rect = place_.RectOf(cell);
        if (!rects.empty() && rects.back().top() == rect.top() &&
            rects.back().right() + 1 == rect.left()) {
            rects.back().setRight(rect.right());
        } else if (!rect.isEmpty()) {
            rects.push_back(rect);
        }
    }
    QRegion region;
    region.setRects(rects.data(), static_cast<int>(rects.size()));
    return region;
}

void TouchUpCanvas::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const QRect exposed = event->rect();
    painter.fillRect(exposed, palette().color(QPalette::Mid));
    sheet_.Paint(painter, exposed, place_, look_);
    if (blinkOn_ && !look_.PhotoOnly) {
        PaintMarks(painter, place_.CellsIn(exposed, sheet_.Bounds()));
    }
    PaintPointer(painter);
}

void TouchUpCanvas::PaintMarks(QPainter& painter, const CellRect& shown) const {
    for (const CellPos& cell : marked_) {
        if (cell.X >= shown.Left && cell.X <= shown.Right && cell.Y >= shown.Top &&
            cell.Y <= shown.Bottom) {
            painter.fillRect(place_.RectOf(cell), kMarkColor);
        }
    }
}

void TouchUpCanvas::PaintPointer(QPainter& painter) const {
    // Black beside white shows on every paint.
    const auto outline = [&painter](const QRect& rect) {
        painter.setPen(Qt::black);
        painter.drawRect(rect.adjusted(-1, -1, 0, 0));
        painter.setPen(Qt::white);
        painter.drawRect(rect.adjusted(-2, -2, 1, 1));
    };
    painter.setBrush(Qt::NoBrush);
    if (cursorShown_) {
        const QRect ring = CursorRect().adjusted(2, 2, -2, -2);
        outline(ring);
        painter.setPen(kMarkColor);
        painter.drawRect(ring.adjusted(0, 0, -1, -1));
        painter.drawRect(ring.adjusted(1, 1, -2, -2));
    }
    if (pointer_ && drag_ != Drag::Pan) {
        outline(place_.RectOf(BrushAt(*pointer_)));
    }
}

}  // namespace vendrel
