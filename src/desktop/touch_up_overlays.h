#pragma once

#include <QPainter>

#include "desktop/sheet_place.h"
#include "forms/touch_up_form.h"

namespace vendrel {

/// What stands out at any paint.
inline constexpr QColor kMarkColor(255, 0, 255);

/// What tells one look of the overlays from another.
struct OverlayState {
    bool Outlines = false;
    bool Edits = false;
    std::size_t Changes = 0;
    std::size_t Hard = 0;
    int Selected = 0;
    TouchUpTool Tool = TouchUpTool::Brush;
    EditBrush Brush;
    bool Moving = false;  // the selection is being chosen, or something floats

    bool operator==(const OverlayState&) const = default;
};

/// Fills those of the stipples that show; row-major ones side by side at once.
void FillRuns(QPainter& painter, const std::vector<CellPos>& cells, const CellRect& shown,
              const SheetPlace& place, const QBrush& brush);

/// What the editor shows over the stipples: areas and what merging them would change, the
/// selection and what floats, the brush.
class TouchUpOverlays {
  public:
    explicit TouchUpOverlays(const TouchUpForm& form) : form_(form) {}

    [[nodiscard]] OverlayState State() const;
    /// Everything but the brush, within `shown`.
    void Paint(QPainter& painter, const CellRect& shown, const SheetPlace& place) const;
    /// The stipples under the brush with its paint, or the one pointed at.
    void PaintBrush(QPainter& painter, CellPos at, const SheetPlace& place) const;
    /// The pixels that PaintBrush touches.
    [[nodiscard]] QRect BrushRect(CellPos at, const SheetPlace& place) const;

  private:
    [[nodiscard]] std::vector<CellPos> BrushCells(CellPos at) const;
    [[nodiscard]] QColor PaintColorOf(int paint) const;
    void PaintEdits(QPainter& painter, const CellRect& shown, const SheetPlace& place) const;
    /// The paints of `shown` and one stipple more on all sides, as they would be once the areas
    /// were merged, while that is shown.
    [[nodiscard]] Grid<int> PaintsAround(const CellRect& shown) const;
    void PaintMergeBorders(QPainter& painter, const CellRect& shown, const SheetPlace& place) const;
    void PaintMerge(QPainter& painter, const CellRect& shown, const SheetPlace& place) const;
    void PaintHard(QPainter& painter, const CellRect& shown, const SheetPlace& place) const;
    void PaintOutlines(QPainter& painter, const CellRect& shown, const SheetPlace& place) const;
    void PaintFloating(QPainter& painter, const CellRect& shown, const SheetPlace& place) const;

    const TouchUpForm& form_;
};

}  // namespace vendrel
