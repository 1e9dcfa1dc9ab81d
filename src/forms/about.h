#pragma once

#include <string_view>

namespace vendrel {

/// The window that says what the program is.
class About {
  public:
    [[nodiscard]] std::string_view Title() const;
    [[nodiscard]] std::string_view Version() const;
    [[nodiscard]] std::string_view Description() const;
};

}  // namespace vendrel
