#pragma once

#include <string>
#include <string_view>

namespace vendrel {

/// A text as a terminal may show it: control characters, which in a file's name could wipe lines or
/// forge them, become \n, \t or \x1b. Everything else stays byte for byte.
[[nodiscard]] std::string Printable(std::string_view text);

}  // namespace vendrel
