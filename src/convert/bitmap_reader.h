#pragma once

#include <filesystem>
#include <functional>
#include <span>

#include "convert/bitmap_header.h"
#include "convert/bitmap_input.h"
#include "support/surface.h"

namespace vendrel {

/// Takes row `y`, counted from the top, of a picture being read.
using RowSink = std::function<void(int y, std::span<const Color> row)>;

/// Hands every row of an open bitmap to `sink` once, the lowest first. Throws FileError,
/// FormatError.
void ReadRows(BitmapInput& input, const BitmapHeader& header, const RowSink& sink);

/// Reads run lengths through, which the header says nothing about; costs nothing for others.
void CheckRuns(BitmapInput& input, const BitmapHeader& header);

/// The whole picture of an open bitmap.
[[nodiscard]] Surface ReadPicture(BitmapInput& input, const BitmapHeader& header);

/// A BMP photo read row by row, so that a large one never stands decoded in memory: 1, 4, 8, 16,
/// 24 or 32 bits, plain, run lengths or bit fields, rows stored bottom-up, with headers of all
/// times. Transparency is
/// ignored. Everything throws FileError or FormatError naming the file and what to do.
class BitmapFile {
  public:
    /// Opens the file and checks that it holds what its header promises.
    explicit BitmapFile(const std::filesystem::path& file) : BitmapFile(BitmapInput(file)) {}
    /// The same for a file that is open already.
    explicit BitmapFile(BitmapInput input);

    /// Both sides at least 1.
    [[nodiscard]] BitmapSize Size() const { return header_.Size; }
    /// True when the file describes its colors by a profile or by primaries of its own; they are
    /// taken as sRGB all the same.
    [[nodiscard]] bool HasOwnColors() const { return header_.HasOwnColors; }
    /// Hands every row to `sink` once, the lowest first.
    void ReadRows(const RowSink& sink) { vendrel::ReadRows(input_, header_, sink); }
    /// The whole picture.
    [[nodiscard]] Surface Picture() { return ReadPicture(input_, header_); }

  private:
    BitmapInput input_;
    BitmapHeader header_;
};

/// The whole picture.
[[nodiscard]] Surface ReadBitmap(const std::filesystem::path& file);

/// The size in the file's header, signed and not judged: 0 and negative numbers come through.
[[nodiscard]] BitmapSize ReadBitmapSize(const std::filesystem::path& file);

}  // namespace vendrel
