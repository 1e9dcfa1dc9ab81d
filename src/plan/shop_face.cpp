#include "plan/shop_face.h"

#include <array>
#include <charconv>
#include <cmath>

namespace vendrel {
namespace {

constexpr double kReadable = 3;

// Of one channel, 0 to 1.
double LightOf(int channel) {
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

}  // namespace

std::optional<Color> ColorFromHex(const std::string& text) {
    constexpr std::size_t kLength = 7;
    unsigned number = 0;
    const char* const end = text.data() + text.size();
    if (text.size() != kLength || text.front() != '#' ||
        std::from_chars(text.data() + 1, end, number, 16).ptr != end) {
        return std::nullopt;
    }
    return Rgb(static_cast<int>(number >> 16U), static_cast<int>(number >> 8U & 255U),
               static_cast<int>(number & 255U));
}

std::string HexOfColor(Color color) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string hex = "#";
    for (const int part : {RedOf(color), GreenOf(color), BlueOf(color)}) {
        hex += kDigits[static_cast<std::size_t>(part / 16)];
        hex += kDigits[static_cast<std::size_t>(part % 16)];
    }
    return hex;
}

bool ReadsOnWhite(Color color) {
    const double light = 0.2126 * LightOf(RedOf(color)) + 0.7152 * LightOf(GreenOf(color)) +
                         0.0722 * LightOf(BlueOf(color));
    return 1.05 / (light + 0.05) >= kReadable;
}

}  // namespace vendrel
