#include "touchup/unsaved_work.h"

#include <string>
#include <utility>

#include "convert/stipple_conversion.h"
#include "shell/menu.h"
#include "storage/stipple_file.h"
#include "support/error.h"
#include "support/text_file.h"
#include "touchup/recovery.h"

namespace vendrel {
namespace {

SavedGrid GridOf(const WorkState& state) {
    return {state.PaintColors, state.Stipples, state.CellsAcross, state.CellsDown,
            state.FinalColors};
}

// A file that cannot be read to its end holds something else.
bool HoldsTheKit(const std::filesystem::path& path, const WorkState& state) {
    try {
        const std::string text = ReadTextFile(path);
        StippleFileReader reader(text, path);
        const StippleHeader header = reader.Header();
        if (!SamePaints(reader.ReadPalette(), state.PaintColors)) {
            return false;
        }
        Grid<StippleCell> cells(header.Across, header.Down);
        for (int y = 1; y <= header.Down; ++y) {
            reader.ReadRow(cells, y, header.Across);
        }
        return SameStipples(cells, state.Stipples);
    } catch (const Error&) {
        return false;
    }
}

}  // namespace

void SaveStipples(Workplace& place) {
    WriteStippleFile(StippleFilePath(place.Folder, place.State, place.State), GridOf(place.State));
    KitIsSaved(place);
}

void WorkIsSaved(UnsavedWork& work) {
    work.HasUnsavedWork = false;
    RemoveRecovery(work);
    work.Recovery.reset();
}

void KitIsSaved(Workplace& place) {
    place.MainMenu[MenuId::LoadStipples].Enabled = true;
    WorkIsSaved(place.State);
}

bool IsSavedGrid(const Workplace& place) {
    return StippleFileExists(place.Folder, place.State, place.State) &&
           HoldsTheKit(StippleFilePath(place.Folder, place.State, place.State), place.State);
}

bool MayReplaceSaved(Workplace& place) {
    const std::filesystem::path path = StippleFilePath(place.Folder, place.State, place.State);
    return place.State->HasUnsavedWork ||
           !StippleFileExists(place.Folder, place.State, place.State) ||
           HoldsTheKit(path, place.State) ||
           place.Screen.Ask("Save Stipples",
                            path.filename().string() +
                                " holds other stipples, perhaps touched-up ones. Replace them?");
}

GridReplacement::GridReplacement(Workplace& place, KitKeeper* keeper)
    : place_(place), keeper_(keeper) {
    if (keeper_ != nullptr ? keeper_->Unsaved() : place_.State->HasUnsavedWork) {
        Ask();
    }
}

bool GridReplacement::Save() {
    if (keeper_ != nullptr) {
        return keeper_->Save();
    }
    if (!place_.MainMenu[MenuId::ColorPickerSelect].Enabled) {
        AutoChangeToStipples(place_);
    }
    SaveStipples(place_);
    return true;
}

void GridReplacement::Ask() {
    const WorkState& state = place_.State;
    const SaveAnswer answer =
        keeper_ != nullptr
            ? place_.Screen.AskToSave("Unsaved Kit", "The kit " + state.PictureName +
                                                         " is not saved. Save it before going on?")
            : place_.Screen.AskToSave("Unsaved Stipples",
                                      "The touched-up stipples of " + state.PictureName +
                                          " are not saved. Save them before going on?");
    allowed_ = answer != SaveAnswer::Cancel;
    if (answer == SaveAnswer::Save) {
        allowed_ = Save();
    } else if (allowed_ && state.HasUnsavedWork) {
        unsaved_ = {state.Recovery, state.PictureName, state.StippleSize, state.Stipples,
                    state.PaintColors};
    }
}

GridReplacement::~GridReplacement() {
    // Marked as unsaved, whatever took its place would be kept over the work's recovery file.
    if (unsaved_ && !StillInKit()) {
        place_.State->HasUnsavedWork = false;
        place_.State->Recovery.reset();
    }
}

bool GridReplacement::StillInKit() const {
    const WorkState& state = place_.State;
    return state.PictureName == unsaved_->PictureName &&
           state.StippleSize == unsaved_->StippleSize && state.Stipples == unsaved_->Stipples &&
           state.PaintColors == unsaved_->Paints;
}

void GridReplacement::Done() {
    if (unsaved_) {
        const auto recovery = std::exchange(unsaved_, std::nullopt)->Recovery;
        place_.State->HasUnsavedWork = false;
        place_.State->Recovery.reset();
        if (recovery) {
            RemoveRecovery(recovery->Path());
        }
    }
}

bool MayReplaceGrid(Workplace& place, KitKeeper* keeper) {
    GridReplacement replacement(place, keeper);
    if (replacement.Allowed()) {
        replacement.Done();
    }
    return replacement.Allowed();
}

}  // namespace vendrel
