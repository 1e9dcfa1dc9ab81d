#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace vendrel {

/// A name of its own for a file on its way, so that two programs saving the same kit do not write
/// into one another's half-finished file; short, so that it fits wherever the target's does.
[[nodiscard]] std::string NewWaitingName();
/// The name of the lock that a program holds on a file while it lives.
[[nodiscard]] std::string LockName(std::string_view file);

/// Whether a file of that name is on its way or a lock: none that a list should show.
[[nodiscard]] bool IsWaitingName(std::string_view name);

/// Removes from a folder what programs that ended too early left on its way. Whatever a living one
/// writes or holds is locked and stays. A missing folder has no leftovers.
void RemoveLeftovers(const std::filesystem::path& folder);

}  // namespace vendrel
