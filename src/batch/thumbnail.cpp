#include "batch/thumbnail.h"

#include <nettle/base64.h>

#include <algorithm>
#include <cstdint>

#include "support/color.h"

namespace vendrel {
namespace {

constexpr int kWidest = 120;  // pixels of either side
constexpr int kColors = 256;
constexpr int kHeaderBytes = 54;

void Put(std::string& bytes, int number, int count) {
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(static_cast<std::uint32_t>(number) >> 8 * i);
    }
}

// A bitmap with a byte for each pixel: every browser shows it, and it has no more colors than
// paints.
std::string BitmapOf(const KitFile& kit, int width, int height) {
    const int rowBytes = (width + 3) / 4 * 4;
    const int start = kHeaderBytes + 4 * kColors;
    std::string bytes = "BM";
    for (const int number : {start + rowBytes * height, 0, start, 40, width, height}) {
        Put(bytes, number, 4);
    }
    Put(bytes, 1, 2);
    Put(bytes, 8, 2);
    for (const int number : {0, rowBytes * height, 0, 0, kColors, 0}) {
        Put(bytes, number, 4);
    }
    for (int i = 0; i < kColors; ++i) {
        const bool known = i >= 1 && i <= kit.Paints.Count();
        const Color color = known ? ColorOf(kit.Paints[i]) : kBlack;
        Put(bytes, BlueOf(color) | GreenOf(color) << 8 | RedOf(color) << 16, 4);
    }
    for (int y = height - 1; y >= 0; --y) {
        for (int x = 0; x < rowBytes; ++x) {
            const int column = std::min(x, width - 1) * kit.Stipples.Across() / width + 1;
            const int row = y * kit.Stipples.Down() / height + 1;
            Put(bytes, kit.Stipples(column, row).ColorIndex, 1);
        }
    }
    return bytes;
}

}  // namespace

std::string ThumbnailOf(const KitFile& kit) {
    const int across = kit.Stipples.Across();
    const int down = kit.Stipples.Down();
    const int longest = std::max({across, down, 1});
    const int side = std::min(longest, kWidest);
    const std::string bytes =
        BitmapOf(kit, std::max(1, across * side / longest), std::max(1, down * side / longest));
    std::string text(BASE64_ENCODE_RAW_LENGTH(bytes.size()), '\0');
    base64_encode_raw(text.data(), bytes.size(),
                      reinterpret_cast<const std::uint8_t*>(bytes.data()));
    return "data:image/bmp;base64," + text;
}

}  // namespace vendrel
