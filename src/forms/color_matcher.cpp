#include "forms/color_matcher.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "convert/stipple_conversion.h"
#include "output/chart_contents.h"
#include "paints/paint_sets.h"
#include "paints/template_file.h"
#include "paints/template_library.h"
#include "shell/scratch_place.h"
#include "support/error.h"
#include "touchup/recovery.h"

namespace vendrel {
namespace {

void RequireGrid(const WorkState& state) {
    if (!state.PictureLoaded || state.Stipples.Across() < 1 || state.PaintCount == 0) {
        throw Error(
            "The photo has no stipples yet. Choose \"Change To Stipples\" in the Picture menu "
            "first.");
    }
}

std::vector<int> CountStipples(const WorkState& state) {
    std::vector<int> counts(state.PaintColors.size());
    for (int y = 1; y <= state.Stipples.Down(); ++y) {
        for (int x = 1; x <= state.Stipples.Across(); ++x) {
            ++counts[static_cast<std::size_t>(state.Stipples(x, y).ColorIndex)];
        }
    }
    return counts;
}

Surface DrawSmall(const WorkState& state) {
    Surface small(state.Stipples.Across(), state.Stipples.Down());
    for (int y = 1; y <= state.Stipples.Down(); ++y) {
        for (int x = 1; x <= state.Stipples.Across(); ++x) {
            const auto paint = static_cast<std::size_t>(state.Stipples(x, y).ColorIndex);
            small.Set(x - 1, y - 1, ColorOf(state.PaintColors[paint]));
        }
    }
    return small;
}

}  // namespace

void ColorMatcher::Form_Load() {
    const WorkState& state = place_.State;
    RequireGrid(state);
    if (!state.PaintShopLoaded) {
        FillSelectedPaintsList(place_.State);
    }
    const std::vector<int> counts = CountStipples(state);
    const std::vector<int> shares = SharesInTenths(std::span(counts).subspan(1));
    rows_.assign(1, {});
    for (std::size_t k = 1; k < state.PaintColors.size(); ++k) {
        rows_.push_back({state.PaintColors[k], state.PaintColors[k], counts[k], shares[k - 1]});
    }
    chosen_ = 1;
    Changed();
}

void ColorMatcher::Source_Click(MatchSource source) {
    source_ = source;
    FindOffers();
}

void ColorMatcher::PaintList_Click(int paint) {
    if (paint >= 1 && paint < static_cast<int>(rows_.size())) {
        chosen_ = paint;
        FindOffers();
    }
}

std::vector<PaintColor> ColorMatcher::Palette() const {
    std::vector<PaintColor> palette;
    for (const MatcherRow& row : rows_) {
        palette.push_back(row.Current);
        palette.back().CellCount = 0;
    }
    return palette;
}

// The palette as it is, and what the other paints may be put back to: were one of those offered,
// putting it back would have it there twice.
std::vector<PaintColor> ColorMatcher::Taken() const {
    std::vector<PaintColor> taken = Palette();
    for (std::size_t k = 1; k < rows_.size(); ++k) {
        if (static_cast<int>(k) != chosen_) {
            taken.push_back(rows_[k].Original);
        }
    }
    return taken;
}

void ColorMatcher::FindOffers() {
    const WorkState& state = place_.State;
    std::vector<PaintColor> candidates;
    for (const PaintColor& paint : std::span(state.MasterColors).subspan(1)) {
        if (source_ == MatchSource::WholeCatalogue ||
            std::ranges::find(state.SelectedPaintsList, paint.Mfg) !=
                state.SelectedPaintsList.end()) {
            candidates.push_back(paint);
        }
    }
    offers_ = FindNextBest(rows_[static_cast<std::size_t>(chosen_)].Original, candidates, Taken(),
                           kOffers);
}

void ColorMatcher::Exchange_Click(int offer) {
    if (offer >= 0 && offer < static_cast<int>(offers_.size())) {
        rows_[static_cast<std::size_t>(chosen_)].Current =
            offers_[static_cast<std::size_t>(offer)].Paint;
        Changed();
    }
}

void ColorMatcher::PutBack_Click() {
    MatcherRow& row = rows_[static_cast<std::size_t>(chosen_)];
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
    SetPalette(scratch.State, Palette());
    AutoChangeToStipples(scratch.Place);
    preview_ = DrawSmall(scratch.State);
}

void ColorMatcher::AcceptButton_Click() {
    if (rows_.size() <= 1) {
        return;
    }
    GridReplacement replacement(place_);
    if (!replacement.Allowed()) {
        return;
    }
    place_.Screen.CloseForm(FormId::ColorMatcher);
    SetPalette(place_.State, Palette());
    AutoChangeToStipples(place_);
    replacement.Done();
}

void ColorMatcher::CancelButton_Click() {
    place_.Screen.CloseForm(FormId::ColorMatcher);
}

std::string ColorMatcher::SaveTemplate_Click() {
    RequireGrid(place_.State);
    const std::string name =
        FreeTemplateName(place_, CleanTemplateName(place_.State.PictureName + " " +
                                                   std::string(DifficultyWord(place_.State)) + " " +
                                                   std::to_string(rows_.size() - 1) + " Paints"));
    WriteTemplate(TemplatePath(place_, name), Palette());
    return name;
}

}  // namespace vendrel
