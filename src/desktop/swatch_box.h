#pragma once

#include <QWidget>
#include <functional>

#include "forms/swatches.h"
#include "shell/records.h"

namespace vendrel {

/// A box of paint swatches; pointing at one tells its set, name and code.
class SwatchBox : public QWidget {
    Q_OBJECT

  public:
    /// `paintAt` gives the paint of a swatch counted from 0, nullptr beyond the last.
    explicit SwatchBox(std::function<const PaintColor*(int)> paintAt, QWidget* parent = nullptr);

    void SetLayout(const SwatchLayout& layout);

  signals:
    void Resized(int width, int height);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    std::function<const PaintColor*(int)> paintAt_;
    SwatchLayout layout_;
};

}  // namespace vendrel
