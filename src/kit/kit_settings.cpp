#include "kit/kit_settings.h"

#include <algorithm>
#include <string>
#include <utility>

#include "convert/settings.h"
#include "kitfile/take_kit.h"
#include "paints/owned_paints.h"
#include "paints/paint_sets.h"
#include "paints/template_file.h"
#include "shelf/shelf_file.h"
#include "shell/palette.h"
#include "support/error.h"

namespace vendrel {
namespace {

[[noreturn]] void RefuseSet(const Catalogue& catalogue, const std::string& name) {
    std::string sets;
    for (const PaintSet& set : catalogue.PaintSets) {
        if (!set.Name.empty()) {
            sets += (sets.empty() ? "\"" : ", \"") + set.Name + "\"";
        }
    }
    throw UsageError("There is no paint set \"" + name + "\". The catalogue has " + sets + ".");
}

// In the order of the catalogue's sets, as the paint shop would list them.
void SelectSets(WorkState& state, const std::vector<std::string>& names) {
    for (PaintSet& set : state.PaintSets) {
        set.Selected = false;
    }
    for (const std::string& name : names) {
        const auto set = std::ranges::find(state.PaintSets, name, &PaintSet::Name);
        if (set == state.PaintSets.end()) {
            RefuseSet(state, name);
        }
        set->Selected = true;
    }
    FillSelectedPaintsList(state, state);
    LoadColors(state, state, state);
}

void SelectTemplate(Workplace& place, const std::string& name) {
    WorkState& state = place.State;
    state.MfgSelected = false;
    state.TemplateMode = true;
    state.SelectedTemplate = name;
    if (!LoadTemplateColors(place, name)) {
        throw FileError(TemplatePath(place.Folder, name),
                        "has no paints. Choose another template.");
    }
    state.TemplateLoaded = true;
}

Shelf ShelfInCatalogue(const Workplace& place) {
    Shelf shelf = ReadShelf(place.Folder);
    SeeInCatalogue(shelf, place.State->MasterColors);
    return shelf;
}

void PutOwnedFirst(Workplace& place) {
    WorkState& state = place.State;
    state.OwnedPaints = OwnedPaints(ShelfInCatalogue(place));
    if (state.OwnedPaints.Empty()) {
        RefuseEmptyShelf(place.Folder);
    }
    PaintList paints = state.PaintColors;
    JoinOwned(paints, state.OwnedPaints);
    SetPalette(state, std::move(paints));
}

// Those it was chosen from, whatever the catalogue and the template have by now.
void TakeKitPaints(WorkState& state, const KitFile& kit) {
    TakeSource(state, state, kit.Source);
    SetPalette(state, kit.Choice);
    state.OwnedPaints = OwnedOf(kit);
    if (kit.Chosen.FinalPaints == 0) {
        state.FinalColors = kit.FinalColors;
    }
}

}  // namespace

void ApplySettings(Workplace& place, const KitOptions& options) {
    SetStippleSize(place, TraitsOf(options.Chosen.Level).StippleSize);
    place.State->Chosen = options.Chosen;
    place.State->FinalColors = options.Chosen.FinalPaints;
    if (options.OwnedOnly) {
        const Shelf shelf = ShelfInCatalogue(place);
        (void)WriteShelfTemplate(place.Folder, shelf);
        SelectTemplate(place, std::string(kShelfTemplate));
    } else if (options.Template) {
        SelectTemplate(place, *options.Template);
    } else if (!options.Sets.empty()) {
        SelectSets(place.State, options.Sets);
    } else if (options.From) {
        TakeKitPaints(place.State, *options.From);
    }
    if (options.BuyingNamed) {
        PutOwnedFirst(place);
    }
}

}  // namespace vendrel
