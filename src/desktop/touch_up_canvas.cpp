#include "desktop/touch_up_canvas.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <utility>

namespace vendrel {
namespace {

constexpr std::array kEdges = {1.0,  2.0,  3.0,  4.0,  5.0,  6.0,  8.0,  10.0, 12.0,
                               14.0, 16.0, 20.0, 24.0, 28.0, 32.0, 40.0, 48.0, 64.0};
constexpr int kMostParts = 8;            // of what is drawn anew, each by itself
constexpr std::size_t kMostMarks = 100;  // more are drawn faster with all between them
constexpr int kSmallestRing = 18;        // pixels: found at a glance whatever the zoom

double EdgeAbove(double edge) {
    return *std::upper_bound(kEdges.begin(), kEdges.end() - 1, edge + 0.01);
}

double EdgeBelow(double edge) {
    return *(std::lower_bound(kEdges.begin() + 1, kEdges.end(), edge - 0.01) - 1);
}

// How far what reaches from `from` to `to` must go, so that no room is left beside it needlessly.
int BackInto(int first, int last, int from, int to) {
    if (to - from <= last - first) {
        return (first + last - from - to) / 2;
    }
    return std::min(0, first - from) + std::max(0, last - to);
}

}  // namespace

TouchUpCanvas::TouchUpCanvas(TouchUpForm& form, QWidget* parent)
    : QAbstractScrollArea(parent), form_(form), overlays_(form) {
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->setCursor(Qt::CrossCursor);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(240, 200);
}

void TouchUpCanvas::Start(const Surface& photo, int stippleSize) {
    sheet_.SetPhoto(photo, stippleSize);
    stippleSize_ = stippleSize;
    Follow();
    Fit();
}

bool TouchUpCanvas::Follow() {
    const CellRect dirty = form_.TakeDirty();
    const QSize before(sheet_.Across(), sheet_.Down());
    if (!dirty.Empty()) {
        sheet_.Follow(form_, dirty);
        viewport()->update(place_.RectOf(dirty).adjusted(-2, -2, 3, 3));
    }
    // What lies over the stipples hangs on more than they do.
    FollowOverlays();
    if (before != QSize(sheet_.Across(), sheet_.Down())) {
        Place();
    }
    return !dirty.Empty();
}

// Redraws all while something changes that strokes alone do not; between them a stroke repaints no
// more than it touched.
void TouchUpCanvas::FollowOverlays() {
    const OverlayState now = overlays_.State();
    if (now != overlaysShown_ || now.Moving) {
        overlaysShown_ = now;
        viewport()->update();
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

void TouchUpCanvas::ShowActualSize() {
    ZoomTo(std::max(stippleSize_, 1), ZoomSpot());
}

void TouchUpCanvas::CenterOn(CellPos at) {
    PanBy(viewport()->rect().center() - MiddleOf(at));
    const QRect sheet = place_.RectOf(sheet_.Bounds());
    const QRect room = viewport()->rect();
    PanBy({BackInto(room.left(), room.right(), sheet.left(), sheet.right()),
           BackInto(room.top(), room.bottom(), sheet.top(), sheet.bottom())});
}

CellRect TouchUpCanvas::Shown() const {
    return place_.CellsIn(viewport()->rect(), sheet_.Bounds());
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
    if (around != zoom_.Around || place_.Corner != zoom_.Corner) {
        zoom_.Spot = (around - place_.Corner) / place_.Edge;
    }
    place_.Edge = edge;
    Place();
    ScrollTo(
        {qRound(zoom_.Spot.x() * edge - around.x()), qRound(zoom_.Spot.y() * edge - around.y())});
    zoom_.Around = around;
    zoom_.Corner = place_.Corner;
    emit Zoomed();
}

// Sets scroll bars and corner after the zoom, the window's size or the sheet changed. Zoomed in,
// half the view may lie beyond the sheet: else what the mouse is on near an edge would run away.
void TouchUpCanvas::Place() {
    const QSize sheet = SheetPlace{{}, place_.Edge}.RectOf(sheet_.Bounds()).size();
    const auto setUp = [this](QScrollBar* bar, int whole, int seen) {
        const int beyond = fits_ ? std::min(0, whole - seen) / 2 : -seen / 2;
        bar->setRange(beyond, fits_ ? beyond : whole - seen - beyond);
        bar->setPageStep(seen);
        bar->setSingleStep(std::max(1, static_cast<int>(place_.Edge)));
    };
    const QSize room = viewport()->size();
    setUp(horizontalScrollBar(), sheet.width(), room.width());
    setUp(verticalScrollBar(), sheet.height(), room.height());
    place_.Corner = {-horizontalScrollBar()->value(), -verticalScrollBar()->value()};
    viewport()->update();
    FollowMouse();
    emit Moved();
}

void TouchUpCanvas::resizeEvent(QResizeEvent* /*event*/) {
    if (fits_) {
        place_.Edge = FitEdge();
    }
    Place();
    emit Zoomed();
}

// Both ways at once: each by itself would move all that shows.
void TouchUpCanvas::ScrollTo(QPoint to) {
    scrollsBoth_ = true;
    horizontalScrollBar()->setValue(to.x());
    verticalScrollBar()->setValue(to.y());
    scrollsBoth_ = false;
    scrollContentsBy(0, 0);
}

void TouchUpCanvas::scrollContentsBy(int dx, int dy) {
    scrolled_ += QPoint(dx, dy);
    if (scrollsBoth_ || scrolled_.isNull()) {
        return;
    }
    const QPoint way = std::exchange(scrolled_, QPoint());
    place_.Corner += way;
    viewport()->scroll(way.x(), way.y());
    FollowMouse();
    emit Moved();
}

// The picture has moved under a mouse that lies still.
void TouchUpCanvas::FollowMouse() {
    if (pointer_) {
        PointTo(place_.CellAt(mouseIn_));
    }
}

void TouchUpCanvas::GoTo(CellPos at) {
    viewport()->update(CursorRect());
    cursor_ = at;
    cursorShown_ = true;
    cursorLeads_ = true;
    // With a margin, so that what surrounds a stipple shows too.
    const QRect around = CursorRect().adjusted(-60, -60, 60, 60) & place_.RectOf(sheet_.Bounds());
    const QRect room = viewport()->rect();
    if (!room.contains(around)) {
        PanBy(room.center() - around.center());
    }
    viewport()->update(CursorRect());
}

void TouchUpCanvas::MoveCursor(int dx, int dy) {
    GoTo({std::clamp(cursor_.X + dx, 1, std::max(1, sheet_.Across())),
          std::clamp(cursor_.Y + dy, 1, std::max(1, sheet_.Down()))});
    emit Pointed(cursor_);
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
            viewport()->update(overlays_.BrushRect(*spot, place_));
        }
    }
    pointer_ = at;
    emit Pointed(at.value_or(CellPos{}));
}

void TouchUpCanvas::PanBy(QPoint way) {
    ScrollTo(QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value()) - way);
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
    } else if (event->button() == Qt::LeftButton || event->button() == Qt::RightButton) {
        drag_ = Drag::Tool;
        button_ = event->button();
        viewport()->update(CursorRect());
        cursorShown_ = false;
        cursor_ = {std::clamp(at.X, 1, std::max(1, sheet_.Across())),
                   std::clamp(at.Y, 1, std::max(1, sheet_.Down()))};
        const Qt::KeyboardModifiers keys = event->modifiers();
        emit Pressed(at, {.Right = button_ == Qt::RightButton,
                          .Shift = keys.testFlag(Qt::ShiftModifier),
                          .Ctrl = keys.testFlag(Qt::ControlModifier),
                          .Alt = keys.testFlag(Qt::AltModifier)});
    }
}

void TouchUpCanvas::mouseMoveEvent(QMouseEvent* event) {
    mouseIn_ = event->position();
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
    const CellPos at = place_.CellAt(mouseIn_);
    const bool moved = pointer_ != at;
    PointTo(at);
    if (drag_ == Drag::Tool && moved) {
        emit Dragged(at);
    }
}

void TouchUpCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (drag_ == Drag::Tool && event->button() == button_) {
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
    mouseIn_ = around;
    for (; wheel_ >= QWheelEvent::DefaultDeltasPerStep;
         wheel_ -= QWheelEvent::DefaultDeltasPerStep) {
        ZoomTo(EdgeAbove(place_.Edge), around);
    }
    for (; wheel_ <= -QWheelEvent::DefaultDeltasPerStep;
         wheel_ += QWheelEvent::DefaultDeltasPerStep) {
        ZoomTo(EdgeBelow(place_.Edge), around);
    }
    event->accept();
}

// Arrows move the selection while its tool is in hand, and else the keyboard's stipple.
bool TouchUpCanvas::MovesBy(QKeyEvent& event) {
    const int dx = (event.key() == Qt::Key_Right) - (event.key() == Qt::Key_Left);
    const int dy = (event.key() == Qt::Key_Down) - (event.key() == Qt::Key_Up);
    if (dx == 0 && dy == 0) {
        return false;
    }
    const bool moves = form_.Open() && form_.Controls().Tool == TouchUpTool::Move &&
                       (form_.Selection().Any() || form_.Selection().Floating() != nullptr);
    if (moves) {
        emit Nudged({dx, dy});
    } else {
        MoveCursor(dx, dy);
    }
    return true;
}

void TouchUpCanvas::keyPressEvent(QKeyEvent* event) {
    if (MovesBy(*event)) {
        return;
    }
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (form_.Open() && form_.Selection().Floating() != nullptr) {
                emit PutDown();
                return;
            }
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

// Marks that touch are joined, as a region wants them. Many are everywhere.
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
    if (rects.size() > kMostMarks) {
        return place_.RectOf(shown);
    }
    region.setRects(rects.data(), static_cast<int>(rects.size()));
    return region;
}

// Part by part: what a pan along both axes exposes, and a stroke with the brush that left it
// behind, lie within a rectangle that is nearly all of the view.
void TouchUpCanvas::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const QRegion& exposed = event->region();
    if (exposed.rectCount() > kMostParts) {
        PaintPart(painter, exposed.boundingRect());
    } else {
        for (const QRect& part : exposed) {
            painter.setClipRect(part);
            PaintPart(painter, part);
        }
        painter.setClipping(false);
    }
    PaintPointer(painter);
}

void TouchUpCanvas::PaintPart(QPainter& painter, const QRect& exposed) {
    painter.fillRect(exposed, palette().color(QPalette::Mid));
    sheet_.Paint(painter, exposed, place_, look_);
    const CellRect shown = place_.CellsIn(exposed.adjusted(-2, -2, 2, 2), sheet_.Bounds());
    if (form_.Open() && !look_.PhotoOnly && !shown.Empty()) {
        painter.save();
        painter.setClipRect(place_.RectOf(sheet_.Bounds()).adjusted(-1, -1, 1, 1),
                            Qt::IntersectClip);
        overlays_.Paint(painter, shown, place_);
        painter.restore();
    }
    if (blinkOn_ && !look_.PhotoOnly) {
        FillRuns(painter, marked_, shown, place_, kMarkColor);
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
    if (pointer_ && drag_ != Drag::Pan && form_.Open()) {
        overlays_.PaintBrush(painter, *pointer_, place_);
    }
}

}  // namespace vendrel
