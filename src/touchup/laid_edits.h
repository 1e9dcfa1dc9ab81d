#pragma once

#include <string>

#include "shell/workplace.h"

namespace vendrel {

/// After edits were laid on another grid: what came of them is unsaved unless the saved grid is the
/// same, and is kept recoverable in place of what was kept before. Throws FileError.
void EditsWereLaidOn(Workplace& place);

/// Lays the edits on the base again, if the photo is changed to stipples; stipples are drawn anew.
/// Throws FileError.
void LayEditsAgain(Workplace& place);

// Steps of touching up, accepted ones, whatever was chosen for the kit since. Names are empty where
// there is no step.
[[nodiscard]] std::string TouchUpToUndo(const EditPast& past);
[[nodiscard]] std::string TouchUpToRedo(const EditPast& past);

/// Takes the last step back and lays the others on again, if the photo is changed to stipples;
/// stipples are drawn anew. Does nothing where there is no step. Throws FileError when the recovery
/// file cannot be written.
void UndoLastTouchUp(Workplace& place);
void RedoLastTouchUp(Workplace& place);

}  // namespace vendrel
