#pragma once

#include <QImage>
#include <QWidget>

#include "desktop/touch_up_canvas.h"

namespace vendrel {

/// What is shown beside the stipples.
enum class Beside { Nothing, Photo, Painting };

/// The photo or the finished painting beside the stipples: the same part at the same size, with a
/// mark where the pointer is.
class BesideView : public QWidget {
    Q_OBJECT

  public:
    explicit BesideView(TouchUpCanvas& canvas, QWidget* parent = nullptr);

    void Show(Beside what);
    [[nodiscard]] Beside Shows() const { return shows_; }
    /// `trouble` stands in place of a picture that there is none of.
    void SetPainting(const QImage& painting, const QString& trouble);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QRect MarkedNow() const;

    TouchUpCanvas& canvas_;
    Beside shows_ = Beside::Nothing;
    QImage painting_;
    QRect mark_;  // of the pointer, as drawn
    QString trouble_;
};

}  // namespace vendrel
