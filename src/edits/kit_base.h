#pragma once

#include <memory>

#include "edits/lay_edits.h"
#include "shell/work_state.h"

namespace vendrel {

/// Makes the kit's palette and grid the base of its edits, which wait to be laid on.
void KeepBase(KitEdits& edits, const Palette& palette, const StippleGrid& grid);

/// Makes the kit's palette and grid a base without edits, and without any to be taken back.
void StartBase(KitEdits& edits, EditPast& past, const Palette& palette, const StippleGrid& grid);

/// The same unless the kit's grid lies over a base already.
void RequireBase(KitEdits& edits, EditPast& past, const Palette& palette, const StippleGrid& grid);

/// Forgets base and edits: they are of another photo.
void ForgetEdits(KitEdits& edits, EditPast& past);

/// The base alone, to come back to.
[[nodiscard]] std::shared_ptr<const KitEdits> BaseOf(const KitEdits& edits);

/// Adds a step that is done; what was undone until now is gone. Of an evening's steps over many
/// stipples the oldest are forgotten when they fill much memory.
void AddMoment(EditPast& past, EditMoment moment);

/// Makes the grid and palette what the base gives with the edits over it.
[[nodiscard]] LayReport LayOnBase(const KitEdits& edits, Palette& palette, StippleGrid& grid,
                                  const LayTerms& terms = {});

/// The end of a conversion: what it made is the base from now on, and the edits, if there are any,
/// are laid over it.
void LayOverConversion(WorkState& state);

}  // namespace vendrel
