#pragma once

#include <string>

#include "kitfile/kit_file.h"

namespace vendrel {

/// A kit's stipples, small, as the address of a picture that a page holds in itself.
[[nodiscard]] std::string ThumbnailOf(const KitFile& kit);

}  // namespace vendrel
