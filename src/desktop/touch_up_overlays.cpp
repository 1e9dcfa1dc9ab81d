#include "desktop/touch_up_overlays.h"

#include <QPen>
#include <algorithm>
#include <vector>

namespace vendrel {
namespace {

using Lines = QVector<QLine>;

constexpr int kDarkGray = 80;  // of 255
constexpr int kTint = 60;      // of 255, how far a tint covers

bool IsShown(CellPos at, const CellRect& shown) {
    return at.X >= shown.Left && at.X <= shown.Right && at.Y >= shown.Top && at.Y <= shown.Bottom;
}

// The sides between stipples that `differ(one, other)`; one further on all sides, for the edge of
// what is shown may be such a side.
template <class Differ>
Lines SidesBetween(const CellRect& shown, const SheetPlace& place, Differ differ) {
    Lines lines;
    for (int y = shown.Top - 1; y <= shown.Bottom; ++y) {
        for (int x = shown.Left - 1; x <= shown.Right; ++x) {
            const QRect rect = place.RectOf(CellPos{x, y});
            const int right = rect.right() + 1;
            const int bottom = rect.bottom() + 1;
            if (y >= shown.Top && differ(CellPos{x, y}, CellPos{x + 1, y})) {
                lines.append({right, rect.top(), right, bottom});
            }
            if (x >= shown.Left && differ(CellPos{x, y}, CellPos{x, y + 1})) {
                lines.append({rect.left(), bottom, right, bottom});
            }
        }
    }
    return lines;
}

// White dashes over black show on every paint.
void DrawTwoToned(QPainter& painter, const Lines& lines) {
    painter.setPen(QPen(Qt::black, 1));
    painter.drawLines(lines);
    QPen dashes(Qt::white, 1, Qt::CustomDashLine);
    dashes.setDashPattern({3, 3});
    painter.setPen(dashes);
    painter.drawLines(lines);
}

template <class Has>
Lines OutlineOf(const CellRect& shown, const SheetPlace& place, Has has) {
    return SidesBetween(shown, place,
                        [&has](CellPos one, CellPos other) { return has(one) != has(other); });
}

// Stipples side by side as one rectangle.
template <class Fill>
void ForRuns(const std::vector<CellPos>& cells, const CellRect& shown, Fill fill) {
    CellRect run;
    for (const CellPos& at : cells) {
        if (!IsShown(at, shown)) {
            continue;
        }
        if (!run.Empty() && (run.Top != at.Y || run.Right + 1 != at.X)) {
            fill(run);
            run = {};
        }
        run.Include(at);
    }
    if (!run.Empty()) {
        fill(run);
    }
}

}  // namespace

QColor TouchUpOverlays::PaintColorOf(int paint) const {
    const OneBased<TouchUpPaint>& palette = form_.Controls().Palette;
    const Color color = palette[palette.Holds(paint) ? paint : 0].Swatch;
    return {RedOf(color), GreenOf(color), BlueOf(color)};
}

OverlayState TouchUpOverlays::State() const {
    const TouchUpSelection& selection = form_.Selection();
    return {.Outlines = form_.Areas().Controls().Outlines,
            .Edits = form_.Controls().ShowEdits,
            .Changes = form_.Areas().Changes().size(),
            .Hard = form_.Areas().Hard().size(),
            .Selected = selection.Cells().Count(),
            .Tool = form_.Controls().Tool,
            .BrushSize = form_.Controls().Brush.Size,
            .Moving = selection.Dragging() || selection.Floating() != nullptr};
}

void TouchUpOverlays::Paint(QPainter& painter, const CellRect& shown,
                            const SheetPlace& place) const {
    if (form_.Controls().ShowEdits) {
        PaintEdits(painter, shown, place);
    }
    PaintMerge(painter, shown, place);
    if (form_.Areas().Controls().Outlines) {
        PaintOutlines(painter, shown, place);
    }
    PaintMergeBorders(painter, shown, place);
    PaintHard(painter, shown, place);
    PaintFloating(painter, shown, place);
    const CellSet& selected = form_.Selection().Cells();
    if (form_.Selection().Any() && form_.Selection().Floating() == nullptr) {
        DrawTwoToned(painter,
                     OutlineOf(shown, place, [&selected](CellPos at) { return selected.Has(at); }));
    }
}

// Faint enough to tell the paints, with an outline that finds a single stipple.
void TouchUpOverlays::PaintEdits(QPainter& painter, const CellRect& shown,
                                 const SheetPlace& place) const {
    QColor tint = kMarkColor;
    tint.setAlpha(kTint);
    const auto isEdited = [this](CellPos at) { return form_.IsEdited(at); };
    for (int y = shown.Top; y <= shown.Bottom; ++y) {
        for (int x = shown.Left; x <= shown.Right; ++x) {
            if (isEdited({x, y})) {
                painter.fillRect(place.RectOf(CellPos{x, y}), tint);
            }
        }
    }
    painter.setPen(QPen(kMarkColor, 1));
    painter.drawLines(OutlineOf(shown, place, isEdited));
}

Grid<int> TouchUpOverlays::PaintsShown() const {
    const EditSheet& sheet = form_.Sheet();
    Grid<int> paints(sheet.Across(), sheet.Down());
    for (int y = 1; y <= sheet.Down(); ++y) {
        for (int x = 1; x <= sheet.Across(); ++x) {
            paints(x, y) = sheet.PaintAt({x, y});
        }
    }
    for (const CellChange& change : form_.Areas().Changes()) {
        paints(change.X, change.Y) = change.To;
    }
    return paints;
}

void TouchUpOverlays::PaintMerge(QPainter& painter, const CellRect& shown,
                                 const SheetPlace& place) const {
    for (const CellChange& change : form_.Areas().Changes()) {
        if (IsShown({change.X, change.Y}, shown)) {
            painter.fillRect(place.RectOf(CellPos{change.X, change.Y}), PaintColorOf(change.To));
        }
    }
}

void TouchUpOverlays::PaintMergeBorders(QPainter& painter, const CellRect& shown,
                                        const SheetPlace& place) const {
    const std::vector<CellChange>& changes = form_.Areas().Changes();
    if (changes.empty()) {
        return;
    }
    CellSet changed(form_.Sheet().Across(), form_.Sheet().Down());
    for (const CellChange& change : changes) {
        changed.Add({change.X, change.Y});
    }
    painter.setPen(QPen(kMarkColor, 1));
    painter.drawLines(OutlineOf(shown, place, [&changed](CellPos at) { return changed.Has(at); }));
}

void TouchUpOverlays::PaintHard(QPainter& painter, const CellRect& shown,
                                const SheetPlace& place) const {
    const QBrush hatch(kMarkColor, place.Edge < 6 ? Qt::Dense4Pattern : Qt::BDiagPattern);
    ForRuns(form_.Areas().Hard(), shown,
            [&](const CellRect& run) { painter.fillRect(place.RectOf(run), hatch); });
}

void TouchUpOverlays::PaintOutlines(QPainter& painter, const CellRect& shown,
                                    const SheetPlace& place) const {
    const Grid<int> paints = PaintsShown();
    const auto paintAt = [&paints](CellPos at) {
        return paints.Holds(at.X, at.Y) ? paints(at.X, at.Y) : 0;
    };
    // Black would not show between dark paints.
    const auto isDark = [&](CellPos at) {
        return qGray(PaintColorOf(paintAt(at)).rgb()) < kDarkGray;
    };
    for (const bool dark : {false, true}) {
        const Lines lines = SidesBetween(shown, place, [&](CellPos one, CellPos other) {
            return paintAt(one) != paintAt(other) && (isDark(one) && isDark(other)) == dark;
        });
        painter.setPen(QPen(dark ? QColor(Qt::lightGray) : QColor(Qt::black), 1));
        painter.drawLines(lines);
    }
}

void TouchUpOverlays::PaintFloating(QPainter& painter, const CellRect& shown,
                                    const SheetPlace& place) const {
    const FloatingPatch* floating = form_.Selection().Floating();
    if (floating == nullptr) {
        return;
    }
    const QBrush hole(Qt::gray, Qt::DiagCrossPattern);
    ForRuns(floating->Source.Cells(), shown,
            [&](const CellRect& run) { painter.fillRect(place.RectOf(run), hole); });
    const CellPatch& patch = floating->Patch;
    const auto paintAt = [&](CellPos at) {
        const int x = at.X - floating->Corner.X + 1;
        const int y = at.Y - floating->Corner.Y + 1;
        return x >= 1 && y >= 1 && patch.Cells.Holds(x, y) ? patch.Cells(x, y) : 0;
    };
    for (int y = shown.Top; y <= shown.Bottom; ++y) {
        for (int x = shown.Left; x <= shown.Right; ++x) {
            if (const int paint = paintAt({x, y}); paint != 0) {
                const PaintColor& color = patch.Paints[paint];
                painter.fillRect(place.RectOf(CellPos{x, y}),
                                 QColor(color.Red, color.Green, color.Blue));
            }
        }
    }
    DrawTwoToned(painter, OutlineOf(shown, place, [&](CellPos at) { return paintAt(at) != 0; }));
}

std::vector<CellPos> TouchUpOverlays::BrushCells(CellPos at) const {
    const TouchUpControls& shown = form_.Controls();
    return shown.Tool == TouchUpTool::Brush ? CellsUnder(shown.Brush, at)
                                            : std::vector<CellPos>{at};
}

QRect TouchUpOverlays::BrushRect(CellPos at, const SheetPlace& place) const {
    CellRect cells;
    for (const CellPos& cell : BrushCells(at)) {
        cells.Include(cell);
    }
    return place.RectOf(cells).adjusted(-2, -2, 3, 3);
}

void TouchUpOverlays::PaintBrush(QPainter& painter, CellPos at, const SheetPlace& place) const {
    const std::vector<CellPos> cells = BrushCells(at);
    const TouchUpTool tool = form_.Controls().Tool;
    const bool paints =
        tool == TouchUpTool::Brush || tool == TouchUpTool::Fill || tool == TouchUpTool::Replace;
    QRegion region;
    for (const CellPos& cell : cells) {
        region += place.RectOf(cell);
    }
    if (paints) {
        painter.setClipRegion(region, Qt::IntersectClip);
        painter.fillRect(region.boundingRect(), PaintColorOf(form_.Controls().Brush.Paint));
        painter.setClipping(false);
    }
    CellRect bounds;
    for (const CellPos& cell : cells) {
        bounds.Include(cell);
    }
    const auto has = [&cells](CellPos cell) {
        return std::ranges::find(cells, cell) != cells.end();
    };
    DrawTwoToned(painter, OutlineOf(bounds, place, has));
}

}  // namespace vendrel
