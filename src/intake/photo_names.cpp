#include "intake/photo_names.h"

#include <algorithm>
#include <cstddef>

#include "convert/picture_name.h"
#include "support/error.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestName = 255;  // bytes, on a disk
// Names of results are longer.
constexpr std::size_t kLongestStem = 150;

}  // namespace

std::string PictureStem(const fs::path& photo) {
    std::string stem = photo.stem().string();
    const auto isFringe = [](char c) { return c == '.' || c == ' '; };
    stem.erase(stem.begin(), std::ranges::find_if_not(stem, isFringe));
    while (!stem.empty() && isFringe(stem.back())) {
        stem.pop_back();
    }
    std::ranges::replace(stem, '.', '-');
    if (stem.size() > kLongestStem) {
        // Not within a character of several bytes.
        std::size_t end = kLongestStem;
        while (end > 0 && (static_cast<unsigned char>(stem[end]) & 0xC0) == 0x80) {
            --end;
        }
        stem.resize(end);
    }
    return stem.empty() ? "Photo" : stem;
}

bool NamesAPicture(const fs::path& bitmap) {
    const std::string file = bitmap.filename().string();
    const std::size_t name = PictureNameOf(file).size();
    return name > 0 && name < file.size();
}

void RequireResultNames(const fs::path& photo, std::string_view longest) {
    if (PictureNameOf(photo.filename().string()).size() + longest.size() > kLongestName) {
        throw FileError(photo, "its name is too long for what is made of it, as in \"..." +
                                   std::string(longest) + "\". Rename it to at most " +
                                   std::to_string(kLongestName - longest.size()) +
                                   " letters before the first dot.");
    }
}

}  // namespace vendrel
