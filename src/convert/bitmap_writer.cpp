#include "convert/bitmap_writer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "convert/bitmap_header.h"
#include "convert/dib_section.h"
#include "support/error.h"

namespace vendrel {
namespace {

constexpr std::size_t kHeaderBytes = 54;

using Header = std::array<std::uint8_t, kHeaderBytes>;

void Put32(Header& header, std::size_t at, std::uint32_t value) {
    for (std::size_t i = 0; i < 4; ++i) {
        header[at + i] = static_cast<std::uint8_t>(value >> 8 * i);
    }
}

Header MakeHeader(const BitmapInfoHeader& info, PrintScale scale) {
    Header header{};
    header[0] = 'B';
    header[1] = 'M';
    Put32(header, 2, static_cast<std::uint32_t>(kHeaderBytes) + info.SizeImage);
    Put32(header, 10, kHeaderBytes);
    Put32(header, 14, info.Size);
    Put32(header, 18, static_cast<std::uint32_t>(info.Width));
    Put32(header, 22, static_cast<std::uint32_t>(info.Height));
    Put32(header, 26, info.Planes | std::uint32_t{info.BitCount} << 16);
    Put32(header, 30, info.Compression);
    Put32(header, 34, info.SizeImage);
    const auto pixelsPerMeter = static_cast<std::uint32_t>(scale.PixelsPerMeter());
    Put32(header, 38, pixelsPerMeter);
    Put32(header, 42, pixelsPerMeter);
    return header;
}

void PackRow(std::span<const Color> row, std::uint8_t* bytes) {
    for (const Color color : row) {
        StoreBgr(color, bytes);
        bytes += 3;
    }
}

}  // namespace

BitmapStream::BitmapStream(const Target& target, int width, int height, PrintScale scale,
                           Lasting lasting)
    : file_(target, lasting), watcher_(target.Watcher) {
    if (width < 1 || height < 1) {
        throw FileError(target.Place, "there is no picture to save yet. Load a photo first.");
    }
    const Header header = MakeHeader(MakeInfoHeader(width, height), scale);
    Put(std::as_bytes(std::span(header)), nullptr);
}

void BitmapStream::Put(std::span<const std::byte> bytes, std::shared_ptr<const void> owner) {
    const std::size_t mayWait = owner == nullptr ? 0 : kBlocksInHand - 1;
    if (watcher_ != nullptr) {
        watcher_->See(bytes, std::move(owner));
    }
    file_.Write(bytes);
    if (watcher_ != nullptr) {
        watcher_->AwaitAllBut(mayWait);
    }
}

void BitmapStream::Write(const Surface& picture) {
    const BitmapInfoHeader info = MakeInfoHeader(picture.Width(), picture.Height());
    const std::size_t rowBytes = info.SizeImage / static_cast<std::size_t>(picture.Height());
    const std::size_t rowsPerBlock = std::max<std::size_t>(1, kBlockBytes / rowBytes);
    using Block = std::vector<std::uint8_t>;
    std::array<std::shared_ptr<Block>, kBlocksInHand> blocks;
    std::size_t at = 0;
    std::size_t used = 0;
    for (int y = picture.Height() - 1; y >= 0; --y) {
        if (blocks[at] == nullptr) {
            blocks[at] = std::make_shared<Block>(rowsPerBlock * rowBytes);
        }
        Block& block = *blocks[at];
        PackRow(picture.Row(y), block.data() + used);
        used += rowBytes;
        if (used == block.size() || y == 0) {
            Write(std::span(block).first(used), blocks[at]);
            used = 0;
            at = (at + 1) % blocks.size();
        }
    }
}

void WriteBitmap(const Target& target, const Surface& picture, PrintScale scale) {
    BitmapStream stream(target, picture.Width(), picture.Height(), scale);
    stream.Write(picture);
    stream.Commit();
}

}  // namespace vendrel
