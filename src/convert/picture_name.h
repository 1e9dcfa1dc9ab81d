#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace vendrel {

/// What everything made from a photo is named after: its file's name up to the first dot.
[[nodiscard]] constexpr std::string_view PictureNameOf(std::string_view fileName) {
    return fileName.substr(0, fileName.find('.'));
}

/// Whether a kit's files can be named after that title in place of the photo's name.
[[nodiscard]] constexpr bool MayNameKit(std::string_view title) {
    constexpr std::size_t kLongest = 200;  // bytes; what follows it fits on a disk too
    return !title.empty() && title.size() <= kLongest && std::ranges::none_of(title, [](char c) {
        return c == '/' || c == '.' || static_cast<unsigned char>(c) < ' ';
    });
}

}  // namespace vendrel
