#pragma once

#include <filesystem>

#include "batch/manifest.h"

namespace vendrel {

/// One manifest of all that lie in the folder of the orders: what machines with a shard each have
/// made. Of two lines of an order the one that was made goes before the one that failed. Throws
/// FileError, also when there are none.
[[nodiscard]] Manifest MergeManifests(const std::filesystem::path& orders);

}  // namespace vendrel
