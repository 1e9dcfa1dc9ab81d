#include "convert/stipple_conversion.h"

#include <span>
#include <string>
#include <utility>
#include <vector>

#include "convert/cell_color.h"
#include "convert/match_by_eye.h"
#include "convert/paintable_stipples.h"
#include "convert/photo_import.h"
#include "drawing/stipple_brush.h"
#include "edits/kit_base.h"
#include "paints/color_match.h"
#include "paints/nearest_paint.h"
#include "paints/owned_paints.h"
#include "paints/reduction.h"
#include "paints/restore.h"
#include "shell/busy_pointer.h"
#include "shell/found_palette.h"
#include "shell/menu.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"
#include "support/error.h"

namespace vendrel {
namespace {

/// Turns photo colours into found colours.
class FoundPaints {
  public:
    FoundPaints(const Palette& palette, FoundPalette& foundPalette, Ui& screen)
        : palette_(palette),
          found_(foundPalette),
          screen_(screen),
          table_(palette.PaintColors),
          foundAs_(palette.PaintCount) {}

    /// Index into FoundColors of the paint nearest to `color`, added there when it is new.
    int Match(const Channels& color) {
        const int paint = table_.Find(color);
        int& found = foundAs_[paint];
        if (found == 0) {
            found = Find(palette_.PaintColors[paint]);
        }
        return found;
    }

  private:
    // Paints of different sets that look the same are one found colour.
    int Find(const PaintColor& paint) {
        for (int k = 1; k <= found_.FoundCount; ++k) {
            if (ColorOf(found_.FoundColors[k]) == ColorOf(paint)) {
                return k;
            }
        }
        AddFoundColor(found_, paint);
        found_.FoundColors.Last().CellCount = 0;
        const std::string count = std::to_string(found_.FoundCount);
        screen_.SetCaption(found_.FoundCount == 1 ? "Found " + count + " so far."
                                                  : "Matching Paint Sets to " + count + " Colors");
        return found_.FoundCount;
    }

    const Palette& palette_;
    FoundPalette& found_;
    Ui& screen_;
    NearestPaintTable table_;
    OneBased<int> foundAs_;  // per paint of the palette, 0 while it is not found
};

void SizeGrid(Workplace& place) {
    WorkState& state = place.State;
    const TwipsPerPixel twips = place.Screen.Screen().Twips;
    SetFoundColors(state, {});
    SetGrid(state, Grid<StippleCell>(state.PictureWidth / twips.X / state.StippleSize,
                                     state.PictureHeight / twips.Y / state.StippleSize));
    state.PaintableKit = false;
}

// Sampled before the first stipple is drawn over the photo.
std::vector<Color> SampleStipples(const Surface& photo, const WorkState& state) {
    return StippleColors(photo, {state.CellsAcross, state.CellsDown}, state.StippleSize,
                         state.Chosen.Sample);
}

template <class T>
std::span<const T> RowOf(const std::vector<T>& cells, const WorkState& state, int j) {
    const auto across = static_cast<std::size_t>(state.CellsAcross);
    return std::span(cells).subspan(static_cast<std::size_t>(j - 1) * across, across);
}

// Puts row j of the stipples into its place and clears the picture below it.
void LayOutRow(Surface& picture, WorkState& state, int j) {
    const int size = state.StippleSize;
    const int top = 1 + (j - 1) * size;
    picture.FillRect(1, top, 1 + state.CellsAcross * size, top + 2 * state.HalfStipple, kBlack);
    for (int i = 1; i <= state.CellsAcross; ++i) {
        StippleCell& cell = state.Stipples(i, j);
        cell.X = 1 + (i - 1) * size + state.HalfStipple;
        cell.Y = top + state.HalfStipple;
    }
}

void ConvertRow(Workplace& place, FoundPaints& found, std::span<const Color> colors, int j) {
    WorkState& state = place.State;
    const Easel easel = EaselOf(place);
    const bool watched = place.Screen.Watched();
    LayOutRow(easel.Picture, state, j);
    for (int i = 1; i <= state.CellsAcross; ++i) {
        StippleCell& cell = state.Stipples(i, j);
        Channels color;
        GetRgb(colors[static_cast<std::size_t>(i - 1)], color.Red, color.Green, color.Blue);
        cell.ColorIndex = found.Match(color);
        if (watched) {
            DrawTempStipple(easel, state, cell.X, cell.Y, cell.ColorIndex);
        }
    }
}

void EndRow(Ui& screen, int row, int rows) {
    screen.Yield();
    screen.RefreshWorkFrame();
    screen.ReportProgress(row, rows);
}

void CheckPaints(Workplace& place) {
    if (place.State->FinalColors < 1 && !place.State->KeepAllColors) {
        throw Error("No number of final paints is chosen: choose Final Paints.");
    }
    if (place.State->PaintCount == 0) {
        RestorePaintColors(place);
    }
    if (place.State->PaintCount == 0) {
        throw Error(
            "There are no paints to paint with. Choose paint sets or a template in the Paint "
            "Shop.");
    }
}

Matched ApplyPlainly(Workplace& place) {
    WorkState& state = place.State;
    FoundPaints found(state, state, place.Screen);
    const std::vector<Color> colors = SampleStipples(place.Frames->WorkFrame.Picture, state);
    for (int j = 1; j <= state.CellsDown; ++j) {
        ConvertRow(place, found, RowOf(colors, state, j), j);
        EndRow(place.Screen, j, state.CellsDown);
    }
    state.StipplesMade = true;
    const int matched = state.FoundCount;
    SetPalette(state, std::move(state.FoundColors));
    SetFoundColors(state, {});
    if (!state.KeepAllColors) {
        ReduceColors(state, state, place.Screen, state.FinalColors);
    }
    return {matched, {}};
}

void PlaceRow(Workplace& place, std::span<const int> paints, int j) {
    WorkState& state = place.State;
    const Easel easel = EaselOf(place);
    LayOutRow(easel.Picture, state, j);
    for (int i = 1; i <= state.CellsAcross; ++i) {
        StippleCell& cell = state.Stipples(i, j);
        cell.ColorIndex = paints[static_cast<std::size_t>(i - 1)];
        if (place.Screen.Watched()) {
            DrawColorStipple(easel, state, i, j, ColorOf(state.PaintColors[cell.ColorIndex]));
        }
    }
}

BuyTerms BuyTermsOf(const WorkState& state) {
    const OwnedFirst& buying = state.Chosen.Buying;
    if (!buying.Asked) {
        return {};
    }
    return {WhichAreOwned(state.PaintColors, state.OwnedPaints), buying.Worth, buying.MostToBuy};
}

// Which paints suit a photo shows only in all its stipples together: they are matched first and
// shown afterwards.
Matched ApplyByEye(Workplace& place) {
    WorkState& state = place.State;
    const std::vector<Color> stipples = SampleStipples(place.Frames->WorkFrame.Picture, state);
    EyeMatch match =
        MatchByEye(stipples, state.PaintColors,
                   state.KeepAllColors ? state.PaintCount : state.FinalColors, BuyTermsOf(state));
    SetPalette(state, std::move(match.Palette));
    for (int j = 1; j <= state.CellsDown; ++j) {
        PlaceRow(place, RowOf(match.Paints, state, j), j);
        EndRow(place.Screen, j, state.CellsDown);
    }
    state.StipplesMade = true;
    return {match.Considered, std::move(match.Seen)};
}

class KitStaysPaintable {
  public:
    explicit KitStaysPaintable(WorkState& state)
        : chosen_(state.Chosen.Paintable), before_(state.Chosen.Paintable) {
        chosen_ = chosen_ || state.PaintableKit;
    }
    ~KitStaysPaintable() { chosen_ = before_; }
    KitStaysPaintable(const KitStaysPaintable&) = delete;
    KitStaysPaintable& operator=(const KitStaysPaintable&) = delete;

  private:
    bool& chosen_;
    bool before_;
};

}  // namespace

Matched MatchStipples(Workplace& place) {
    CheckPaints(place);
    place.Screen.SetCaption("Getting Colors");
    SizeGrid(place);
    return place.State->Chosen.Match == Matching::ByEye ? ApplyByEye(place) : ApplyPlainly(place);
}

SeenStipples LookAtPhoto(const Workplace& place) {
    const WorkState& state = place.State;
    return LookAt(
        StippleColors(place.Frames->CaptureFrame.Picture, {state.CellsAcross, state.CellsDown},
                      state.StippleSize, state.Chosen.Sample),
        state.PaintColors);
}

int ApplyStipples(Workplace& place) {
    const Matched matched = MatchStipples(place);
    if (place.State->Chosen.Paintable) {
        MakeStipplesPaintable(place, matched.Seen ? *matched.Seen : LookAtPhoto(place));
    }
    return matched.Paints;
}

void DrawStipplePicture(Workplace& place) {
    const StippleGrid& grid = place.State;
    const Easel easel = EaselOf(place);
    const BusyPointer busy(place.Screen);
    place.Screen.SetCaption("Redrawing Stipples");
    place.Screen.RefreshWorkFrame();
    for (int j = 1; j <= grid.CellsDown; ++j) {
        for (int i = 1; i <= grid.CellsAcross; ++i) {
            const StippleCell& cell = grid.Stipples(i, j);
            DrawOneStipple(easel, cell.X, cell.Y, cell.ColorIndex);
        }
        EndRow(place.Screen, j, grid.CellsDown);
    }
    place.Screen.ReportProgress(0, 0);
    place.Screen.SetCaption("Vendrel -" + place.State->PictureName);
    place.Frames->StippleFrame.Picture = easel.Picture;
}

int ChangeToStipples_Click(Workplace& place) {
    CheckPaints(place);
    if (place.State->ShapedByGrid) {
        (void)LoadNewPicture(place);  // what is converted afresh has the photo's own shape
    }
    RefreshPhotoImage(place.Frames, place.Screen);
    const BusyPointer busy(place.Screen);
    place.State->WorkStage = 1;
    place.State->StipplesMade = false;
    const int matched = ApplyStipples(place);
    LayOverConversion(place.State);
    DrawStipplePicture(place);
    SetupMenuItems(place.MainMenu, 3);
    place.MainMenu[MenuId::NextBestColors].Enabled = true;
    return matched;
}

int AutoChangeToStipples(Workplace& place) {
    const KitStaysPaintable stays(place.State);
    return ChangeToStipples_Click(place);
}

}  // namespace vendrel
