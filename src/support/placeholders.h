#pragma once

#include <map>
#include <string>
#include <string_view>

namespace vendrel {

/// What stands for {name}s; the names as PlaceholderName writes them.
using Placeholders = std::map<std::string, std::string, std::less<>>;

/// A name however it is written: small letters, blanks for - and _, none at its ends.
[[nodiscard]] std::string PlaceholderName(std::string_view name);

struct FilledText {
    std::string Text;
    std::string Problem;  // a sentence on the first name that is not known; empty: none
};

/// Puts values in place of their {names}; "{{" and "}}" are plain braces, and what comes in is
/// looked through for none.
[[nodiscard]] FilledText FillPlaceholders(std::string_view text, const Placeholders& values);

}  // namespace vendrel
