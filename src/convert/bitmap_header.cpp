#include "convert/bitmap_header.h"

#include <algorithm>
#include <bit>
#include <string>
#include <vector>

#include "support/error.h"

namespace vendrel {
namespace {

constexpr std::uint64_t kInfoStart = 14;
constexpr std::uint64_t kMaskStart = 54;
constexpr std::uint32_t kShortHeader = 12;  // of old programs: no compression, sides of 16 bits
constexpr std::size_t kColorSpaceAt = 70;   // of headers of 108 bytes and more
constexpr std::size_t kPrimariesAt = 74;
constexpr std::size_t kPrimariesEnd = 122;  // nine coordinates and three gammas
// Room for the longest header, or the shortest with four masks behind it.
constexpr std::size_t kLead = kInfoStart + 124;
constexpr int kMaxSide = 1 << 20;
constexpr std::int64_t kMaxPixels = 1 << 28;
constexpr const char* kSaveAgain =
    " Open it in a picture program and save it again as a BMP of 24 bits.";

using Lead = std::array<std::uint8_t, kLead>;

std::uint32_t Le16(const Lead& lead, std::size_t at) {
    return static_cast<std::uint32_t>(lead[at] | lead[at + 1] << 8);
}

std::uint32_t Le32(const Lead& lead, std::size_t at) {
    return Le16(lead, at) | Le16(lead, at + 2) << 16;
}

[[noreturn]] void Refuse(const BitmapInput& input, const std::string& problem) {
    throw FormatError(input.File(), 0, problem + kSaveAgain);
}

Lead ReadLead(BitmapInput& input) {
    Lead lead{};
    const auto held = static_cast<std::size_t>(std::min<std::uint64_t>(input.Size(), kLead));
    input.Seek(0);
    input.Read(std::span(lead).first(held));
    if (held < 2 || lead[0] != 'B' || lead[1] != 'M') {
        throw FormatError(input.File(), 0,
                          "is not a BMP photo, whatever its name. Choose a BMP photo.");
    }
    const std::uint32_t headerSize = Le32(lead, kInfoStart);
    const bool known = headerSize == kShortHeader || (headerSize >= 40 && headerSize <= 124);
    if (held >= kInfoStart + 4 && !known) {
        Refuse(input, "is a BMP of a kind that is not known here (a header of " +
                          std::to_string(headerSize) + " bytes).");
    }
    if (held < kInfoStart + 4 || input.Size() < kInfoStart + headerSize) {
        throw FormatError(input.File(), 0, "ends within its header. Copy or save the photo again.");
    }
    return lead;
}

bool IsShort(const Lead& lead) {
    return Le32(lead, kInfoStart) == kShortHeader;
}

BitmapSize SizeOf(const Lead& lead) {
    if (IsShort(lead)) {
        return {static_cast<int>(Le16(lead, 18)), static_cast<int>(Le16(lead, 20))};
    }
    return {static_cast<int>(Le32(lead, 18)), static_cast<int>(Le32(lead, 22))};
}

std::string Describe(BitmapSize size) {
    return std::to_string(size.Width) + " x " + std::to_string(size.Height) + " pixels";
}

void CheckSize(const BitmapInput& input, BitmapSize size) {
    if (size.Height < 0 && size.Width > 0) {
        Refuse(input, "its rows are stored from the top down (a height of " +
                          std::to_string(size.Height) + "), which is not supported.");
    }
    if (size.Width < 1 || size.Height < 1) {
        Refuse(input, "its header gives it " + Describe(size) + ", which is no picture.");
    }
    if (size.Width > kMaxSide || size.Height > kMaxSide ||
        static_cast<std::int64_t>(size.Width) * size.Height > kMaxPixels) {
        throw FormatError(input.File(), 0,
                          "its header gives it " + Describe(size) +
                              ", more than can be worked on. Save a smaller copy of the photo.");
    }
}

std::uint32_t CompressionOf(const Lead& lead) {
    return IsShort(lead) ? 0 : Le32(lead, 30);
}

BitmapPacking PackingOf(const BitmapInput& input, std::uint32_t compression, int bits) {
    if (compression == 0 &&
        (bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32)) {
        return BitmapPacking::Plain;
    }
    if (compression == 1 && bits == 8) {
        return BitmapPacking::Rle8;
    }
    if (compression == 2 && bits == 4) {
        return BitmapPacking::Rle4;
    }
    if ((compression == 3 || compression == 6) && (bits == 16 || bits == 32)) {
        return BitmapPacking::BitFields;
    }
    Refuse(input, "its pixels are stored in a way that is not known here (" + std::to_string(bits) +
                      " bits, compression " + std::to_string(compression) + ").");
}

BitmapChannel ChannelOf(const BitmapInput& input, std::uint32_t mask, int bits) {
    const int low = mask == 0 ? 0 : std::countr_zero(mask);
    const int width = std::popcount(mask);
    const bool inOnePiece = mask >> low == (std::uint64_t{1} << width) - 1;
    if (!inOnePiece || low + width > bits) {
        Refuse(input, "its color masks make no sense.");
    }
    // Of more than eight bits the upper eight say all that a paint can show.
    const int kept = std::min(width, 8);
    BitmapChannel channel{low + width - kept, (std::uint32_t{1} << kept) - 1, {}};
    for (std::uint32_t value = 1; value <= channel.Max; ++value) {
        channel.Level[value] =
            static_cast<std::uint8_t>((value * 255 + channel.Max / 2) / channel.Max);
    }
    return channel;
}

void SetChannels(const BitmapInput& input, const Lead& lead, BitmapHeader& header) {
    std::array<std::uint32_t, 3> masks = {0xFF0000, 0xFF00, 0xFF};
    if (header.Packing == BitmapPacking::BitFields) {
        masks = {Le32(lead, kMaskStart), Le32(lead, kMaskStart + 4), Le32(lead, kMaskStart + 8)};
    } else if (header.BitsPerPixel == 16) {
        masks = {0x7C00, 0x3E0, 0x1F};
    }
    if ((masks[0] | masks[1] | masks[2]) == 0) {
        Refuse(input, "its color masks are empty.");
    }
    header.Red = ChannelOf(input, masks[0], header.BitsPerPixel);
    header.Green = ChannelOf(input, masks[1], header.BitsPerPixel);
    header.Blue = ChannelOf(input, masks[2], header.BitsPerPixel);
}

// Masks stand behind a header of 40 bytes and inside the longer ones.
std::uint64_t EndOfHeader(const Lead& lead) {
    const std::uint32_t size = Le32(lead, kInfoStart);
    const std::uint32_t compression = CompressionOf(lead);
    if (size > 40 || (compression != 3 && compression != 6)) {
        return kInfoStart + size;
    }
    return kMaskStart + (compression == 3 ? 12 : 16);
}

// A short header does not say how many colors there are: they fill the room up to the pixels.
std::uint64_t CountPalette(const BitmapInput& input, const Lead& lead, const BitmapHeader& header) {
    const std::uint64_t start = EndOfHeader(lead);
    const std::uint64_t most = std::uint64_t{1} << header.BitsPerPixel;
    if (IsShort(lead)) {
        return std::min(most, (header.PixelOffset - start) / 3);
    }
    const std::uint64_t named = Le32(lead, 46);
    const std::uint64_t count = named == 0 ? most : named;
    if (start + 4 * count > header.PixelOffset) {
        Refuse(input, "its palette of " + std::to_string(count) + " colors runs into its pixels.");
    }
    return std::min(count, most);
}

void ReadPalette(BitmapInput& input, const Lead& lead, BitmapHeader& header) {
    header.Palette.fill(kNoColor);
    const std::size_t entryBytes = IsShort(lead) ? 3 : 4;
    const auto count = static_cast<std::size_t>(CountPalette(input, lead, header));
    std::vector<std::uint8_t> entries(entryBytes * count);
    input.Seek(EndOfHeader(lead));
    input.Read(entries);
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint8_t* entry = entries.data() + i * entryBytes;
        header.Palette[i] = Rgb(entry[2], entry[1], entry[0]);
    }
}

// A profile in the file or beside it, or primaries of its own; zeros stand where nothing was meant.
bool HasOwnColors(const Lead& lead) {
    constexpr std::uint32_t kLinked = 0x4C494E4B;
    constexpr std::uint32_t kEmbedded = 0x4D424544;
    const std::uint32_t headerSize = Le32(lead, kInfoStart);
    if (headerSize < 108) {
        return false;
    }
    const std::uint32_t space = Le32(lead, kColorSpaceAt);
    if (headerSize == 124 && (space == kLinked || space == kEmbedded)) {
        return true;
    }
    return space == 0 && std::any_of(lead.begin() + kPrimariesAt, lead.begin() + kPrimariesEnd,
                                     [](std::uint8_t byte) { return byte != 0; });
}

// Nothing is set aside for pixels before the file is known to hold them.
void CheckPixelsHeld(const BitmapInput& input, const BitmapHeader& header) {
    const auto rows = static_cast<std::uint64_t>(header.Size.Height);
    const auto width = static_cast<std::uint64_t>(header.Size.Width);
    const std::uint64_t held = input.Size() - header.PixelOffset;
    const bool runs =
        header.Packing == BitmapPacking::Rle8 || header.Packing == BitmapPacking::Rle4;
    // The last row may do without its padding. Two bytes of run lengths stand for 255 pixels, and
    // pixels may be left out: half of that tells a sparse picture from an absurd one.
    const std::uint64_t rowBytes =
        (width * static_cast<std::uint64_t>(header.BitsPerPixel) + 7) / 8;
    const std::uint64_t needed =
        runs ? rows * width / 255 : (rows - 1) * header.BytesPerRow + rowBytes;
    if (held < needed) {
        throw FormatError(input.File(), 0,
                          "its header gives it " + Describe(header.Size) +
                              ", but the file ends before the last of them. Copy or save the "
                              "photo again.");
    }
}

}  // namespace

BitmapSize ReadHeaderSize(BitmapInput& input) {
    return SizeOf(ReadLead(input));
}

BitmapHeader ReadBitmapHeader(BitmapInput& input) {
    const Lead lead = ReadLead(input);
    BitmapHeader header;
    header.Size = SizeOf(lead);
    CheckSize(input, header.Size);
    header.BitsPerPixel = static_cast<int>(Le16(lead, IsShort(lead) ? 24 : 28));
    header.Packing = PackingOf(input, CompressionOf(lead), header.BitsPerPixel);
    header.HasOwnColors = HasOwnColors(lead);
    header.PixelOffset = Le32(lead, 10);
    if (header.PixelOffset < EndOfHeader(lead) || header.PixelOffset >= input.Size()) {
        Refuse(input, "its pixels are said to start at byte " + std::to_string(header.PixelOffset) +
                          ", where they cannot be.");
    }
    header.BytesPerRow = (static_cast<std::size_t>(header.Size.Width) *
                              static_cast<std::size_t>(header.BitsPerPixel) +
                          31) /
                         32 * 4;
    CheckPixelsHeld(input, header);
    if (header.BitsPerPixel <= 8) {
        ReadPalette(input, lead, header);
    } else if (header.BitsPerPixel != 24) {
        SetChannels(input, lead, header);
    }
    return header;
}

}  // namespace vendrel
