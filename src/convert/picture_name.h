#pragma once

#include <string_view>

namespace vendrel {

/// What everything made from a photo is named after: its file's name up to the first dot.
[[nodiscard]] constexpr std::string_view PictureNameOf(std::string_view fileName) {
    return fileName.substr(0, fileName.find('.'));
}

}  // namespace vendrel
