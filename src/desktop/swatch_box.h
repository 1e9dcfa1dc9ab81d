#pragma once

#include <QWidget>
#include <functional>

#include "forms/swatches.h"
#include "shell/records.h"

namespace vendrel {

/// A box of paint swatches; pointing at one, or going to it with the arrow keys, tells its set,
/// name and code.
class SwatchBox : public QWidget {
    Q_OBJECT

  public:
    /// `paintAt` gives the paint of a swatch counted from 0, nullptr beyond the last.
    explicit SwatchBox(std::function<const PaintColor*(int)> paintAt, QWidget* parent = nullptr);

    void SetLayout(const SwatchLayout& layout);
    /// What is read out for the box as a whole.
    void SetTitle(const QString& title);

  signals:
    void Resized(int width, int height);

  protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    [[nodiscard]] int Count() const;
    [[nodiscard]] QRect PlaceOf(int swatch) const;
    void GoTo(int swatch);
    void Tell();

    std::function<const PaintColor*(int)> paintAt_;
    SwatchLayout layout_;
    QString title_;
    int current_ = 0;  // where the keyboard stands
};

}  // namespace vendrel
