#include "export/photo_structure.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string_view>

namespace vendrel {
namespace {

enum class ByteOrder { Little, Big };

bool HasAt(PhotoBytes file, std::size_t at, std::string_view text) {
    return at <= file.size() && text.size() <= file.size() - at &&
           std::equal(
               text.begin(), text.end(), file.begin() + static_cast<std::ptrdiff_t>(at),
               [](char c, std::uint8_t byte) { return static_cast<std::uint8_t>(c) == byte; });
}

// `count` bytes as a number; 0 beyond the end.
std::size_t NumberAt(PhotoBytes file, std::size_t at, std::size_t count, ByteOrder order) {
    if (at > file.size() || count > file.size() - at) {
        return 0;
    }
    std::size_t number = 0;
    for (std::size_t i = 0; i < count; ++i) {
        number = number * 256 + file[at + (order == ByteOrder::Big ? i : count - 1 - i)];
    }
    return number;
}

// From a marker's 0xFF on: past the compressed data, to the next marker that is none of the
// restart marks or the stuffed zeros within it.
std::size_t SkipJpegScan(PhotoBytes file, std::size_t at) {
    while (at + 1 < file.size()) {
        const std::uint8_t next = file[at + 1];
        if (file[at] == 0xFF && next != 0 && next != 0xFF && (next < 0xD0 || next > 0xD7)) {
            return at;
        }
        ++at;
    }
    return file.size();
}

// Follows the segments rather than looking for the last two bytes: telephones put films and
// thumbnails behind the picture, and thumbnails with an end of their own before it.
bool JpegIsCutShort(PhotoBytes file) {
    std::size_t at = 2;
    while (at + 3 < file.size()) {
        const std::uint8_t marker = file[at + 1];
        if (file[at] != 0xFF || marker == 0xFF) {
            ++at;
            continue;
        }
        if (marker == 0xD9) {
            return false;
        }
        at += 2 + NumberAt(file, at + 2, 2, ByteOrder::Big);
        if (marker == 0xDA) {
            at = SkipJpegScan(file, at);
        }
    }
    return !HasAt(file, at, "\xFF\xD9");
}

struct JpegFrame {
    bool Progressive = false;
    std::size_t Channels = 0;
    std::size_t Coefficients = 0;
};

// The frame's segment: height, width, then for each channel how finely it is sampled.
JpegFrame JpegFrameAt(PhotoBytes file, std::size_t at) {
    const auto number = [file, at](std::size_t from, std::size_t count) {
        return NumberAt(file, at + from, count, ByteOrder::Big);
    };
    JpegFrame frame{number(1, 1) % 4 == 2, number(9, 1), 0};
    std::size_t finest = 1;
    std::size_t samples = 0;
    for (std::size_t channel = 0; channel < frame.Channels; ++channel) {
        const std::size_t sampling = number(11 + channel * 3, 1);
        const std::size_t share = (sampling >> 4) * (sampling & 15);
        finest = std::max(finest, share);
        samples += share;
    }
    frame.Coefficients = number(5, 2) * number(7, 2) * samples / finest;
    return frame;
}

std::size_t GifTableSize(std::uint8_t flags) {
    return (flags & 0x80) != 0 ? std::size_t{3} << ((flags & 7) + 1) : 0;
}

// Past a chain of sub-blocks and its closing 0; beyond the end when the chain is not closed.
std::size_t SkipGifBlocks(PhotoBytes file, std::size_t at) {
    while (at < file.size() && file[at] != 0) {
        at += std::size_t{1} + file[at];
    }
    return at + 1;
}

bool GifIsCutShort(PhotoBytes file) {
    constexpr std::uint8_t kExtension = 0x21;
    constexpr std::uint8_t kFrame = 0x2C;
    if (file.size() < 13) {
        return true;
    }
    std::size_t at = 13 + GifTableSize(file[10]);
    while (at < file.size() && file[at] == kExtension) {
        at = SkipGifBlocks(file, at + 2);
    }
    if (at + 10 >= file.size() || file[at] != kFrame) {
        return true;
    }
    return SkipGifBlocks(file, at + 10 + GifTableSize(file[at + 9]) + 1) > file.size();
}

bool BitmapIsCutShort(PhotoBytes file) {
    constexpr auto kLittle = ByteOrder::Little;
    const bool oldHeader = NumberAt(file, 14, 4, kLittle) == 12;
    const std::size_t field = oldHeader ? 2 : 4;
    const auto width = NumberAt(file, 18, field, kLittle);
    const auto rawHeight = static_cast<std::int32_t>(NumberAt(file, 18 + field, field, kLittle));
    const auto height = static_cast<std::size_t>(std::abs(std::int64_t{rawHeight}));
    const auto bits = NumberAt(file, 20 + 2 * field, 2, kLittle);
    const auto compression = oldHeader ? 0 : NumberAt(file, 30, 4, kLittle);
    if (compression == 1 || compression == 2) {
        return false;  // run lengths may end early on purpose
    }
    const std::size_t rowBytes = (width * bits + 31) / 32 * 4;
    const std::size_t offset = NumberAt(file, 10, 4, kLittle);
    return offset > file.size() || (rowBytes != 0 && (file.size() - offset) / rowBytes < height);
}

// The orientation in an EXIF block: a byte order mark, then a table of 12-byte entries.
int OrientationIn(PhotoBytes exif) {
    constexpr std::size_t kOrientationTag = 0x0112;
    if (HasAt(exif, 0, std::string_view("Exif\0\0", 6))) {
        exif = exif.subspan(6);
    }
    const ByteOrder order = HasAt(exif, 0, "MM") ? ByteOrder::Big : ByteOrder::Little;
    const std::size_t table = NumberAt(exif, 4, 4, order);
    const std::size_t entries = NumberAt(exif, table, 2, order);
    for (std::size_t i = 0; i < entries; ++i) {
        const std::size_t entry = table + 2 + i * 12;
        if (NumberAt(exif, entry, 2, order) == kOrientationTag) {
            const auto value = static_cast<int>(NumberAt(exif, entry + 8, 2, order));
            return value >= 1 && value <= 8 ? value : 1;
        }
    }
    return 1;
}

}  // namespace

bool IsCutShort(PhotoBytes file) {
    if (HasAt(file, 0, "\xFF\xD8")) {
        return JpegIsCutShort(file);
    }
    if (HasAt(file, 0, "GIF8")) {
        return GifIsCutShort(file);
    }
    return HasAt(file, 0, "BM") && BitmapIsCutShort(file);
}

std::size_t JpegCoefficientBytes(PhotoBytes file) {
    const auto number = [file](std::size_t at, std::size_t count) {
        return NumberAt(file, at, count, ByteOrder::Big);
    };
    JpegFrame frame;
    for (std::size_t at = 2; at + 3 < file.size(); at += 2 + number(at + 2, 2)) {
        const std::size_t marker = number(at + 1, 1);
        if (marker == 0xDA) {
            const bool oneScan = !frame.Progressive && number(at + 4, 1) >= frame.Channels;
            return oneScan ? 0 : frame.Coefficients * sizeof(std::int16_t);
        }
        if (marker == 0xC0 || (marker > 0xC0 && marker <= 0xCF && marker % 4 != 0)) {
            frame = JpegFrameAt(file, at);
        }
    }
    return 0;
}

bool IsInterlacedPng(PhotoBytes file) {
    return NumberAt(file, 28, 1, ByteOrder::Big) != 0;
}

int ChunkOrientation(PhotoBytes file) {
    const bool png = HasAt(file, 0, "\x89PNG");
    if (!png && !(HasAt(file, 0, "RIFF") && HasAt(file, 8, "WEBP"))) {
        return 1;
    }
    // PNG: length, name, data, checksum. WebP: name, length, data, a filler to an even length.
    std::size_t at = png ? 8 : 12;
    while (at + 8 <= file.size()) {
        const std::size_t length = png ? NumberAt(file, at, 4, ByteOrder::Big)
                                       : NumberAt(file, at + 4, 4, ByteOrder::Little);
        if (length > file.size() - at - 8) {
            return 1;
        }
        if (HasAt(file, png ? at + 4 : at, png ? "eXIf" : "EXIF")) {
            return OrientationIn(file.subspan(at + 8, length));
        }
        at += 8 + length + (png ? 4 : length % 2);
    }
    return 1;
}

}  // namespace vendrel
