#include "forms/needs_of_kits.h"

#include "cleanup/paint_pass.h"
#include "forms/small_picture.h"
#include "kitfile/kit_needs.h"
#include "kitfile/kit_photo.h"
#include "plan/planned_kit.h"
#include "shell/quiet_ui.h"
#include "shell/scratch_place.h"
#include "startup/start_up.h"
#include "support/error.h"

namespace vendrel {
namespace {

KitNeeds NeedsOfPainted(const Workplace& place, const Exporter& fonts, const PlanSettings& plan) {
    PlannedKit planned(place, fonts, plan);
    return {place.State->PictureName, place.State->PaintColors, planned.Needs(), plan.Use,
            planned.Marks(),          plan.InInches()};
}

}  // namespace

KitNeeds NeedsOfKitAtHand(const Workplace& place, const Exporter& fonts, const PlanSettings& plan) {
    if (IsPainted(place)) {
        return NeedsOfPainted(place, fonts, plan);
    }
    ScratchPlace scratch(place);
    PaintItNow_Click(scratch.Place);
    return NeedsOfPainted(scratch.Place, fonts, plan);
}

KitNeeds NeedsOfKitFile(const Workplace& place, const Exporter& fonts,
                        const std::filesystem::path& file) {
    const KitFile kit = ReadKitFile(file);
    const FoundPhoto photo = FindKitPhoto(place.Folder, kit.Photo);
    if (!photo.Problem.empty()) {
        throw FileError(file, photo.Problem);
    }
    WorkState state;
    static_cast<Catalogue&>(state) = *place.State;
    Surfaces frames;
    Menu menu;
    QuietUi quiet(kit.Board);  // which its picture was fitted to
    Workplace apart{state, frames, menu, quiet, place.Folder};
    PrepareSettings(apart);
    return NeedsOfKit(apart, kit, photo.File, fonts);
}

}  // namespace vendrel
