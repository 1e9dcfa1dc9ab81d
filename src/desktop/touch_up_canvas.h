#pragma once

#include <QAbstractScrollArea>
#include <optional>

#include "desktop/sheet_painter.h"

namespace vendrel {

/// The touch-up editor's picture: zoom, scrolling, and the pointer in stipples. What the pointer
/// does is up to whoever listens.
class TouchUpCanvas : public QAbstractScrollArea {
    Q_OBJECT

  public:
    static constexpr double kLargestEdge = 24;  // screen pixels per stipple

    explicit TouchUpCanvas(TouchUpForm& form, QWidget* parent = nullptr);

    /// The editor was opened.
    void Start(const Surface& photo, int stippleSize);
    /// Repaints what the form has touched since the last call.
    void Follow();
    /// Whether the marked stipples stand out now. Only these are repainted.
    void Blink(bool on);
    /// Puts the keyboard's stipple there and brings it into view.
    void GoTo(CellPos at);
    /// While Space is down, the mouse drags the picture.
    void HoldSpace(bool held);

    void ZoomIn();
    void ZoomOut();
    void Fit();
    [[nodiscard]] double Edge() const { return place_.Edge; }
    /// The middle of a stipple, in the viewport's pixels.
    [[nodiscard]] QPoint MiddleOf(CellPos cell) const { return place_.RectOf(cell).center(); }

    [[nodiscard]] const EditorLook& Look() const { return look_; }
    void SetLook(const EditorLook& look);

  signals:
    void Pressed(CellPos at);
    void Dragged(CellPos at);
    void Released();
    void Picked(CellPos at);
    void Pointed(CellPos at);
    void Zoomed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    enum class Drag { None, Tool, Pan };

    [[nodiscard]] double FitEdge() const;
    void ZoomTo(double edge, QPointF around);
    [[nodiscard]] QPointF ZoomSpot() const;
    void Place();
    void PointTo(std::optional<CellPos> at);
    void MoveCursor(int dx, int dy);
    void PanBy(QPoint way);
    void ShowPanPointer();
    [[nodiscard]] CellRect BrushAt(CellPos at) const;
    [[nodiscard]] QRect CursorRect() const;
    [[nodiscard]] QRegion MarkedRegion() const;
    void PaintMarks(QPainter& painter, const CellRect& shown) const;
    void PaintPointer(QPainter& painter) const;

    TouchUpForm& form_;
    SheetPainter sheet_;
    SheetPlace place_;
    EditorLook look_;
    bool fits_ = true;  // zoomed to be seen whole, at any size of the window
    bool blinkOn_ = false;
    std::vector<CellPos> marked_;
    Drag drag_ = Drag::None;
    bool spaceHeld_ = false;
    QPoint panFrom_;
    int wheel_ = 0;  // eighths of a degree not used up yet
    std::optional<CellPos> pointer_;
    CellPos cursor_{1, 1};  // where the keyboard stands
    bool cursorShown_ = false;
    bool cursorLeads_ = false;  // it moved later than the mouse
    QPointF mouseAt_;           // on the screen
};

}  // namespace vendrel
