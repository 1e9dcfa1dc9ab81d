#include "convert/bitmap_reader.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "convert/bitmap_rows.h"

namespace vendrel {
namespace {

bool HasRuns(const BitmapHeader& header) {
    return header.Packing == BitmapPacking::Rle8 || header.Packing == BitmapPacking::Rle4;
}

void ReadPlainRows(BitmapInput& input, const BitmapHeader& header, const RowSink& sink) {
    const auto rows = static_cast<std::size_t>(header.Size.Height);
    const std::size_t rowsPerBlock =
        std::min(rows, std::max<std::size_t>(1, kBlockBytes / header.BytesPerRow));
    std::vector<std::uint8_t> block(rowsPerBlock * header.BytesPerRow);
    std::vector<Color> row(static_cast<std::size_t>(header.Size.Width));
    std::uint64_t left = input.Size() - header.PixelOffset;
    input.Seek(header.PixelOffset);
    for (std::size_t done = 0; done < rows;) {
        const std::size_t count = std::min(rowsPerBlock, rows - done);
        // The last row's padding may be missing.
        const auto bytes =
            static_cast<std::size_t>(std::min<std::uint64_t>(left, count * header.BytesPerRow));
        input.Read(std::span(block).first(bytes));
        left -= bytes;
        for (std::size_t i = 0; i < count; ++i, ++done) {
            UnpackRow(header, block.data() + i * header.BytesPerRow, row, input.File());
            sink(static_cast<int>(rows - 1 - done), row);
        }
    }
}

}  // namespace

void ReadRows(BitmapInput& input, const BitmapHeader& header, const RowSink& sink) {
    if (HasRuns(header)) {
        ReadRunRows(input, header, sink);
    } else {
        ReadPlainRows(input, header, sink);
    }
}

void CheckRuns(BitmapInput& input, const BitmapHeader& header) {
    if (HasRuns(header)) {
        ReadRunRows(input, header, [](int /*y*/, std::span<const Color> /*row*/) {});
    }
}

Surface ReadPicture(BitmapInput& input, const BitmapHeader& header) {
    Surface picture(header.Size.Width, header.Size.Height);
    ReadRows(input, header, [&picture](int y, std::span<const Color> row) {
        std::copy(row.begin(), row.end(), picture.Row(y).begin());
    });
    return picture;
}

BitmapFile::BitmapFile(BitmapInput input)
    : input_(std::move(input)), header_(ReadBitmapHeader(input_)) {}

Surface ReadBitmap(const std::filesystem::path& file) {
    return BitmapFile(file).Picture();
}

BitmapSize ReadBitmapSize(const std::filesystem::path& file) {
    BitmapInput input(file);
    return ReadHeaderSize(input);
}

}  // namespace vendrel
