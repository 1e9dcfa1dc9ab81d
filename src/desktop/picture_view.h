#pragma once

#include <QImage>
#include <QWidget>

#include "support/surface.h"

namespace vendrel {

/// How a picture takes its place.
enum class PictureFit {
    Pixels,  // one photo pixel is a whole number of screen pixels
    Window   // made smaller to be seen whole
};

/// Shows a surface.
class PictureView : public QWidget {
    Q_OBJECT

  public:
    PictureView(const Surface& surface, PictureFit fit, QWidget* parent = nullptr);

    /// The surface was drawn on.
    void Refresh();
    [[nodiscard]] QSize sizeHint() const override;
    /// Screen pixels per photo pixel on each axis.
    [[nodiscard]] static int Scale(qreal devicePixelRatio);

  signals:
    void Clicked();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    [[nodiscard]] QRectF PictureRect() const;

    const Surface& surface_;
    PictureFit fit_;
    QImage image_;
    bool stale_ = true;
};

}  // namespace vendrel
