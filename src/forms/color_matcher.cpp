#include "forms/color_matcher.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "convert/stipple_conversion.h"
#include "edits/kit_base.h"
#include "edits/layer_recorder.h"
#include "forms/require_grid.h"
#include "forms/small_picture.h"
#include "output/chart_contents.h"
#include "paints/paint_sets.h"
#include "paints/template_file.h"
#include "paints/template_library.h"
#include "shell/palette.h"
#include "shell/scratch_place.h"
#include "shell/stipple_grid.h"
#include "shell/symbol_of.h"
#include "support/error.h"
#include "support/list.h"
#include "touchup/laid_edits.h"

namespace vendrel {
namespace {

bool IsExchanged(const EditLayer& edits, const PaintColor& paint) {
    return std::ranges::any_of(edits.Exchanges, [&paint](const PaintExchange& exchange) {
        return SamePaint(exchange.From, paint);
    });
}

}  // namespace

void ColorMatcher::Form_Load() {
    const WorkState& state = place_.State;
    RequireGrid(state);
    if (!state.PaintShopLoaded) {
        FillSelectedPaintsList(place_.State, place_.State);
    }
    rows_.Clear();
    for (int k = 1; k <= state.PaintCount; ++k) {
        rows_.Add({.Original = state.PaintColors[k],
                   .Current = state.PaintColors[k],
                   .Symbol = SymbolOf(state.PaintColors, k)});
    }
    chosen_ = 1;
    Changed();
}

void ColorMatcher::Source_Click(MatchSource source) {
    source_ = source;
    FindOffers();
}

void ColorMatcher::PaintList_Click(int paint) {
    if (rows_.Holds(paint)) {
        chosen_ = paint;
        FindOffers();
    }
}

PaintList ColorMatcher::Palette() const {
    PaintList palette;
    for (const MatcherRow& row : rows_) {
        palette.Add(row.Current);
        palette.Last().CellCount = 0;
    }
    return palette;
}

// The palette as it is, and what the other paints may be put back to: were one of those offered,
// putting it back would have it there twice.
PaintList ColorMatcher::Taken() const {
    PaintList taken = Palette();
    for (int k = 1; k <= rows_.Count(); ++k) {
        if (k != chosen_) {
            taken.Add(rows_[k].Original);
        }
    }
    return taken;
}

void ColorMatcher::FindOffers() {
    const WorkState& state = place_.State;
    std::vector<PaintColor> candidates;
    for (const PaintColor& paint : state.MasterColors) {
        if (source_ == MatchSource::WholeCatalogue ||
            std::ranges::find(state.SelectedPaintsList, paint.Mfg) !=
                state.SelectedPaintsList.end()) {
            candidates.push_back(paint);
        }
    }
    offers_ = FindNextBest(rows_[chosen_].Original, candidates, Taken(), kOffers);
}

void ColorMatcher::Exchange_Click(int offer) {
    if (Holds(offers_, offer)) {
        rows_[chosen_].Current = At(offers_, offer).Paint;
        Changed();
    }
}

void ColorMatcher::PutBack_Click() {
    MatcherRow& row = rows_[chosen_];
    row.Current = row.Original;
    Changed();
}

void ColorMatcher::PutAllBack_Click() {
    for (MatcherRow& row : rows_) {
        row.Current = row.Original;
    }
    Changed();
}

void ColorMatcher::Changed() {
    FindOffers();
    ShowPreview();
}

bool ColorMatcher::AnyExchanged() const {
    return std::ranges::any_of(rows_, &MatcherRow::Exchanged);
}

void ColorMatcher::ShowPreview() {
    ScratchPlace scratch(place_);
    Exchange(scratch.Place);
    preview_ = SmallPicture(scratch.State);
    CountRows(scratch.State);
}

// The conversion lists the paints in the order it meets them, and only those it meets.
void ColorMatcher::CountRows(const WorkState& converted) {
    const OneBased<int> counts = CountStipples(converted.Stipples, converted.PaintCount);
    const std::vector<int> shares = SharesInTenths(counts.Entries());
    for (MatcherRow& row : rows_) {
        row.Stipples = 0;
        row.ShareTenths = 0;
        for (int k = 1; k <= converted.PaintCount; ++k) {
            const PaintColor& paint = converted.PaintColors[k];
            if (ColorOf(paint) == ColorOf(row.Current) && SamePaint(paint, row.Current)) {
                row.Stipples = counts[k];
                row.ShareTenths = At(shares, k - 1);
            }
        }
    }
}

// The photo is matched anew to the paints exchanged; what was painted by hand is repainted, and so
// will be what later palettes bring.
void ColorMatcher::Exchange(Workplace& place) const {
    WorkState& state = place.State;
    RequireBase(state, state, state, state);
    EditMoment step{.Name = "Color Matcher",
                    .Before = std::make_shared<EditLayer>(state.Edits),
                    .After = {},
                    .BaseBefore = BaseOf(state),
                    .BaseAfter = {}};
    LayerRecorder recorder({state.BasePaints, state.Base}, state.Edits);
    PaintList palette = state.BasePaints;
    for (int row = 1; row <= rows_.Count(); ++row) {
        const PaintColor& original = rows_[row].Original;
        const PaintColor& current = rows_[row].Current;
        if (!rows_[row].Exchanged()) {
            continue;
        }
        const int from = PaintIndex(palette).Find(original);
        if (from > 0 && !IsExchanged(state.Edits, original)) {
            palette[from] = current;
        }
        recorder.Exchange(recorder.NumberOf(original), recorder.NumberOf(current),
                          StipplesPaintedWith(state, row));
    }
    state.Edits = recorder.Layer();
    SetPalette(state, std::move(palette));
    AutoChangeToStipples(place);
    if (AnyExchanged()) {
        step.After = std::make_shared<EditLayer>(state.Edits);
        step.BaseAfter = BaseOf(state);
        AddMoment(state, std::move(step));
    }
}

void ColorMatcher::AcceptButton_Click() {
    if (rows_.Empty()) {
        return;
    }
    place_.Screen.CloseForm(FormId::ColorMatcher);
    Exchange(place_);
    EditsWereLaidOn(place_);
}

void ColorMatcher::CancelButton_Click() {
    place_.Screen.CloseForm(FormId::ColorMatcher);
}

std::string ColorMatcher::SaveTemplate_Click() {
    RequireGrid(place_.State);
    const std::string name = FreeTemplateName(
        place_.Folder, CleanTemplateName(place_.State->PictureName + " " +
                                         std::string(DifficultyWord(place_.State)) + " " +
                                         std::to_string(rows_.Count()) + " Paints"));
    WriteTemplate(TemplatePath(place_.Folder, name), Palette());
    return name;
}

}  // namespace vendrel
