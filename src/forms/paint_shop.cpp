#include "forms/paint_shop.h"

#include <algorithm>
#include <string_view>

#include "convert/photo_import.h"
#include "forms/list_entries.h"
#include "paints/paint_list.h"
#include "paints/paint_sets.h"
#include "paints/template_file.h"
#include "shell/busy_pointer.h"
#include "shell/menu.h"
#include "shell/palette.h"
#include "support/list.h"

namespace vendrel {
namespace {

constexpr std::string_view kNoneSelected = "None Selected";
constexpr std::string_view kNoTemplates = "No Templates";

int IndexOf(const std::vector<std::string>& list, const std::string& entry) {
    const auto found = std::find(list.begin(), list.end(), entry);
    return found == list.end() ? -1 : static_cast<int>(found - list.begin());
}

void Select(Catalogue& catalogue, const std::string& name, bool selected) {
    for (PaintSet& set : catalogue.PaintSets) {
        if (set.Name == name) {
            set.Selected = selected;
        }
    }
}

}  // namespace

void PaintShop::Form_Load() {
    WorkState& state = place_.State;
    busy_ = true;
    controls_ = {};
    controls_.DecoFrameShown = true;
    // Touching up is on only while the shown photo has a grid.
    kit_ = place_.MainMenu[MenuId::ColorPickerSelect].Enabled ? std::optional(TakeChoice())
                                                              : std::nullopt;
    state.PaintShopLoaded = true;
    state.MfgSelected = !state.TemplateMode;
    FillSelectedPaintsList(state, state);
    for (const PaintSet& set : state.PaintSets) {
        if (!set.Name.empty()) {
            controls_.MfgList.push_back(set.Name);
        }
    }
    LoadTemplates();
    ShowSelected();
    controls_.DecoFrameShown = false;
    busy_ = false;
    ShowPalette();
}

// A template that cannot be read leaves an empty palette on show and the button off.
void PaintShop::ShowPalette() {
    SetPalette(place_.State, {});
    ShowMode();
    UpdatePaintColors();
    TransferPaint();
    ShowMode();
    UpdatePaintColors();
}

void PaintShop::ShowSelected() {
    controls_.SelectedPaintsList = place_.State->SelectedPaintsList;
    controls_.SelectedIndex = -1;
    if (controls_.SelectedPaintsList.empty()) {
        controls_.SelectedPaintsList.emplace_back(kNoneSelected);
    }
}

void PaintShop::ShowMode() {
    const bool sets = place_.State->MfgSelected;
    controls_.ListsEnabled = sets;
    controls_.TemplateListEnabled = !sets;
    controls_.TransferEnabled = sets && (controls_.MfgIndex >= 0 || controls_.SelectedIndex >= 0);
    controls_.AllDoneEnabled = sets || place_.State->PaintCount > 0;
}

void PaintShop::MfgList_Click(int set) {
    if (Holds(controls_.MfgList, set)) {
        controls_.MfgIndex = set;
        controls_.SelectedIndex = -1;
        controls_.TransferCaption = ">>";
        ShowMode();
    }
}

void PaintShop::SelectedPaintsList_Click(int set) {
    if (Holds(controls_.SelectedPaintsList, set) && !place_.State->SelectedPaintsList.empty()) {
        controls_.SelectedIndex = set;
        controls_.MfgIndex = -1;
        controls_.TransferCaption = "<<";
        ShowMode();
    }
}

// False when nothing may change.
bool PaintShop::ChangeSelection() {
    WorkState& state = place_.State;
    if (controls_.TransferCaption == ">>") {
        const std::string& name = At(controls_.MfgList, controls_.MfgIndex);
        if (IndexOf(state.SelectedPaintsList, name) < 0) {
            Select(state, name, true);
        }
        return true;
    }
    if (state.SelectedPaintsList.size() == 1) {
        place_.Screen.ShowMessage("Unable to Remove", "Cannot Remove Last Paint Set");
        return false;
    }
    Select(state, At(state.SelectedPaintsList, controls_.SelectedIndex), false);
    return true;
}

void PaintShop::Transfer_Click() {
    if (!controls_.TransferEnabled) {
        return;
    }
    controls_.DecoFrameShown = false;
    const BusyPointer busy(place_.Screen);
    if (ChangeSelection()) {
        FillSelectedPaintsList(place_.State, place_.State);
        SavePaintList(place_.State, place_.Folder);
        ShowSelected();
        ShowPalette();
    }
}

void PaintShop::MfgSelected_Click() {
    WorkState& state = place_.State;
    if (busy_ || state.MfgSelected) {
        return;
    }
    state.MfgSelected = true;
    state.TemplateMode = false;
    state.TemplateLoaded = false;
    // The template may have asked for fewer paints than the menu says.
    state.FinalColors = state.Chosen.FinalPaints;
    ShowPalette();
}

void PaintShop::UseTemplate_Click() {
    WorkState& state = place_.State;
    if (busy_ || !state.MfgSelected) {
        return;
    }
    state.MfgSelected = false;
    state.TemplateMode = true;
    ShowPalette();
}

void PaintShop::TemplateList_Click(int entry) {
    if (!UsesTemplate() || !Holds(controls_.TemplateList, entry) ||
        At(controls_.TemplateList, entry) == kNoTemplates) {
        return;
    }
    controls_.TemplateIndex = entry;
    place_.State->SelectedTemplate = At(controls_.TemplateList, entry);
    ShowPalette();
}

void PaintShop::TransferPaint() {
    if (place_.State->MfgSelected) {
        LoadColors(place_.State, place_.State, place_.State);
        return;
    }
    SetPalette(place_.State, {});
    if (controls_.TemplateIndex >= 0) {
        place_.State->SelectedTemplate = At(controls_.TemplateList, controls_.TemplateIndex);
        static_cast<void>(LoadTemplateColors(place_, place_.State->SelectedTemplate));
    }
}

void PaintShop::LoadTemplates() {
    const WorkState& state = place_.State;
    controls_.TemplateList = ListTemplates(place_.Folder);
    const std::string& wanted = state.TemplateMode ? state.SelectedTemplate : state.LastTemplate;
    controls_.TemplateIndex = wanted.empty() ? -1 : IndexOf(controls_.TemplateList, wanted);
    if (controls_.TemplateList.empty()) {
        controls_.TemplateList.emplace_back(kNoTemplates);
    }
}

void PaintShop::PaintPalette_Resize(int width, int height) {
    boxWidth_ = width;
    boxHeight_ = height;
    UpdatePaintColors();
}

void PaintShop::UpdatePaintColors() {
    WorkState& state = place_.State;
    controls_.PaletteCaption =
        (UsesTemplate() ? "Vendrel Template Paints [" : "Vendrel Selected Paints [") +
        std::to_string(state.PaintCount) + "]";
    if (UsesTemplate() && state.PaintCount == 0) {
        return;
    }
    controls_.Swatches =
        LayOutSwatches(boxWidth_, boxHeight_, state.PaintCount, place_.Screen.Screen().Twips.X);
    state.SwatchSize = controls_.Swatches.Size;
}

void PaintShop::AllDone_Click() {
    WorkState& state = place_.State;
    if (UsesTemplate()) {
        if (!LoadTemplateColors(place_, state.SelectedTemplate)) {
            controls_.AllDoneEnabled = false;
            return;
        }
    }
    state.TemplateLoaded = state.TemplateLoaded || UsesTemplate();
    if (state.PictureLoaded) {
        RefreshPhotoImage(place_.Frames, place_.Screen);
    }
    SetupMenuItems(place_.MainMenu, 2);
    place_.Screen.CloseForm(FormId::PaintShop);
}

PaintShop::Choice PaintShop::TakeChoice() const {
    const WorkState& state = place_.State;
    return {state.PaintColors, state.FinalColors, state.TemplateMode, state.TemplateLoaded,
            state.SelectedTemplate};
}

void PaintShop::PutChoice(const Choice& choice) {
    WorkState& state = place_.State;
    SetPalette(state, choice.Palette);
    state.FinalColors = choice.FinalColors;
    state.TemplateMode = choice.TemplateMode;
    state.MfgSelected = !choice.TemplateMode;
    state.TemplateLoaded = choice.TemplateLoaded;
    state.SelectedTemplate = choice.SelectedTemplate;
}

void PaintShop::QueryUnload() {
    if (kit_) {
        PutChoice(*kit_);
        place_.Screen.CloseForm(FormId::PaintShop);
        return;
    }
    if (!controls_.AllDoneEnabled) {
        MfgSelected_Click();
    }
    AllDone_Click();
}

const PaintColor* PaintShop::PaintAt(int swatch) const {
    const WorkState& state = place_.State;
    return state.PaintColors.Holds(swatch + 1) ? &state.PaintColors[swatch + 1] : nullptr;
}

}  // namespace vendrel
