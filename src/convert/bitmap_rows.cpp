#include "convert/bitmap_rows.h"

#include <algorithm>
#include <string>
#include <vector>

#include "support/error.h"
#include "support/list.h"

namespace vendrel {
namespace {

// kNoColor is the only colour with its sign bit set, so one look at the end judges the whole row.
void CheckPalette(Color seen, const std::filesystem::path& file) {
    if (seen < 0) {
        throw FormatError(file, 0,
                          "has pixels whose color is missing from its palette. Open it in a "
                          "picture program and save it again as a BMP of 24 bits.");
    }
}

void UnpackIndexed(const BitmapHeader& header, const std::uint8_t* bytes, std::span<Color> row,
                   const std::filesystem::path& file) {
    const auto bits = static_cast<std::size_t>(header.BitsPerPixel);
    const std::size_t perByte = 8 / bits;
    const std::size_t mask = (std::size_t{1} << bits) - 1;
    Color seen = 0;
    for (std::size_t x = 0; x < row.size(); ++x) {
        const std::size_t shift = (perByte - 1 - x % perByte) * bits;
        row[x] = header.Palette[bytes[x / perByte] >> shift & mask];
        seen |= row[x];
    }
    CheckPalette(seen, file);
}

void Unpack24(const std::uint8_t* bytes, std::span<Color> row) {
    for (Color& pixel : row) {
        pixel = Rgb(bytes[2], bytes[1], bytes[0]);
        bytes += 3;
    }
}

int Level(const BitmapChannel& channel, std::uint32_t pixel) {
    return channel.Level[pixel >> channel.Shift & channel.Max];
}

void UnpackMasked(const BitmapHeader& header, const std::uint8_t* bytes, std::span<Color> row) {
    const bool wide = header.BitsPerPixel == 32;
    for (Color& color : row) {
        std::uint32_t pixel = std::uint32_t{bytes[0]} | std::uint32_t{bytes[1]} << 8;
        if (wide) {
            pixel |= std::uint32_t{bytes[2]} << 16 | std::uint32_t{bytes[3]} << 24;
        }
        color =
            Rgb(Level(header.Red, pixel), Level(header.Green, pixel), Level(header.Blue, pixel));
        bytes += wide ? 4 : 2;
    }
}

/// The pen that walks over the picture while run lengths are read.
class RunReader {
  public:
    RunReader(BitmapInput& input, const BitmapHeader& header,
              const std::function<void(int, std::span<const Color>)>& sink)
        : input_(input),
          header_(header),
          sink_(sink),
          nibbles_(header.Packing == BitmapPacking::Rle4),
          row_(static_cast<std::size_t>(header.Size.Width), header.Palette[0]) {}

    void ReadAll() {
        while (y_ < header_.Size.Height) {
            const int count = input_.ReadByte();
            const int value = input_.ReadByte();
            if (count > 0) {
                Run(count, value);
            } else {
                Escape(value);
            }
        }
    }

  private:
    void Escape(int code) {
        switch (code) {
            case 0:
                EndRow();
                break;
            case 1:
                SkipRows(header_.Size.Height - y_);
                break;
            case 2:
                Move();
                break;
            default:
                Literal(code);
        }
    }

    // To the very edge is still inside: nothing need be painted there.
    void Move() {
        const int x = std::min(x_, header_.Size.Width) + input_.ReadByte();
        const int up = input_.ReadByte();
        if (x > header_.Size.Width || y_ + up > header_.Size.Height) {
            Refuse("point outside the picture");
        }
        SkipRows(up);
        x_ = x;
    }

    void Run(int count, int value) {
        for (int i = 0; i < count; ++i) {
            Put(nibbles_ ? NibbleOf(value, i) : value);
        }
    }

    // Literal pixels fill whole 16-bit words.
    void Literal(int count) {
        const int bytes = nibbles_ ? (count + 1) / 2 : count;
        int value = 0;
        for (int i = 0; i < count; ++i) {
            if (!nibbles_ || i % 2 == 0) {
                value = input_.ReadByte();
            }
            Put(nibbles_ ? NibbleOf(value, i) : value);
        }
        if (bytes % 2 != 0) {
            static_cast<void>(input_.ReadByte());
        }
    }

    static int NibbleOf(int value, int place) { return place % 2 == 0 ? value >> 4 : value & 15; }

    void Put(int index) {
        if (x_ < header_.Size.Width) {
            const Color color = At(header_.Palette, index);
            seen_ |= color;
            At(row_, x_) = color;
        } else if (!nibbles_ || x_ > header_.Size.Width) {
            Refuse("go on past the end of a row");
        }
        // Two pixels to a byte: some programs round a row up to whole bytes, and one is dropped.
        ++x_;
    }

    [[noreturn]] void Refuse(const std::string& problem) const {
        throw FormatError(input_.File(), 0,
                          "is damaged: its run lengths " + problem +
                              ". Copy the photo again, or save it again as a BMP of 24 bits.");
    }

    void EndRow() {
        CheckPalette(seen_, input_.File());
        sink_(header_.Size.Height - 1 - y_, row_);
        std::fill(row_.begin(), row_.end(), header_.Palette[0]);
        x_ = 0;
        ++y_;
    }

    void SkipRows(int count) {
        for (int i = 0; i < count; ++i) {
            EndRow();
        }
    }

    BitmapInput& input_;
    const BitmapHeader& header_;
    const std::function<void(int, std::span<const Color>)>& sink_;
    bool nibbles_;
    std::vector<Color> row_;
    Color seen_ = 0;
    int x_ = 0;
    int y_ = 0;  // from the bottom
};

}  // namespace

void UnpackRow(const BitmapHeader& header, const std::uint8_t* bytes, std::span<Color> row,
               const std::filesystem::path& file) {
    if (header.BitsPerPixel == 24) {
        Unpack24(bytes, row);
    } else if (header.BitsPerPixel <= 8) {
        UnpackIndexed(header, bytes, row, file);
    } else {
        UnpackMasked(header, bytes, row);
    }
}

void ReadRunRows(BitmapInput& input, const BitmapHeader& header,
                 const std::function<void(int y, std::span<const Color> row)>& sink) {
    input.Seek(header.PixelOffset);
    RunReader(input, header, sink).ReadAll();
}

}  // namespace vendrel
