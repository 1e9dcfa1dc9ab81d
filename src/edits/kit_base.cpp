#include "edits/kit_base.h"

#include <algorithm>
#include <utility>

namespace vendrel {
namespace {

constexpr std::size_t kMostStipplesRemembered = 4'000'000;

}  // namespace

void KeepBase(KitEdits& edits, const Palette& palette, const StippleGrid& grid) {
    edits.BasePaints = palette.PaintColors;
    edits.Base = grid.Stipples;
}

void StartBase(KitEdits& edits, EditPast& past, const Palette& palette, const StippleGrid& grid) {
    ForgetEdits(edits, past);
    KeepBase(edits, palette, grid);
}

void RequireBase(KitEdits& edits, EditPast& past, const Palette& palette, const StippleGrid& grid) {
    if (edits.BasePaints.Empty() || edits.Base.Across() != grid.CellsAcross ||
        edits.Base.Down() != grid.CellsDown) {
        StartBase(edits, past, palette, grid);
    }
}

void ForgetEdits(KitEdits& edits, EditPast& past) {
    edits = {};
    past = {};
}

std::shared_ptr<const KitEdits> BaseOf(const KitEdits& edits) {
    return std::make_shared<KitEdits>(KitEdits{edits.BasePaints, edits.Base, {}, edits.Converted});
}

void AddMoment(EditPast& past, EditMoment moment) {
    past.Moments.resize(past.DoneMoments);
    past.Moments.push_back(std::move(moment));
    std::size_t stipples = 0;
    const auto kept = std::find_if(past.Moments.rbegin(), past.Moments.rend(),
                                   [&stipples](const EditMoment& step) {
                                       stipples += step.Before->Cells.size();
                                       return stipples > kMostStipplesRemembered;
                                   });
    past.Moments.erase(past.Moments.begin(), kept.base());
    past.DoneMoments = past.Moments.size();
}

LayReport LayOnBase(const KitEdits& edits, Palette& palette, StippleGrid& grid,
                    const LayTerms& terms) {
    LaidEdits laid = LayEdits({edits.BasePaints, edits.Base}, edits.Edits, terms);
    SetPalette(palette, std::move(laid.Paints));
    SetGrid(grid, std::move(laid.Cells));
    return std::move(laid.Report);
}

void LayOverConversion(WorkState& state) {
    KeepBase(state, state, state);
    state.Converted = true;
    state.LaidOn.clear();
    if (!state.Edits.Empty()) {
        state.LaidOn =
            Sentence(LayOnBase(state, state, state, {.Exchanged = ExchangedPaints::Leave}));
    }
}

}  // namespace vendrel
