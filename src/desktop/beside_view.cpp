#include "desktop/beside_view.h"

#include <QPaintEvent>
#include <QPainter>

namespace vendrel {

BesideView::BesideView(TouchUpCanvas& canvas, QWidget* parent) : QWidget(parent), canvas_(canvas) {
    setObjectName(QStringLiteral("BesideView"));
    setAccessibleName(tr("Photo or painting beside the stipples"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumWidth(160);
    hide();
    connect(&canvas, &TouchUpCanvas::Moved, this, [this] { update(); });
    connect(&canvas, &TouchUpCanvas::Pointed, this, [this] {
        update(mark_);
        update(MarkedNow());
    });
}

QRect BesideView::MarkedNow() const {
    return canvas_.WhereItLies().RectOf(canvas_.PointedCell()).adjusted(-3, -3, 3, 3);
}

void BesideView::Show(Beside what) {
    shows_ = what;
    setVisible(what != Beside::Nothing);
    update();
}

void BesideView::SetPainting(const QImage& painting, const QString& trouble) {
    painting_ = painting;
    trouble_ = trouble;
    update();
}

void BesideView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRect(event->rect());
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    const bool isPhoto = shows_ == Beside::Photo;
    if (!isPhoto && painting_.isNull()) {
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         trouble_.isEmpty() ? tr("Painting…") : trouble_);
        return;
    }
    canvas_.Sheet().PaintPicture(painter, isPhoto ? canvas_.Sheet().Photo() : painting_,
                                 canvas_.WhereItLies());
    mark_ = MarkedNow();
    const QRect cell = mark_.adjusted(3, 3, -3, -3);
    painter.setPen(Qt::black);
    painter.drawRect(cell.adjusted(-1, -1, 0, 0));
    painter.setPen(Qt::white);
    painter.drawRect(cell.adjusted(-2, -2, 1, 1));
}

}  // namespace vendrel
