#pragma once

#include <QImage>
#include <QWidget>
#include <array>

#include "support/grid.h"

namespace vendrel {

/// Three pictures of one size beside each other, always at the same zoom and place: dragging and
/// the wheel move all of them. A layer over them marks stipples; on the last picture it shows only
/// during a stroke.
class CompareView : public QWidget {
    Q_OBJECT

  public:
    static constexpr int kPictures = 3;

    explicit CompareView(const std::array<QString, kPictures>& captions);

    void SetPictures(std::array<QImage, kPictures> pictures);
    /// Per stipple from 0, other than 0 where it is marked.
    void SetMarks(const ValueGrid& marks, int stippleSize);
    /// Whether the left button marks (the right one unmarks) or drags.
    void SetMarking(bool marking);
    /// Shows the whole pictures.
    void Fit();
    void ZoomIn() { ZoomAround(Middle(), kStep); }
    void ZoomOut() { ZoomAround(Middle(), 1 / kStep); }
    /// Screen pixels per picture pixel.
    [[nodiscard]] double Zoom() const;
    [[nodiscard]] QSize sizeHint() const override { return {1080, 420}; }

  signals:
    void StrokeBegun(bool marks);
    /// A pixel of the pictures.
    void StrokeMoved(QPoint pixel);
    void StrokeEnded();
    void Zoomed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    static constexpr double kStep = 1.25;

    [[nodiscard]] QRectF Pane(int picture) const;
    [[nodiscard]] QPointF Middle() const;
    [[nodiscard]] double FitZoom() const;
    [[nodiscard]] int PaneAt(QPointF at) const;
    [[nodiscard]] QPointF PixelAt(QPointF at) const;
    [[nodiscard]] QPointF InPane(QPointF at) const;
    void ZoomAround(QPointF inPane, double times);
    void MoveBy(QPointF pixels);
    void KeepInside();
    void PaintPicture(QPainter& painter, int picture) const;

    std::array<QString, kPictures> captions_;
    std::array<QImage, kPictures> pictures_;
    QImage marks_;  // a pixel per stipple
    int stippleSize_ = 1;
    double zoom_ = 0;  // 0: fits
    QPointF center_;   // picture pixel in the middle of each pane
    QPointF last_;     // of the pointer, while it drags
    bool marking_ = false;
    bool dragging_ = false;
    int strokePane_ = -1;  // the picture that a stroke is in
};

}  // namespace vendrel
