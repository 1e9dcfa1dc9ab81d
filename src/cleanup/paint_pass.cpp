#include "cleanup/paint_pass.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "cleanup/cell_marking.h"
#include "cleanup/cells_by_paint.h"
#include "cleanup/join_corners.h"
#include "cleanup/neighbour_bounds.h"
#include "cleanup/painting_order.h"
#include "cleanup/pass_progress.h"
#include "cleanup/small_spots.h"
#include "cleanup/smart_clean.h"
#include "drawing/neighbours.h"
#include "drawing/stipple_brush.h"
#include "shell/busy_pointer.h"
#include "support/counter.h"

namespace vendrel {
namespace {

using enum MenuId;

// The menus that could start other work in the middle of a pass; back on when it ends, however
// it ends.
class MenusOff {
  public:
    explicit MenusOff(Menu& menu) : menu_(menu) { SetAll(false); }
    ~MenusOff() { SetAll(true); }
    MenusOff(const MenusOff&) = delete;
    MenusOff& operator=(const MenusOff&) = delete;

  private:
    void SetAll(bool enabled) {
        for (const MenuId id :
             {FileHeader, Difficulty, SetPaintMax, TemplateMenu, ShowAbout, EndItAll}) {
            menu_[id].Enabled = enabled;
        }
    }
    Menu& menu_;
};

void FindAreas(const Easel& easel, StippleGrid& grid, PaintPass& pass, const CellsByPaint& cells,
               PassProgress& progress) {
    easel.Screen.SetCaption("Finding Paintable Areas");
    pass.NextAreaNumber = 1;
    pass.TestCells = CellQueue(grid.Stipples.Across(), grid.Stipples.Down());
    for (int paint = 1; paint <= easel.Paints.PaintCount; ++paint) {
        MarkCells(easel, grid, pass, cells.Of(paint), progress);
        easel.Screen.Yield();
    }
    pass.AreaCount = pass.NextAreaNumber;
}

// One walk over the grid hands every cell to its area; row-major, so the members stay in order.
void CollectAreas(const Grid<StippleCell>& stipples, PaintPass& pass) {
    pass.Areas = OneBased<PaintArea>(pass.AreaCount);
    for (int y = 1; y <= stipples.Down(); ++y) {
        for (int x = 1; x <= stipples.Across(); ++x) {
            const StippleCell& cell = stipples(x, y);
            if (cell.AreaNumber < 1 || cell.AreaNumber > pass.AreaCount) {
                continue;
            }
            PaintArea& area = pass.Areas[cell.AreaNumber];
            CountUp(area.StippleCount, "stipples in one area",
                    "an easier difficulty or more final paints");
            area.ColorIndex = cell.ColorIndex;
            area.Members.push_back({x, y});
        }
    }
}

// Dots of all areas, area by area: they are wiped before the painting starts, so they are drawn
// only for somebody who watches.
void ShowAreas(const Easel& easel, const StippleGrid& grid, const PaintPass& pass) {
    for (const PaintArea& area : pass.Areas) {
        if (!easel.Screen.Watched()) {
            break;
        }
        for (const CellPos& member : area.Members) {
            const StippleCell& cell = grid.Stipples(member.X, member.Y);
            DrawOneStipple(easel, cell.X, cell.Y, cell.ColorIndex);
        }
    }
    easel.Screen.RefreshWorkFrame();
}

void SetUpAreas(const Easel& easel, const StippleGrid& grid, PaintPass& pass) {
    easel.Screen.SetCaption("Setting Up to Paint");
    CollectAreas(grid.Stipples, pass);
    ShowAreas(easel, grid, pass);
}

// The neighbours of a cell that carry its paint, whatever their area.
Directions LikePainted(const StippleGrid& grid, CellPos cell, int colorIndex) {
    Directions directions = 0;
    for (std::size_t d = 0; d < kNeighbours.size(); ++d) {
        const CellPos to{cell.X + kNeighbours[d].X, cell.Y + kNeighbours[d].Y};
        if (BrushMaySweep(kNeighbours[d], to, grid.Stipples.Across(), grid.Stipples.Down()) &&
            grid.CellMarks(to.X, to.Y).Visited &&
            grid.Stipples(to.X, to.Y).ColorIndex == colorIndex) {
            directions |= 1U << d;
        }
    }
    return directions;
}

void PaintOneCell(const Easel& easel, StippleGrid& grid, const PaintArea& area,
                  PassProgress& progress) {
    if (area.StippleCount == 1) {  // a lone dot, drawn with the loners
        grid.CellMarks(area.Members[0].X, area.Members[0].Y).Loner = true;
        progress.Step();
        return;
    }
    for (const CellPos& member : area.Members) {
        MoveSpot(easel, LikePainted(grid, member, area.ColorIndex),
                 grid.Stipples(member.X, member.Y), area.ColorIndex);
        progress.Step();
    }
}

// The last one, when no area is left, names paint 0.
OneBased<std::string> PaintingCaptions(const Palette& palette) {
    OneBased<std::string> captions(palette.PaintCount);
    for (int p = 0; p <= palette.PaintCount; ++p) {
        const PaintColor& paint = palette.PaintColors[p];
        captions[p] =
            "Painting with " + paint.Mfg + " " + paint.PaintName + " [" + std::to_string(p) + "]";
    }
    return captions;
}

void PaintAreas(const Easel& easel, StippleGrid& grid, OneBased<PaintArea>& areas,
                PassProgress& progress) {
    const OneBased<std::string> captions = PaintingCaptions(easel.Paints);
    PaintingOrder order(areas);
    for (;;) {
        const int area = order.GetBiggestCell(areas);
        const int paint = area == 0 ? 0 : areas[area].ColorIndex;
        easel.Screen.SetCaption(captions[paint]);
        if (area == 0) {
            return;
        }
        PaintOneCell(easel, grid, areas[area], progress);
    }
}

void RedrawAllLoners(const Easel& easel, StippleGrid& grid, const CellsByPaint& cells,
                     BrushShape shape) {
    for (int paint = 1; paint <= easel.Paints.PaintCount; ++paint) {
        RedrawLoners(easel, grid, paint, cells.Of(paint), shape);
    }
    easel.Screen.RefreshWorkFrame();
}

void CleanCorners(const Easel& easel, const StippleGrid& grid) {
    easel.Screen.SetCaption("Cleaning Up, Please Wait...");
    switch (easel.Settings.StippleSize) {
        case 4:
            SmartClean4(easel, grid);
            break;
        case 6:
            SmartClean6(easel, grid);
            break;
        case 8:
            SmartClean8(easel, grid);
            break;
        default:
            break;
    }
    easel.Screen.RefreshWorkFrame();
}

// What an earlier pass recorded must not show through in this one.
void EmptyPixelMap(PaintedPixels& pixels) {
    pixels.PrintPaints = {};
    std::ranges::fill(pixels.PixelMap.All(), MapPixel{});
}

}  // namespace

void PaintAllCells(Workplace& place) {
    WorkState& state = place.State;
    const Easel easel = EaselOf(place);
    const CellsByPaint cells(state.Stipples, state.PaintCount);
    EmptyPixelMap(state);
    {
        PassProgress progress(place.Screen, 2 * cells.CellCount());
        FindAreas(easel, state, state, cells, progress);
        SetUpAreas(easel, state, state);
        EraseToColor(easel, kBlack);
        RedrawAllLoners(easel, state, cells, BrushShape::Square);
        PaintAreas(easel, state, state.Areas, progress);
    }
    RedrawAllLoners(easel, state, cells, BrushShape::Rounded);
    CleanCorners(easel, state);
    FixSmallSpots(easel, state);
    if (state.PaintableKit) {
        JoinCorners(easel, state);
    }
    place.Screen.RefreshWorkFrame();
    place.MainMenu[PrintMenu].Enabled = true;
    place.MainMenu[PrintAll].Enabled = true;
    place.Screen.SetCaption("Vendrel -" + state.PictureName);
}

namespace {

// A pass that breaks off leaves areas half counted and half painted; a second one would take them
// for its own, and the painting would be a mixture.
class WholeOrNothing {
  public:
    explicit WholeOrNothing(Workplace& place) : place_(place) {}
    ~WholeOrNothing() {
        if (!done_) {
            WorkState& state = place_.State;
            for (StippleCell& cell : state.Stipples.All()) {
                cell.AreaNumber = 0;
            }
            std::ranges::fill(state.CellMarks.All(), CellMark{});
            state.Areas.Clear();
            EmptyPixelMap(state);
            place_.Frames->WorkFrame.Picture = place_.Frames->StippleFrame.Picture;
            place_.MainMenu[PaintItNow].Enabled = false;
            place_.Screen.SetCaption("Vendrel -" + state.PictureName);
        }
    }
    WholeOrNothing(const WholeOrNothing&) = delete;
    WholeOrNothing& operator=(const WholeOrNothing&) = delete;
    void Done() { done_ = true; }

  private:
    Workplace& place_;
    bool done_ = false;
};

}  // namespace

void PaintItNow_Click(Workplace& place) {
    const BusyPointer busy(place.Screen);
    WholeOrNothing pass(place);
    const MenusOff menusOff(place.MainMenu);
    place.Frames->WorkFrame.Picture = place.Frames->StippleFrame.Picture;
    PaintAllCells(place);
    place.State->PaintingDone = true;
    SetupMenuItems(place.MainMenu, 4);
    pass.Done();
}

}  // namespace vendrel
