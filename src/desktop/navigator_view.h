#pragma once

#include <QImage>
#include <QWidget>

#include "desktop/touch_up_canvas.h"

namespace vendrel {

/// All stipples at a glance, with a frame round those that the picture shows. Pressing brings
/// others there.
class NavigatorView : public QWidget {
    Q_OBJECT

  public:
    explicit NavigatorView(TouchUpCanvas& canvas, QWidget* parent = nullptr);

    /// The stipples were edited.
    void Follow();
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override { GoTo(*event); }
    void mouseMoveEvent(QMouseEvent* event) override { GoTo(*event); }

  private:
    [[nodiscard]] QRect Room() const;
    void GoTo(const QMouseEvent& event);

    TouchUpCanvas& canvas_;
    QImage small_;
};

}  // namespace vendrel
