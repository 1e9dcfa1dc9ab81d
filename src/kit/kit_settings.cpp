#include "kit/kit_settings.h"

#include <algorithm>
#include <string>

#include "convert/settings.h"
#include "kitfile/take_kit.h"
#include "paints/paint_sets.h"
#include "paints/template_file.h"
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

// Those it was chosen from, whatever the catalogue and the template have by now.
void TakeKitPaints(WorkState& state, const KitFile& kit) {
    TakeSource(state, state, kit.Source);
    SetPalette(state, kit.Choice);
    if (kit.Chosen.FinalPaints == 0) {
        state.FinalColors = kit.FinalColors;
    }
}

}  // namespace

void ApplySettings(Workplace& place, const KitOptions& options) {
    SetStippleSize(place, TraitsOf(options.Chosen.Level).StippleSize);
    place.State->Chosen = options.Chosen;
    place.State->FinalColors = options.Chosen.FinalPaints;
    if (options.Template) {
        SelectTemplate(place, *options.Template);
    } else if (!options.Sets.empty()) {
        SelectSets(place.State, options.Sets);
    } else if (options.From) {
        TakeKitPaints(place.State, *options.From);
    }
}

}  // namespace vendrel
