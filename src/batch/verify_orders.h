#pragma once

#include <string>
#include <vector>

#include "batch/batch_options.h"
#include "batch/manifest.h"
#include "batch/order.h"
#include "kit/command_line.h"

namespace vendrel {

/// A sentence for every file that is missing or is not what was written.
[[nodiscard]] std::vector<std::string> VerifyFiles(const Manifest& manifest,
                                                   const std::filesystem::path& root);

/// Makes every order that was made once more, elsewhere, and answers a sentence for every file
/// that comes out otherwise. What it made is removed. Throws Stop when asked to.
[[nodiscard]] std::vector<std::string> RemakeAndCompare(const OrderList& list,
                                                        const BatchOptions& options,
                                                        const Surroundings& around);

}  // namespace vendrel
