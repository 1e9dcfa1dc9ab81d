#include "forms/template_shop.h"

#include <algorithm>
#include <set>
#include <utility>

#include "convert/stipple_conversion.h"
#include "paints/next_best.h"
#include "paints/paint_fields.h"
#include "paints/paint_sets.h"
#include "paints/palette_files.h"
#include "paints/restore.h"
#include "paints/template_file.h"
#include "paints/template_library.h"
#include "shelf/shelf_file.h"
#include "shell/paint_id.h"
#include "shell/scratch_place.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/letter_case.h"
#include "support/list.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

bool Matches(const PaintColor& paint, const PaintSearch& search, const std::string& lowerText) {
    if (!search.Set.empty() && paint.Mfg != search.Set) {
        return false;
    }
    return lowerText.empty() ||
           ToLower(paint.Mfg + '\n' + paint.PaintName + '\n' + paint.PaintCode).find(lowerText) !=
               std::string::npos;
}

void SortByNearness(std::vector<int>& rows, const PaintList& catalogue, Color near) {
    const PaintColor wanted{RedOf(near), GreenOf(near), BlueOf(near), "", "", "", 0};
    std::ranges::stable_sort(rows, {},
                             [&](int row) { return PaintDifference(wanted, catalogue[row]); });
}

// Every paint that the photo is matched to with the selected sets, in order of first use. Done on
// a copy of the workplace: palette, grid and picture of the work in hand stay as they are.
PaintList PaintsOfPhoto(const Workplace& place) {
    ScratchPlace scratch(place);
    scratch.State.KeepAllColors = true;
    scratch.State.WorkStage = 1;
    LoadColors(scratch.State, scratch.State, scratch.State);
    AutoChangeToStipples(scratch.Place);
    return scratch.State.PaintColors;
}

}  // namespace

void TemplateShop::Form_Load() {
    ReadOwned();
    ListAndChoose("");
    Search_Change({});
}

// Templates are no less useful where it cannot be told what is owned.
void TemplateShop::ReadOwned() {
    try {
        for (const ShelfPaint& paint : ReadShelf(place_.Folder).Paints) {
            owned_.emplace(IdOf(paint), paint.Label);
        }
    } catch (const Error& error) {
        place_.Screen.ShowMessage("Warning", error.what());
    }
}

std::optional<std::string> TemplateShop::OwnedAs(const PaintColor& paint) const {
    const auto found = owned_.find(IdOf(paint));
    return found == owned_.end() ? std::nullopt : std::optional(found->second);
}

int TemplateShop::Preselected() const {
    const WorkState& state = place_.State;
    const std::string& name =
        state.SelectedTemplate.empty() ? state.LastTemplate : state.SelectedTemplate;
    const auto found = std::ranges::find(controls_.TemplateList, name);
    return found == controls_.TemplateList.end()
               ? -1
               : static_cast<int>(found - controls_.TemplateList.begin());
}

std::string TemplateShop::Chosen() const {
    return controls_.TemplateIndex < 0 ? std::string()
                                       : At(controls_.TemplateList, controls_.TemplateIndex);
}

std::string TemplateShop::RequireChosen() const {
    if (controls_.TemplateIndex < 0) {
        throw Error("No template is chosen. Choose one in the list or add a new one.");
    }
    return Chosen();
}

void TemplateShop::ListAndChoose(std::string_view name) {
    controls_.TemplateList = ListTemplates(place_.Folder);
    const auto found = std::ranges::find(controls_.TemplateList, name);
    controls_.TemplateIndex = found == controls_.TemplateList.end()
                                  ? -1
                                  : static_cast<int>(found - controls_.TemplateList.begin());
    ReadChosen();
}

void TemplateShop::ReadChosen() {
    controls_.Paints.Clear();
    controls_.ChosenIsTemplate = false;
    if (controls_.TemplateIndex < 0) {
        return;
    }
    // Every file of the folder is listed, whatever its ending.
    const std::filesystem::path file = TemplatePath(place_.Folder, Chosen());
    if (!Stands(file)) {
        throw FileError(file,
                        "is not there: the file listed is no template, since it does not end in "
                        ".csv. Move it out of the templates folder.");
    }
    controls_.Paints = ReadPaints(place_.State, place_.Screen, file);
    controls_.ChosenIsTemplate = true;
}

void TemplateShop::TemplateList_Click(int entry) {
    if (entry >= 0 && entry < static_cast<int>(controls_.TemplateList.size())) {
        controls_.TemplateIndex = entry;
        place_.State->LastTemplate = Chosen();
        ReadChosen();
    }
}

void TemplateShop::AddTemplate_Click(std::string_view name) {
    CheckNewTemplateName(place_.Folder, name);
    WriteTemplate(TemplatePath(place_.Folder, name), PaintList());
    ListAndChoose(name);
}

void TemplateShop::RenameTemplate_Click(std::string_view name) {
    RenameTemplate(place_.State, place_.Folder, RequireChosen(), name);
    ListAndChoose(name);
}

void TemplateShop::DuplicateTemplate_Click(std::string_view name) {
    const PaintList paints = ReadTemplate(TemplatePath(place_.Folder, RequireChosen()));
    CheckNewTemplateName(place_.Folder, name);
    WriteTemplate(TemplatePath(place_.Folder, name), paints);
    ListAndChoose(name);
}

void TemplateShop::DeleteTemplate_Click() {
    const std::string name = RequireChosen();
    if (place_.Screen.Ask("Delete Template",
                          "Delete the template \"" + name + "\"? This cannot be taken back.")) {
        DeleteTemplate(place_.State, place_.State, place_.Folder, name);
        ListAndChoose("");
    }
}

void TemplateShop::Search_Change(const PaintSearch& search) {
    const std::string text = ToLower(search.Text);
    controls_.Found.clear();
    for (int row = 1; row <= place_.State->MasterCount; ++row) {
        const PaintColor& paint = place_.State->MasterColors[row];
        if (Matches(paint, search, text) && (!search.OwnedOnly || OwnedAs(paint))) {
            controls_.Found.push_back(row);
        }
    }
    if (search.Near) {
        SortByNearness(controls_.Found, place_.State->MasterColors, *search.Near);
    }
}

bool TemplateShop::MayOverwrite() {
    return controls_.ChosenIsTemplate ||
           place_.Screen.Ask("Not a Template",
                             "The file \"" + Chosen() + "\" is no template. Write over it?");
}

void TemplateShop::Store(PaintList paints) {
    if (!MayOverwrite()) {
        return;
    }
    for (PaintColor& paint : paints) {
        paint.CellCount = 0;
    }
    WriteTemplate(TemplatePath(place_.Folder, RequireChosen()), paints);
    controls_.Paints = std::move(paints);
    controls_.ChosenIsTemplate = true;
}

int TemplateShop::AddPaints_Click(const std::vector<int>& catalogueRows) {
    (void)RequireChosen();
    PaintList paints = controls_.Paints;
    std::set<PaintId> there;
    for (const PaintColor& paint : paints) {
        there.insert(IdOf(paint));
    }
    for (const int row : catalogueRows) {
        const PaintColor& paint = place_.State->MasterColors[row];
        if (there.insert(IdOf(paint)).second) {
            paints.Add(paint);
        }
    }
    const int added = paints.Count() - controls_.Paints.Count();
    if (added > 0) {
        Store(std::move(paints));
    }
    return added;
}

int TemplateShop::AddSets_Click(const std::vector<int>& catalogueRows) {
    std::set<std::string> sets;
    for (const int row : catalogueRows) {
        sets.insert(place_.State->MasterColors[row].Mfg);
    }
    std::vector<int> rows;
    for (int row = 1; row <= place_.State->MasterCount; ++row) {
        if (sets.contains(place_.State->MasterColors[row].Mfg)) {
            rows.push_back(row);
        }
    }
    return AddPaints_Click(rows);
}

void TemplateShop::RemovePaints_Click(const std::vector<int>& paints) {
    PaintList left;
    for (int paint = 1; paint <= controls_.Paints.Count(); ++paint) {
        if (std::ranges::find(paints, paint) == paints.end()) {
            left.Add(controls_.Paints[paint]);
        }
    }
    if (left.Count() < controls_.Paints.Count()) {
        Store(std::move(left));
    }
}

bool TemplateShop::MovePaints_Click(const std::vector<int>& paints, int by) {
    PaintList moved = controls_.Paints;
    const auto fits = [&](int paint) { return moved.Holds(paint) && moved.Holds(paint + by); };
    if (paints.empty() || !std::ranges::all_of(paints, fits)) {
        return false;
    }
    std::vector<int> order = paints;
    if (by > 0) {
        std::ranges::reverse(order);  // the last one makes room for those before it
    }
    for (const int paint : order) {
        std::swap(moved[paint], moved[paint + by]);
    }
    Store(std::move(moved));
    return true;
}

void TemplateShop::FillFromPhoto_Click() {
    const std::string name = RequireChosen();
    if (!place_.State->PictureLoaded) {
        throw Error("No photo is loaded. Load one with \"Load Photo\" in the Picture menu first.");
    }
    if (!controls_.Paints.Empty() &&
        !place_.Screen.Ask("Fill From Photo",
                           "Replace the " + std::to_string(controls_.Paints.Count()) +
                               " paints of \"" + name + "\" by those of the photo?")) {
        return;
    }
    Store(PaintsOfPhoto(place_));
}

void TemplateShop::Import_Click(const std::filesystem::path& file) {
    const PaintFile read = ReadPaletteFile(file);
    const std::string name =
        FreeTemplateName(place_.Folder, CleanTemplateName(file.stem().string()));
    WriteTemplate(TemplatePath(place_.Folder, name), read.Paints);
    ListAndChoose(name);
    for (const std::string& warning : read.Warnings) {
        place_.Screen.ShowMessage("Warning", warning);
    }
}

void TemplateShop::Export_Click(const std::filesystem::path& file) const {
    WriteWholeFile(file, GplText(RequireChosen(), controls_.Paints));
}

// A template in use may have been changed here, and the photo is to be converted again in any case.
void TemplateShop::Done_Click() {
    place_.Screen.CloseForm(FormId::TemplateShop);
    RestorePaintColors(place_);
}

std::vector<std::string> TemplateShop::Sets() const {
    std::vector<std::string> names;
    for (const PaintSet& set : place_.State->PaintSets) {
        if (!set.Name.empty()) {
            names.push_back(set.Name);
        }
    }
    return names;
}

}  // namespace vendrel
