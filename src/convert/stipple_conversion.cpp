#include "convert/stipple_conversion.h"

#include <string>
#include <utility>

#include "convert/cell_color.h"
#include "convert/photo_import.h"
#include "drawing/stipple_brush.h"
#include "paints/color_match.h"
#include "paints/nearest_paint.h"
#include "paints/reduction.h"
#include "paints/restore.h"
#include "shell/busy_pointer.h"
#include "shell/menu.h"
#include "shell/found_palette.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"
#include "support/error.h"

namespace vendrel {
namespace {

/// Turns photo colours into found colours.
class FoundPaints {
  public:
    explicit FoundPaints(Workplace& place)
        : place_(place), table_(place.State.PaintColors), foundAs_(place.State.PaintCount) {}

    /// Index into FoundColors of the paint nearest to `color`, added there when it is new.
    int Match(const Channels& color) {
        const int paint = table_.Find(color);
        int& found = foundAs_[paint];
        if (found == 0) {
            found = Find(place_.State.PaintColors[paint]);
        }
        return found;
    }

  private:
    // Paints of different sets that look the same are one found colour.
    int Find(const PaintColor& paint) {
        WorkState& state = place_.State;
        for (int k = 1; k <= state.FoundCount; ++k) {
            if (ColorOf(state.FoundColors[k]) == ColorOf(paint)) {
                return k;
            }
        }
        AddFoundColor(state, paint);
        state.FoundColors.Last().CellCount = 0;
        const std::string count = std::to_string(state.FoundCount);
        place_.Screen.SetCaption(state.FoundCount == 1
                                     ? "Found " + count + " so far."
                                     : "Matching Paint Sets to " + count + " Colors");
        return state.FoundCount;
    }

    Workplace& place_;
    NearestPaintTable table_;
    OneBased<int> foundAs_;  // per paint of the palette, 0 while it is not found
};

void SizeGrid(Workplace& place) {
    WorkState& state = place.State;
    const TwipsPerPixel twips = place.Screen.Screen().Twips;
    SetFoundColors(state, {});
    SetGrid(state, Grid<StippleCell>(state.PictureWidth / twips.X / state.StippleSize,
                                     state.PictureHeight / twips.Y / state.StippleSize));
}

void FillBlock(Workplace& place, const StippleCell& cell) {
    const int half = place.State.HalfStipple;
    place.Frames.WorkFrame.Picture.FillRect(cell.X - half, cell.Y - half, cell.X + half,
                                            cell.Y + half, kBlack);
}

void ConvertRow(Workplace& place, FoundPaints& found, int j) {
    WorkState& state = place.State;
    const Surface& photo = place.Frames.WorkFrame.Picture;
    const bool sampling = state.Chosen.Sample == Sampling::Pixel;
    const bool watched = place.Screen.Watched();
    const int size = state.StippleSize;
    const int half = state.HalfStipple;
    const int top = 1 + (j - 1) * size;
    for (int i = 1; i <= state.CellsAcross; ++i) {
        const int left = 1 + (i - 1) * size;
        const Channels color = sampling ? PixelColor(photo, left + half, top + half)
                                        : AverageColor(photo, left, top, size);
        StippleCell& cell = state.Stipples(i, j);
        cell.ColorIndex = found.Match(color);
        cell.X = left + half;
        cell.Y = top + half;
        FillBlock(place, cell);
        if (watched) {
            DrawTempStipple(place, cell.X, cell.Y, cell.ColorIndex);
        }
    }
}

void EndRow(Workplace& place, int row) {
    place.Screen.Yield();
    place.Screen.RefreshWorkFrame();
    place.Screen.ReportProgress(row, place.State.CellsDown);
}

void CheckPaints(Workplace& place) {
    if (place.State.FinalColors < 1 && !place.State.KeepAllColors) {
        throw Error("No number of final paints is chosen: choose Final Paints.");
    }
    if (place.State.PaintCount == 0) {
        RestorePaintColors(place);
    }
    if (place.State.PaintCount == 0) {
        throw Error(
            "There are no paints to paint with. Choose paint sets or a template in the Paint "
            "Shop.");
    }
}

int Convert(Workplace& place) {
    CheckPaints(place);
    RefreshPhotoImage(place);
    const BusyPointer busy(place.Screen);
    place.State.WorkStage = 1;
    place.State.StipplesMade = false;
    const int matched = ApplyStipples(place);
    DrawStipplePicture(place);
    SetupMenuItems(place.MainMenu, 3);
    place.MainMenu[MenuId::NextBestColors].Enabled = true;
    return matched;
}

}  // namespace

int ApplyStipples(Workplace& place) {
    WorkState& state = place.State;
    CheckPaints(place);
    place.Screen.SetCaption("Getting Colors");
    SizeGrid(place);
    FoundPaints found(place);
    for (int j = 1; j <= state.CellsDown; ++j) {
        ConvertRow(place, found, j);
        EndRow(place, j);
    }
    state.StipplesMade = true;
    const int matched = state.FoundCount;
    SetPalette(state, std::move(state.FoundColors));
    SetFoundColors(state, {});
    if (!state.KeepAllColors) {
        ReduceColors(place, state.FinalColors);
    }
    return matched;
}

void DrawStipplePicture(Workplace& place) {
    const WorkState& state = place.State;
    const BusyPointer busy(place.Screen);
    place.Screen.SetCaption("Redrawing Stipples");
    place.Screen.RefreshWorkFrame();
    for (int j = 1; j <= state.CellsDown; ++j) {
        for (int i = 1; i <= state.CellsAcross; ++i) {
            const StippleCell& cell = state.Stipples(i, j);
            DrawOneStipple(place, cell.X, cell.Y, cell.ColorIndex);
        }
        EndRow(place, j);
    }
    place.Screen.ReportProgress(0, 0);
    place.Screen.SetCaption("Vendrel -" + state.PictureName);
    place.Frames.StippleFrame.Picture = place.Frames.WorkFrame.Picture;
}

int ChangeToStipples_Click(Workplace& place) {
    return Convert(place);
}

int AutoChangeToStipples(Workplace& place) {
    return Convert(place);
}

}  // namespace vendrel
