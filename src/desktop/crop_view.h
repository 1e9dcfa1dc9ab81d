#pragma once

#include <QImage>
#include <QWidget>

#include "forms/crop_photo.h"

namespace vendrel {

/// The photo with the crop frame over it. What mouse and keys do is up to whoever listens.
class CropView : public QWidget {
    Q_OBJECT

  public:
    explicit CropView(const CropPhoto& form, QWidget* parent = nullptr);

    /// Takes over what the form shows.
    void Follow();
    /// Where a pixel of the photo is shown.
    [[nodiscard]] QPoint Shown(QPoint photo) const;
    [[nodiscard]] QSize sizeHint() const override { return {860, 520}; }

  signals:
    /// Places are pixels of the photo; corners reach that far.
    void Pressed(QPoint at, int reach);
    void Dragged(QPoint at);
    void Released();
    void Moved(int stepsRight, int stepsDown);
    void Grown(int steps);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    /// The whole photo's place.
    [[nodiscard]] QRectF PhotoRect() const;
    [[nodiscard]] QRectF FrameRect() const;
    [[nodiscard]] double Scale() const;
    [[nodiscard]] QPoint PhotoPixel(QPointF shown) const;
    [[nodiscard]] int Reach() const;
    void ShowPointer(QPoint photo);

    const CropPhoto& form_;
    QImage image_;
};

}  // namespace vendrel
