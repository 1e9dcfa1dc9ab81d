#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "support/color.h"

namespace vendrel {

/// What a shop puts on a kit's pages beside its name and its logo.
struct ShopFace {
    std::string Order = {};                 // its number; empty: none
    std::vector<std::string> Address = {};  // lines
    std::optional<Color> Accent = {};       // of headings and rules
    std::filesystem::path Leaflet = {};     // a text for pages of its own; empty: none
    /// Of the leaflet beside those that every kit has; names as PlaceholderName writes them.
    std::map<std::string, std::string, std::less<>> Fields = {};

    bool operator==(const ShopFace&) const = default;
};

/// The longest order number whose code is still read from a page's small print.
inline constexpr std::size_t kLongestOrder = 100;  // bytes
inline constexpr std::size_t kMostAddressLines = 6;

/// "#RRGGBB"; nothing for what is no color.
[[nodiscard]] std::optional<Color> ColorFromHex(const std::string& text);
[[nodiscard]] std::string HexOfColor(Color color);

/// Whether large letters of a color are told from white paper: a contrast of 3 to 1.
[[nodiscard]] bool ReadsOnWhite(Color color);

}  // namespace vendrel
