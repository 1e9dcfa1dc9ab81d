#pragma once

#include <filesystem>
#include <string>

#include "batch/manifest.h"

namespace vendrel {

/// What an order needs.
enum class OrderNeed {
    Nothing,    // made as it is asked for, and its files are there or were touched up
    Making,     // never made, or files are missing
    Anew,       // made from another photo, with other settings, or by another version
    TouchedUp,  // the same, but the painter's touch-ups would be lost
    Failed      // failed as it is asked for; made again only when asked to
};

/// `known` is what the manifest has of the order, if anything; `inputs` the sum of all that its kit
/// depends on now; `root` the folder that holds Orders.
[[nodiscard]] OrderNeed NeedOf(const ManifestEntry* known, const std::string& inputs,
                               const std::filesystem::path& root);

}  // namespace vendrel
