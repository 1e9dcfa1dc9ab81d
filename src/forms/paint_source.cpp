#include "forms/paint_source.h"

#include <algorithm>

#include "cleanup/paint_pass.h"
#include "convert/photo_import.h"
#include "convert/stipple_conversion.h"
#include "forms/small_picture.h"
#include "paints/owned_paints.h"
#include "paints/paint_sets.h"
#include "paints/restore.h"
#include "paints/template_file.h"
#include "shelf/shelf_file.h"
#include "shell/palette.h"
#include "shell/scratch_place.h"
#include "support/error.h"
#include "touchup/laid_edits.h"

namespace vendrel {
namespace {

void TakeSets(WorkState& state) {
    state.MfgSelected = true;
    state.TemplateMode = false;
    state.TemplateLoaded = false;
    // The template may have asked for fewer paints than the menu says.
    state.FinalColors = state.Chosen.FinalPaints;
}

void TakeTemplate(WorkState& state, const std::string& name) {
    state.MfgSelected = false;
    state.TemplateMode = true;
    state.TemplateLoaded = true;
    state.SelectedTemplate = name;
    state.FinalColors = state.Chosen.FinalPaints;
}

double MeanSeenOf(const Workplace& place) {
    const WorkState& state = place.State;
    const SeenStipples seen = LookAtPhoto(place);
    double sum = 0;
    std::size_t stipple = 0;
    for (int y = 1; y <= state.CellsDown; ++y) {
        for (int x = 1; x <= state.CellsAcross; ++x) {
            const auto paint = static_cast<std::size_t>(state.Stipples(x, y).ColorIndex - 1);
            sum += seen.Table.Of(seen.Distinct.IndexOf[stipple++])[paint];
        }
    }
    return sum / static_cast<double>(std::max<std::size_t>(stipple, 1)) / kSeenUnit;
}

}  // namespace

const std::vector<std::string>& PaintSourceForm::SelectedSets() const {
    return place_.State->SelectedPaintsList;
}

void PaintSourceForm::ReadOwned() {
    shelf_ = ReadShelf(place_.Folder);
    SeeInCatalogue(shelf_, place_.State->MasterColors);
    owned_ = OwnedPaints(shelf_);
}

void PaintSourceForm::Form_Load() {
    WorkState& state = place_.State;
    ReadOwned();
    if (!state.PaintShopLoaded) {
        FillSelectedPaintsList(state, state);
    }
    templates_ = ListTemplates(place_.Folder);
    std::erase(templates_, kShelfTemplate);
    const bool owned = state.TemplateMode && state.SelectedTemplate == kShelfTemplate;
    wish_ = {owned                ? PaintsFrom::Owned
             : state.TemplateMode ? PaintsFrom::Template
                                  : PaintsFrom::Sets,
             owned ? "" : state.SelectedTemplate, state.Chosen.Match == Matching::ByEye,
             state.Chosen.Buying};
    if (wish_.Template.empty() && !templates_.empty()) {
        wish_.Template = templates_.front();
    }
}

void PaintSourceForm::Choose(const PaintSourceWish& wish) {
    wish_ = wish;
}

// The shelf's paints reach the palette the way of a template, but in a copy nothing is written.
void PaintSourceForm::Apply(Workplace& place) const {
    WorkState& state = place.State;
    const bool owned = wish_.From == PaintsFrom::Owned;
    state.Chosen.Buying = wish_.Buying;
    state.Chosen.Buying.Asked = wish_.Buying.Asked && !owned;
    const bool byEye = wish_.ByEye || state.Chosen.Buying.Asked;
    state.Chosen.Match = byEye ? Matching::ByEye : Matching::Plain;
    if (state.Chosen.Buying.Asked) {
        state.OwnedPaints = owned_;
    }
    if (wish_.From == PaintsFrom::Sets) {
        TakeSets(state);
    } else {
        TakeTemplate(state, owned ? std::string(kShelfTemplate) : wish_.Template);
    }
    if (owned && &place != &place_) {
        SetPalette(state, owned_);
        state.FinalColors = SetMaxFinalColors(state.Chosen, owned_.Count());
        return;
    }
    RestorePaintColors(place);
}

std::optional<PaintSourceFigures> PaintSourceForm::Figures() const {
    const bool needsOwned = wish_.From == PaintsFrom::Owned || wish_.Buying.Asked;
    if (!place_.State->PictureLoaded || (needsOwned && owned_.Empty()) ||
        (wish_.From == PaintsFrom::Template && wish_.Template.empty())) {
        return std::nullopt;
    }
    ScratchPlace scratch(place_);
    Apply(scratch.Place);
    if (scratch.State.PaintColors.Empty()) {
        return std::nullopt;
    }
    RefreshPhotoImage(scratch.Frames, scratch.Place.Screen);
    scratch.State.Chosen.Paintable = false;
    (void)MatchStipples(scratch.Place);
    const std::vector<bool> owned = WhichAreOwned(scratch.State.PaintColors, owned_);
    return PaintSourceFigures{.Paints = scratch.State.PaintCount,
                              .ToBuy = static_cast<int>(std::ranges::count(owned, false)),
                              .Seen = MeanSeenOf(scratch.Place),
                              .Picture = SmallPicture(scratch.State)};
}

void PaintSourceForm::AcceptButton_Click() {
    const bool owned = wish_.From == PaintsFrom::Owned;
    if ((owned || wish_.Buying.Asked) && owned_.Empty()) {
        RefuseEmptyShelf(place_.Folder);
    }
    if (wish_.From == PaintsFrom::Template && wish_.Template.empty()) {
        throw Error(
            "There is no template yet. Make one in the Template Shop (Tools), or choose "
            "paint sets.");
    }
    if (owned) {
        (void)WriteShelfTemplate(place_.Folder, shelf_);
    }
    const bool converted = place_.MainMenu[MenuId::ColorPickerSelect].Enabled;
    const bool painted = place_.MainMenu[MenuId::PrintMenu].Enabled;
    place_.Screen.CloseForm(FormId::PaintSource);
    Apply(place_);
    if (!converted) {
        return;
    }
    AutoChangeToStipples(place_);
    EditsWereLaidOn(place_);
    if (painted) {
        PaintItNow_Click(place_);
    }
}

void PaintSourceForm::CancelButton_Click() {
    place_.Screen.CloseForm(FormId::PaintSource);
}

std::string PaintSourceText(const WorkState& state) {
    std::string text;
    if (state.TemplateMode && state.SelectedTemplate == kShelfTemplate) {
        return "What I own";
    }
    if (state.TemplateMode) {
        text = "Template: " + state.SelectedTemplate;
    } else {
        std::vector<std::string> sets;
        for (const PaintSet& set : state.PaintSets) {
            if (set.Selected && !set.Name.empty()) {
                sets.push_back(set.Name);
            }
        }
        text = sets.empty() ? "Paint sets" : sets.front();
        if (sets.size() > 1) {
            text += " and " + std::to_string(sets.size() - 1) + " more";
        }
    }
    return text + (state.Chosen.Buying.Asked ? ", owned first" : "");
}

}  // namespace vendrel
