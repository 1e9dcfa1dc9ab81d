#include "cleanup/paint_pass.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "cleanup/cell_marking.h"
#include "cleanup/cells_by_paint.h"
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

void FindAreas(const Workplace& place, const CellsByPaint& cells, PassProgress& progress) {
    WorkState& state = place.State;
    place.Screen.SetCaption("Finding Paintable Areas");
    state.NextAreaNumber = 1;
    state.TestCells = CellQueue(state.Stipples.Across(), state.Stipples.Down());
    for (int paint = 1; paint <= state.PaintCount; ++paint) {
        MarkCells(place, cells.Of(paint), progress);
        place.Screen.Yield();
    }
    state.AreaCount = state.NextAreaNumber;
}

// One walk over the grid hands every cell to its area; row-major, so the members stay in order.
void CollectAreas(WorkState& state) {
    state.Areas = OneBased<PaintArea>(state.AreaCount);
    for (int y = 1; y <= state.Stipples.Down(); ++y) {
        for (int x = 1; x <= state.Stipples.Across(); ++x) {
            const StippleCell& cell = state.Stipples(x, y);
            if (cell.AreaNumber < 1 || cell.AreaNumber > state.AreaCount) {
                continue;
            }
            PaintArea& area = state.Areas[cell.AreaNumber];
            CountUp(area.StippleCount, "stipples in one area",
                    "an easier difficulty or more final paints");
            area.ColorIndex = cell.ColorIndex;
            area.Members.push_back({x, y});
        }
    }
}

// Dots of all areas, area by area: they are wiped before the painting starts, so they are drawn
// only for somebody who watches.
void ShowAreas(const Workplace& place) {
    for (const PaintArea& area : place.State.Areas) {
        if (!place.Screen.Watched()) {
            break;
        }
        for (const CellPos& member : area.Members) {
            const StippleCell& cell = place.State.Stipples(member.X, member.Y);
            DrawOneStipple(place, cell.X, cell.Y, cell.ColorIndex);
        }
    }
    place.Screen.RefreshWorkFrame();
}

void SetUpAreas(const Workplace& place) {
    place.Screen.SetCaption("Setting Up to Paint");
    CollectAreas(place.State);
    ShowAreas(place);
}

// The neighbours of a cell that carry its paint, whatever their area.
Directions LikePainted(const WorkState& state, CellPos cell, int colorIndex) {
    Directions directions = 0;
    for (std::size_t d = 0; d < kNeighbours.size(); ++d) {
        const CellPos to{cell.X + kNeighbours[d].X, cell.Y + kNeighbours[d].Y};
        if (BrushMaySweep(kNeighbours[d], to, state.Stipples.Across(), state.Stipples.Down()) &&
            state.CellMarks(to.X, to.Y).Visited &&
            state.Stipples(to.X, to.Y).ColorIndex == colorIndex) {
            directions |= 1U << d;
        }
    }
    return directions;
}

void PaintOneCell(const Workplace& place, int areaNumber, PassProgress& progress) {
    WorkState& state = place.State;
    const PaintArea& area = state.Areas[areaNumber];
    if (area.StippleCount == 1) {  // a lone dot, drawn with the loners
        state.CellMarks(area.Members[0].X, area.Members[0].Y).Loner = true;
        progress.Step();
        return;
    }
    for (const CellPos& member : area.Members) {
        MoveSpot(place, LikePainted(state, member, area.ColorIndex), member, area.ColorIndex);
        progress.Step();
    }
}

// The last one, when no area is left, names paint 0.
OneBased<std::string> PaintingCaptions(const WorkState& state) {
    OneBased<std::string> captions(state.PaintCount);
    for (int p = 0; p <= state.PaintCount; ++p) {
        const PaintColor& paint = state.PaintColors[p];
        captions[p] =
            "Painting with " + paint.Mfg + " " + paint.PaintName + " [" + std::to_string(p) + "]";
    }
    return captions;
}

void PaintAreas(const Workplace& place, PassProgress& progress) {
    WorkState& state = place.State;
    const OneBased<std::string> captions = PaintingCaptions(state);
    PaintingOrder order(state.Areas);
    for (;;) {
        const int area = order.GetBiggestCell(state.Areas);
        const int paint = area == 0 ? 0 : state.Areas[area].ColorIndex;
        place.Screen.SetCaption(captions[paint]);
        if (area == 0) {
            return;
        }
        PaintOneCell(place, area, progress);
    }
}

void RedrawAllLoners(const Workplace& place, const CellsByPaint& cells, BrushShape shape) {
    for (int paint = 1; paint <= place.State.PaintCount; ++paint) {
        RedrawLoners(place, paint, cells.Of(paint), shape);
    }
    place.Screen.RefreshWorkFrame();
}

void CleanCorners(const Workplace& place) {
    place.Screen.SetCaption("Cleaning Up, Please Wait...");
    switch (place.State.StippleSize) {
        case 4:
            SmartClean4(place);
            break;
        case 6:
            SmartClean6(place);
            break;
        case 8:
            SmartClean8(place);
            break;
        default:
            break;
    }
    place.Screen.RefreshWorkFrame();
}

// What an earlier pass recorded must not show through in this one.
void EmptyPixelMap(WorkState& state) {
    std::ranges::fill(state.PixelMap.All(), MapPixel{});
}

}  // namespace

void PaintAllCells(const Workplace& place) {
    const CellsByPaint cells(place.State.Stipples, place.State.PaintCount);
    EmptyPixelMap(place.State);
    {
        PassProgress progress(place.Screen, 2 * cells.CellCount());
        FindAreas(place, cells, progress);
        SetUpAreas(place);
        EraseToColor(place, kBlack);
        RedrawAllLoners(place, cells, BrushShape::Square);
        PaintAreas(place, progress);
    }
    RedrawAllLoners(place, cells, BrushShape::Rounded);
    CleanCorners(place);
    FixSmallSpots(place);
    place.Screen.RefreshWorkFrame();
    place.MainMenu[PrintMenu].Enabled = true;
    place.MainMenu[PrintAll].Enabled = true;
    place.Screen.SetCaption("Vendrel -" + place.State.PictureName);
}

namespace {

// A pass that breaks off leaves areas half counted and half painted; a second one would take them
// for its own, and the painting would be a mixture.
class WholeOrNothing {
  public:
    explicit WholeOrNothing(const Workplace& place) : place_(place) {}
    ~WholeOrNothing() {
        if (!done_) {
            WorkState& state = place_.State;
            for (StippleCell& cell : state.Stipples.All()) {
                cell.AreaNumber = 0;
            }
            std::ranges::fill(state.CellMarks.All(), CellMark{});
            state.Areas.Clear();
            EmptyPixelMap(state);
            place_.Frames.WorkFrame.Picture = place_.Frames.StippleFrame.Picture;
            place_.MainMenu[PaintItNow].Enabled = false;
            place_.Screen.SetCaption("Vendrel -" + state.PictureName);
        }
    }
    WholeOrNothing(const WholeOrNothing&) = delete;
    WholeOrNothing& operator=(const WholeOrNothing&) = delete;
    void Done() { done_ = true; }

  private:
    const Workplace& place_;
    bool done_ = false;
};

}  // namespace

void PaintItNow_Click(const Workplace& place) {
    const BusyPointer busy(place.Screen);
    WholeOrNothing pass(place);
    const MenusOff menusOff(place.MainMenu);
    place.Frames.WorkFrame.Picture = place.Frames.StippleFrame.Picture;
    PaintAllCells(place);
    place.State.PaintingDone = true;
    SetupMenuItems(place.MainMenu, 4);
    pass.Done();
}

}  // namespace vendrel
