#pragma once

#include <string>
#include <string_view>

namespace vendrel {

// What the program and its commands say of themselves.

[[nodiscard]] std::string_view HelpText();
[[nodiscard]] std::string KitHelpText();
[[nodiscard]] std::string PaintsHelpText();
[[nodiscard]] std::string ShopHelpText();

}  // namespace vendrel
