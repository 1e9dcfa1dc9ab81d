#include "desktop/picture_view.h"

#include <QPainter>
#include <algorithm>

#include "export/qt_image.h"

namespace vendrel {

PictureView::PictureView(const Surface& surface, PictureFit fit, QWidget* parent)
    : QWidget(parent), surface_(surface), fit_(fit) {
    if (fit_ == PictureFit::Pixels) {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }
}

int PictureView::Scale(qreal devicePixelRatio) {
    return std::max(1, static_cast<int>(devicePixelRatio));
}

void PictureView::Refresh() {
    stale_ = true;
    if (image_.size() != QSize(surface_.Width(), surface_.Height())) {
        updateGeometry();
    }
    update();
}

QSize PictureView::sizeHint() const {
    const qreal ratio = devicePixelRatioF();
    return (QSizeF(surface_.Width(), surface_.Height()) * Scale(ratio) / ratio).toSize();
}

QRectF PictureView::PictureRect() const {
    const qreal ratio = devicePixelRatioF();
    QSizeF size = QSizeF(image_.size()) * Scale(ratio) / ratio;
    if (fit_ == PictureFit::Window && (size.width() > width() || size.height() > height())) {
        size.scale(QSizeF(this->size()), Qt::KeepAspectRatio);
    }
    QRectF rect(QPointF(0, 0), size);
    if (fit_ == PictureFit::Window) {
        rect.moveTopLeft(QPointF(static_cast<int>((width() - size.width()) / 2),
                                 static_cast<int>((height() - size.height()) / 2)));
    }
    return rect;
}

void PictureView::paintEvent(QPaintEvent* /*event*/) {
    if (stale_) {
        image_ = ToImage(surface_);
        stale_ = false;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, fit_ == PictureFit::Window);
    painter.drawImage(PictureRect(), image_);
}

void PictureView::mousePressEvent(QMouseEvent* /*event*/) {
    emit Clicked();
}

}  // namespace vendrel
