#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vendrel {

/// How many bytes the UTF-8 character at the front of a text that is not empty takes; 0 when it is
/// none.
[[nodiscard]] std::size_t Utf8Length(std::string_view text);

/// The code of a whole character.
[[nodiscard]] char32_t Utf8Code(std::string_view character);

void AppendUtf8(std::string& out, char32_t code);

}  // namespace vendrel
