#include "convert/paintable_stipples.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "paintable/make_paintable.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"

namespace vendrel {
namespace {

AreaTerms TermsFor(const WorkState& state, const Surface& photo) {
    const PrintScale scale = CanvasScale(state.Chosen, photo.Width());
    return {{SidesOf(photo.Width(), state.StippleSize, state.CellsAcross),
             SidesOf(photo.Height(), state.StippleSize, state.CellsDown)},
            LimitsInPixels(state.Chosen.Limits, scale),
            LimitsInPixels(ThirdOf(state.Chosen.Limits), scale)};
}

// Old paint, from 1, to new one; 0 for those that no stipple needs. Rewrites the palette.
OneBased<int> DropUnneeded(WorkState& state, const ValueGrid& paints) {
    OneBased<int> newIndex(state.PaintCount);
    for (const int paint : paints.All()) {
        newIndex[paint + 1] = 1;
    }
    PaintList kept;
    for (int paint = 1; paint <= state.PaintCount; ++paint) {
        if (newIndex[paint] != 0) {
            kept.Add(state.PaintColors[paint]);
            newIndex[paint] = kept.Count();
        }
    }
    SetPalette(state, std::move(kept));
    return newIndex;
}

double MeanSeen(const StipplePicture& picture, const SeenTable& table, const ValueGrid& paints) {
    double sum = 0;
    for (std::size_t i = 0; i < paints.All().size(); ++i) {
        sum += table.Of(picture.Colors.All()[i])[static_cast<std::size_t>(paints.All()[i])];
    }
    return sum / kSeenUnit / static_cast<double>(paints.All().size());
}

}  // namespace

void MakeStipplesPaintable(Workplace& place, const SeenStipples& seen) {
    WorkState& state = place.State;
    StipplePicture picture{PaintsOf(state), {}, state.Protected};
    picture.Colors = ValueGrid(state.CellsAcross - 1, state.CellsDown - 1);
    std::ranges::copy(seen.Distinct.IndexOf, picture.Colors.All().begin());
    place.Screen.SetCaption("Making Areas Paintable");
    const ValueGrid paints =
        MakePaintable(picture, seen.Table, TermsFor(state, place.Frames->CaptureFrame.Picture),
                      state.Chosen.Detail);
    state.SeenPerStipple = MeanSeen(picture, seen.Table, paints);
    const OneBased<int> newIndex = DropUnneeded(state, paints);
    for (int y = 1; y <= state.CellsDown; ++y) {
        for (int x = 1; x <= state.CellsAcross; ++x) {
            state.Stipples(x, y).ColorIndex = newIndex[paints(x - 1, y - 1) + 1];
        }
    }
    state.PaintableKit = true;
}

}  // namespace vendrel
