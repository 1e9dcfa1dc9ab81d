#pragma once

#include <QAbstractScrollArea>
#include <optional>

#include "desktop/sheet_painter.h"
#include "desktop/touch_up_overlays.h"

namespace vendrel {

/// The touch-up editor's picture: zoom, scrolling, and the pointer in stipples. What the pointer
/// does is up to whoever listens.
class TouchUpCanvas : public QAbstractScrollArea {
    Q_OBJECT

  public:
    static constexpr double kLargestEdge = 64;  // screen pixels per stipple

    explicit TouchUpCanvas(TouchUpForm& form, QWidget* parent = nullptr);

    /// The editor was opened.
    void Start(const Surface& photo, int stippleSize);
    /// Repaints what the form has touched since the last call.
    /// False where it touched nothing.
    bool Follow();
    /// Whether the marked stipples stand out now. Only these are repainted.
    void Blink(bool on);
    /// Puts the keyboard's stipple there and brings it into view.
    void GoTo(CellPos at);
    /// While Space is down, the mouse drags the picture.
    void HoldSpace(bool held);

    void ZoomIn();
    void ZoomOut();
    void Fit();
    /// So that a pixel of the photo takes one of the screen.
    void ShowActualSize();
    /// Brings a stipple to the middle, as far as the sheet goes.
    void CenterOn(CellPos at);
    /// The stipples that show, in part or whole.
    [[nodiscard]] CellRect Shown() const;
    /// Of the mouse, else of the keyboard.
    [[nodiscard]] CellPos PointedCell() const { return pointer_.value_or(cursor_); }
    /// A button is held: whatever takes long has to wait.
    [[nodiscard]] bool HandIsDown() const { return drag_ != Drag::None; }
    [[nodiscard]] const SheetPlace& WhereItLies() const { return place_; }
    [[nodiscard]] const EditSheet& Stipples() const { return form_.Sheet(); }
    [[nodiscard]] SheetPainter& Sheet() { return sheet_; }
    [[nodiscard]] double Edge() const { return place_.Edge; }
    /// The middle of a stipple, in the viewport's pixels.
    [[nodiscard]] QPoint MiddleOf(CellPos cell) const { return place_.RectOf(cell).center(); }

    [[nodiscard]] const EditorLook& Look() const { return look_; }
    void SetLook(const EditorLook& look);

  signals:
    void Pressed(CellPos at, PressKeys keys = {});
    void Dragged(CellPos at);
    void Released();
    void Picked(CellPos at);
    void PutDown();
    void Nudged(CellPos by);
    /// Another part of the sheet shows, or at another size.
    void Moved();
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

    /// The zoom before: turned on without a move it keeps its spot, and whole pixels add up to
    /// nothing.
    struct LastZoom {
        QPointF Around;  // in the viewport
        QPointF Spot;    // in stipples
        QPoint Corner;   // of the sheet afterwards
    };

    void FollowOverlays();
    [[nodiscard]] double FitEdge() const;
    void ZoomTo(double edge, QPointF around);
    [[nodiscard]] QPointF ZoomSpot() const;
    void Place();
    void PointTo(std::optional<CellPos> at);
    void FollowMouse();
    void MoveCursor(int dx, int dy);
    void PanBy(QPoint way);
    void ScrollTo(QPoint to);
    void ShowPanPointer();
    [[nodiscard]] bool MovesBy(QKeyEvent& event);
    [[nodiscard]] QRect CursorRect() const;
    [[nodiscard]] QRegion MarkedRegion() const;
    void PaintPart(QPainter& painter, const QRect& exposed);
    void PaintPointer(QPainter& painter) const;

    TouchUpForm& form_;
    TouchUpOverlays overlays_;
    OverlayState overlaysShown_;
    SheetPainter sheet_;
    int stippleSize_ = 1;
    SheetPlace place_;
    LastZoom zoom_;
    EditorLook look_;
    bool fits_ = true;  // zoomed to be seen whole, at any size of the window
    bool blinkOn_ = false;
    std::vector<CellPos> marked_;
    Drag drag_ = Drag::None;
    Qt::MouseButton button_ = Qt::LeftButton;  // that drags
    bool spaceHeld_ = false;
    QPoint panFrom_;
    bool scrollsBoth_ = false;
    QPoint scrolled_;  // pixels not moved by yet
    int wheel_ = 0;    // eighths of a degree not used up yet
    std::optional<CellPos> pointer_;
    CellPos cursor_{1, 1};  // where the keyboard stands
    bool cursorShown_ = false;
    bool cursorLeads_ = false;  // it moved later than the mouse
    QPointF mouseAt_;           // on the screen
    QPointF mouseIn_;           // in the viewport
};

}  // namespace vendrel
