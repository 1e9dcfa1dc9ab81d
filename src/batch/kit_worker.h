#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "batch/manifest.h"
#include "batch/order.h"
#include "support/worker_pool.h"

namespace vendrel {

/// The words that make an order's kit in a folder of its own.
[[nodiscard]] std::vector<std::string> KitWords(const Order& order,
                                                const std::vector<std::string>& settings,
                                                const std::filesystem::path& folder);

/// What a kit's process has to say for the manifest; `root` is the folder of all orders. A process
/// that ended without a word, and one whose files cannot be read, is a failure.
[[nodiscard]] ManifestEntry EntryOf(const Order& order, const WorkerResult& result,
                                    const std::filesystem::path& root);

}  // namespace vendrel
