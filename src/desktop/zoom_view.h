#pragma once

#include <QAbstractScrollArea>
#include <QImage>

#include "support/surface.h"

namespace vendrel {

/// Shows a surface whole or at a zoom; what does not fit is dragged or scrolled into view. 100 % is
/// a photo pixel for a whole number of screen pixels; above it the pixels stay crisp.
class ZoomView : public QAbstractScrollArea {
    Q_OBJECT

  public:
    static constexpr int kSmallest = 10;  // percent
    static constexpr int kLargest = 800;

    explicit ZoomView(const Surface& surface, QWidget* parent = nullptr);

    /// The surface was drawn on.
    void Refresh();
    [[nodiscard]] double Percent() const { return percent_; }
    /// Zoomed to be seen whole, at any size of the window.
    [[nodiscard]] bool Fits() const { return fits_; }

    void Fit();
    /// Around the middle of what is seen.
    void ZoomTo(double percent);
    void ZoomIn();
    void ZoomOut();

    /// Screen pixels per photo pixel on each axis at 100 %.
    [[nodiscard]] static int Scale(qreal devicePixelRatio);
    /// Where the picture lies, in the viewport's pixels.
    [[nodiscard]] QRectF PictureRect() const;

  signals:
    /// Pressed and let go without a drag.
    void Clicked();
    void Zoomed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    [[nodiscard]] double Edge() const;
    [[nodiscard]] QSizeF PictureSize() const;
    [[nodiscard]] bool HasMore() const;
    void ZoomTo(double percent, QPointF around);
    void Place();
    void ShowPointer();
    void TakeImage();
    void PaintSmaller(QPainter& painter);
    void PaintCrisp(QPainter& painter, const QRect& exposed) const;

    const Surface& surface_;
    QSize size_;     // of the surface at the last refresh
    QImage image_;   // as the surface was
    QImage scaled_;  // for zooms below 100 %, in screen pixels
    bool stale_ = true;
    bool fits_ = true;
    double percent_ = 100;
    bool pressed_ = false;
    bool dragging_ = false;
    QPoint dragFrom_;
    int wheel_ = 0;  // eighths of a degree not used up yet
};

}  // namespace vendrel
