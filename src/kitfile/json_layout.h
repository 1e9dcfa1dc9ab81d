#pragma once

#include <string>

#include "kitfile/object_reader.h"

namespace vendrel {

/// JSON for readers and for comparing line by line: members stand on lines of their own, each entry
/// of a list on one, and what is short on one together. Throws Error for bytes that are no UTF-8.
[[nodiscard]] std::string LayOutJson(const KitJson& json);

}  // namespace vendrel
