#include "forms/paintable_preview.h"

#include <utility>

#include "cleanup/paint_pass.h"
#include "convert/paintable_stipples.h"
#include "convert/photo_import.h"
#include "convert/stipple_conversion.h"
#include "edits/kit_base.h"
#include "paints/restore.h"
#include "regions/labelling.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"

namespace vendrel {

void PaintablePreview::Make(const Settings& wish, const ValueGrid& isProtected) {
    WorkState& state = scratch_.State;
    state.Chosen = wish;
    if (!converted_ || converted_->Match != wish.Match ||
        converted_->FinalPaints != wish.FinalPaints) {
        Convert(wish);
    }
    SetPalette(state, converted_->Palette);
    SetGrid(state, converted_->Stipples);
    state.Protected = isProtected;
    MakeStipplesPaintable(scratch_.Place, converted_->Seen);
    LayOverConversion(state);
    PaintAllCells(scratch_.Place);
    state.PaintingDone = true;
    figures_ = MeasureKit(scratch_.Place);
}

void PaintablePreview::Convert(const Settings& wish) {
    WorkState& state = scratch_.State;
    state.FinalColors = wish.FinalPaints;
    RefreshPhotoImage(scratch_.Frames, scratch_.Place.Screen);
    RestorePaintColors(scratch_.Place);
    Matched matched = MatchStipples(scratch_.Place);
    converted_ = {wish.Match, wish.FinalPaints, state.PaintColors, state.Stipples,
                  matched.Seen ? std::move(*matched.Seen) : LookAtPhoto(scratch_.Place)};
}

int CountGridAreas(const StippleGrid& grid) {
    return FindRegions(PaintsOf(grid)).Count();
}

}  // namespace vendrel
