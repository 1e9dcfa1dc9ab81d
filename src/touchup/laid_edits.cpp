#include "touchup/laid_edits.h"

#include "convert/stipple_conversion.h"
#include "drawing/stipple_brush.h"
#include "edits/kit_base.h"
#include "shell/menu.h"
#include "storage/stipple_file.h"
#include "touchup/recovery.h"
#include "touchup/unsaved_work.h"

namespace vendrel {
namespace {

// A recovery file goes by the difficulty; the older one stays until the newer one is there.
void KeepRecoverable(Workplace& place) {
    WorkState& state = place.State;
    const auto before = state.Recovery;
    const std::filesystem::path grid = StippleFilePath(place.Folder, state, state);
    if (before && !IsRecoveryOf(before->Path(), grid)) {
        state.Recovery.reset();
    }
    WriteRecoveryOfGrid(place);
    if (before && before != state.Recovery) {
        RemoveRecovery(before->Path());
    }
}

void GoBetweenBases(KitEdits& edits, const KitEdits* from, const KitEdits* to) {
    if (from != nullptr && to != nullptr && edits.Base == from->Base &&
        edits.BasePaints == from->BasePaints) {
        edits.Base = to->Base;
        edits.BasePaints = to->BasePaints;
        edits.Converted = to->Converted;
    }
}

}  // namespace

void EditsWereLaidOn(Workplace& place) {
    WorkState& state = place.State;
    if (!state.HasUnsavedWork && (state.Edits.Cells.empty() || IsSavedGrid(place))) {
        return;
    }
    state.HasUnsavedWork = true;
    KeepRecoverable(place);
}

void LayEditsAgain(Workplace& place) {
    WorkState& state = place.State;
    // Until the photo is changed to stipples the edits wait.
    if (!place.MainMenu[MenuId::ColorPickerSelect].Enabled) {
        return;
    }
    state.LaidOn = Sentence(LayOnBase(state, state, state));
    EraseToColor(EaselOf(place), kBlack);
    DrawStipplePicture(place);
    SetupMenuItems(place.MainMenu, 3);
    EditsWereLaidOn(place);
}

std::string TouchUpToUndo(const EditPast& past) {
    return past.DoneMoments > 0 ? past.Moments[past.DoneMoments - 1].Name : std::string();
}

std::string TouchUpToRedo(const EditPast& past) {
    return past.DoneMoments < past.Moments.size() ? past.Moments[past.DoneMoments].Name
                                                  : std::string();
}

void UndoLastTouchUp(Workplace& place) {
    WorkState& state = place.State;
    if (state.DoneMoments > 0) {
        const EditMoment& step = state.Moments[--state.DoneMoments];
        state.Edits = *step.Before;
        GoBetweenBases(state, step.BaseAfter.get(), step.BaseBefore.get());
        LayEditsAgain(place);
    }
}

void RedoLastTouchUp(Workplace& place) {
    WorkState& state = place.State;
    if (state.DoneMoments < state.Moments.size()) {
        const EditMoment& step = state.Moments[state.DoneMoments++];
        state.Edits = *step.After;
        GoBetweenBases(state, step.BaseBefore.get(), step.BaseAfter.get());
        LayEditsAgain(place);
    }
}

}  // namespace vendrel
