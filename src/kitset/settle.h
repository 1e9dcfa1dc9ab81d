#pragma once

#include <system_error>

#include "kitset/kit_paths.h"

namespace vendrel {

/// Brings the waiting files of a kit to their places, the list last. Answers what went wrong; then
/// the rest waits on.
[[nodiscard]] std::error_code TakePlaces(const KitPaths& paths);

/// Removes the waiting files of a kit, and their folders but the one that is locked.
void ClearWaiting(const KitPaths& paths);
/// That one too, while its lock is held.
void RemoveWaiting(const KitPaths& paths);

/// Ends what a program that was killed left of one kit, whose lock is held: when the waiting list
/// is there and all that it names is whole, the files take their places; otherwise they go, and the
/// kit stays as it was.
void SettleKit(const KitPaths& paths);

/// The same for all kits of a folder but those that somebody writes now.
void SettleKits(const ProgramFolder& folder);

}  // namespace vendrel
