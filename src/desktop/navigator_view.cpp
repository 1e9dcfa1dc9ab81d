#include "desktop/navigator_view.h"

#include <QMouseEvent>
#include <QPainter>

namespace vendrel {
namespace {

constexpr int kLeastHeight = 90;  // pixels
constexpr int kUsualHeight = 150;

}  // namespace

NavigatorView::NavigatorView(TouchUpCanvas& canvas, QWidget* parent)
    : QWidget(parent), canvas_(canvas) {
    setObjectName(QStringLiteral("Navigator"));
    setAccessibleName(tr("Navigator: the part that is shown"));
    setMinimumHeight(kLeastHeight);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    connect(&canvas, &TouchUpCanvas::Moved, this, [this] { update(); });
}

// As large as the widget lets it be, in its middle.
QRect NavigatorView::Room() const {
    const QImage& cells = canvas_.Sheet().Cells();
    QRect room(QPoint(), cells.size().scaled(size(), Qt::KeepAspectRatio));
    room.moveCenter(rect().center());
    return room;
}

QSize NavigatorView::sizeHint() const {
    return {200, kUsualHeight};
}

void NavigatorView::Follow() {
    if (isVisible() && !canvas_.Sheet().Cells().isNull()) {
        small_ = canvas_.Sheet().Cells().scaled(Room().size(), Qt::IgnoreAspectRatio,
                                                Qt::SmoothTransformation);
        update();
    } else {
        small_ = {};
    }
}

void NavigatorView::resizeEvent(QResizeEvent* /*event*/) {
    small_ = {};
}

void NavigatorView::paintEvent(QPaintEvent* /*event*/) {
    if (small_.isNull()) {
        Follow();
    }
    QPainter painter(this);
    const QRect room = Room();
    painter.drawImage(room, small_);
    const CellRect shown = canvas_.Shown();
    const double edge = static_cast<double>(room.width()) / std::max(1, canvas_.Sheet().Across());
    const QRectF frame(room.left() + (shown.Left - 1) * edge, room.top() + (shown.Top - 1) * edge,
                       (shown.Right - shown.Left + 1) * edge,
                       (shown.Bottom - shown.Top + 1) * edge);
    painter.setPen(QPen(Qt::white, 3));
    painter.drawRect(frame);
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(frame);
}

void NavigatorView::GoTo(const QMouseEvent& event) {
    const QRect room = Room();
    if (event.buttons().testFlag(Qt::LeftButton) && room.width() > 0) {
        const QPointF at = event.position() - room.topLeft();
        canvas_.CenterOn({static_cast<int>(at.x() * canvas_.Sheet().Across() / room.width()) + 1,
                          static_cast<int>(at.y() * canvas_.Sheet().Down() / room.height()) + 1});
    }
}

}  // namespace vendrel
