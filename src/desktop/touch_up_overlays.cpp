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

enum class Side { None, Light, Dark };  // dark between two dark paints

struct AreaSides {
    Lines Light;
    Lines Dark;
};

// Sides in one line are one line: a whole view has too many to be drawn one by one.
template <class SideAt, class LineOf>
void AddRuns(AreaSides& sides, const int first, const int last, SideAt sideAt, LineOf lineOf) {
    int from = first;
    Side side = first <= last ? sideAt(first) : Side::None;
    for (int i = first + 1; i <= last + 1; ++i) {
        const Side next = i <= last ? sideAt(i) : Side::None;
        if (i <= last && next == side) {
            continue;
        }
        if (side != Side::None) {
            (side == Side::Dark ? sides.Dark : sides.Light).append(lineOf(from, i));
        }
        from = i;
        side = next;
    }
}

// What `between(one, other)` says of the stipples' sides; of those at the edge of what is shown,
// too.
template <class Between>
AreaSides SidesBetween(const CellRect& shown, const SheetPlace& place, Between between) {
    const auto left = [&](int x) { return place.RectOf(CellPos{x, 1}).left(); };
    const auto top = [&](int y) { return place.RectOf(CellPos{1, y}).top(); };
    AreaSides sides;
    for (int x = shown.Left - 1; x <= shown.Right; ++x) {
        const int at = left(x + 1);
        AddRuns(
            sides, shown.Top, shown.Bottom,
            [&](int y) {
                return between(CellPos{x, y}, CellPos{x + 1, y});
            },
            [&](int from, int end) { return QLine(at, top(from), at, top(end)); });
    }
    for (int y = shown.Top - 1; y <= shown.Bottom; ++y) {
        const int at = top(y + 1);
        AddRuns(
            sides, shown.Left, shown.Right,
            [&](int x) {
                return between(CellPos{x, y}, CellPos{x, y + 1});
            },
            [&](int from, int end) { return QLine(left(from), at, left(end), at); });
    }
    return sides;
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
                        [&has](CellPos one, CellPos other) {
                            return has(one) != has(other) ? Side::Light : Side::None;
                        })
        .Light;
}

}  // namespace

void FillRuns(QPainter& painter, const std::vector<CellPos>& cells, const CellRect& shown,
              const SheetPlace& place, const QBrush& brush) {
    CellRect run;
    for (const CellPos& at : cells) {
        if (!IsShown(at, shown)) {
            continue;
        }
        if (!run.Empty() && (run.Top != at.Y || run.Right + 1 != at.X)) {
            painter.fillRect(place.RectOf(run), brush);
            run = {};
        }
        run.Include(at);
    }
    if (!run.Empty()) {
        painter.fillRect(place.RectOf(run), brush);
    }
}

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
            .Brush = form_.Controls().Brush,
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
    std::vector<CellPos> edited;
    for (int y = shown.Top; y <= shown.Bottom; ++y) {
        for (int x = shown.Left; x <= shown.Right; ++x) {
            if (isEdited({x, y})) {
                edited.push_back({x, y});
            }
        }
    }
    FillRuns(painter, edited, shown, place, tint);
    painter.setPen(QPen(kMarkColor, 1));
    painter.drawLines(OutlineOf(shown, place, isEdited));
}

Grid<int> TouchUpOverlays::PaintsAround(const CellRect& shown) const {
    const EditSheet& sheet = form_.Sheet();
    Grid<int> paints(shown.Right - shown.Left + 3, shown.Bottom - shown.Top + 3);
    const CellPos off{shown.Left - 2, shown.Top - 2};
    for (int y = 1; y <= paints.Down(); ++y) {
        for (int x = 1; x <= paints.Across(); ++x) {
            const CellPos at{x + off.X, y + off.Y};
            paints(x, y) = sheet.Holds(at) ? sheet.PaintAt(at) : 0;
        }
    }
    for (const CellChange& change : form_.Areas().Changes()) {
        if (IsShown({change.X, change.Y},
                    {shown.Left - 1, shown.Top - 1, shown.Right + 1, shown.Bottom + 1})) {
            paints(change.X - off.X, change.Y - off.Y) = change.To;
        }
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
    FillRuns(painter, form_.Areas().Hard(), shown, place, hatch);
}

void TouchUpOverlays::PaintOutlines(QPainter& painter, const CellRect& shown,
                                    const SheetPlace& place) const {
    // Black would not show between dark paints.
    OneBased<char> dark;
    for (int i = 1; i <= form_.Controls().Palette.Count(); ++i) {
        dark.Add(qGray(PaintColorOf(i).rgb()) < kDarkGray ? 1 : 0);
    }
    const Grid<int> paints = PaintsAround(shown);
    const auto paintAt = [&](CellPos at) {
        return paints(at.X - shown.Left + 2, at.Y - shown.Top + 2);
    };
    const auto isDark = [&dark](int paint) { return dark.Holds(paint) && dark[paint] != 0; };
    const AreaSides sides = SidesBetween(shown, place, [&](CellPos one, CellPos other) {
        const int a = paintAt(one);
        const int b = paintAt(other);
        return a == b ? Side::None : isDark(a) && isDark(b) ? Side::Dark : Side::Light;
    });
    painter.setPen(QPen(QColor(Qt::black), 1));
    painter.drawLines(sides.Light);
    painter.setPen(QPen(QColor(Qt::lightGray), 1));
    painter.drawLines(sides.Dark);
}

void TouchUpOverlays::PaintFloating(QPainter& painter, const CellRect& shown,
                                    const SheetPlace& place) const {
    const FloatingPatch* floating = form_.Selection().Floating();
    if (floating == nullptr) {
        return;
    }
    const QBrush hole(Qt::gray, Qt::DiagCrossPattern);
    FillRuns(painter, floating->Source.Cells(), shown, place, hole);
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
    CellRect bounds;
    for (const CellPos& cell : cells) {
        bounds.Include(cell);
        if (paints) {
            painter.fillRect(place.RectOf(cell), PaintColorOf(form_.Controls().Brush.Paint));
        }
    }
    const auto has = [&cells](CellPos cell) {
        return std::ranges::find(cells, cell) != cells.end();
    };
    DrawTwoToned(painter, OutlineOf(bounds, place, has));
}

}  // namespace vendrel
