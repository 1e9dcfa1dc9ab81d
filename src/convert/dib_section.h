#pragma once

#include <cstdint>
#include <memory>

#include "shell/ui.h"
#include "support/dib_view.h"
#include "support/surface.h"

namespace vendrel {

/// The header of a bitmap in memory, field for field as bitmap files carry it.
struct BitmapInfoHeader {
    std::uint32_t Size = 40;
    std::int32_t Width = 0;
    std::int32_t Height = 0;  // positive: rows stored bottom-up
    std::uint16_t Planes = 1;
    std::uint16_t BitCount = 24;
    std::uint32_t Compression = 0;  // none
    std::uint32_t SizeImage = 0;    // bytes of all rows, padding included
    std::int32_t XPelsPerMeter = 0;
    std::int32_t YPelsPerMeter = 0;
    std::uint32_t ClrUsed = 0;
    std::uint32_t ClrImportant = 0;
};
static_assert(sizeof(BitmapInfoHeader) == 40);

/// The header of a 24-bit picture. Throws OverflowError when its rows outgrow 31 bits.
[[nodiscard]] BitmapInfoHeader MakeInfoHeader(int width, int height);

/// A part of a picture in pixels; a side of -1 means the whole side of the cDIBSection involved.
struct PicturePart {
    int X = 0;
    int Y = 0;
    int Width = -1;
    int Height = -1;
};

enum class ClipboardFormat { Bitmap, Dib };

/// A 24-bit picture in memory with direct access to its rows: bytes blue, green, red, each row
/// filled up to a multiple of four bytes, the lowest row first. Empty until created.
class cDIBSection {
  public:
    /// A black image in place of the one held. False, and empty, when a side is below 1 or memory
    /// is short; OverflowError when width x BytesPerScanLine outgrows 31 bits.
    [[nodiscard]] bool Create(int width, int height);
    /// The same at the picture's size and with its pixels.
    [[nodiscard]] bool CreateFromPicture(const Surface& picture);
    /// Gives the image back; harmless on an empty object.
    void ClearUp();

    [[nodiscard]] int Width() const { return header_.Width; }
    [[nodiscard]] int Height() const { return header_.Height; }
    [[nodiscard]] int BytesPerScanLine() const { return (header_.Width * 3 + 3) & ~3; }

    /// The image to draw on and read from; empty when there is none. Dies with the image.
    [[nodiscard]] DibView hdc() const {
        return {bits_.get(), header_.Width, header_.Height, BytesPerScanLine()};
    }
    /// The image's header; null when there is none.
    [[nodiscard]] const BitmapInfoHeader* hDib() const { return bits_ ? &header_ : nullptr; }
    /// First byte of the lowest row; null when there is no image.
    [[nodiscard]] std::uint8_t* DIBSectionBitsPtr() { return bits_.get(); }
    [[nodiscard]] const std::uint8_t* DIBSectionBitsPtr() const { return bits_.get(); }

    /// Copies a part of the source into the image at (0, 0). What lies outside either is left out.
    void LoadPictureBlt(const DibView& source, const PicturePart& part = {});
    void LoadPictureBlt(const Surface& source, const PicturePart& part = {});
    /// Copies a part of the image to (x, y) of the target. What lies outside either is left out.
    void PaintPicture(const DibView& target, int x = 0, int y = 0,
                      const PicturePart& part = {}) const;
    void PaintPicture(Surface& target, int x = 0, int y = 0, const PicturePart& part = {}) const;

    /// Black all over.
    void Cls();
    void RandomiseBits();

    /// A new picture of another size by bilinear blending; of the same size a plain copy. Null when
    /// it cannot be created.
    [[nodiscard]] std::unique_ptr<cDIBSection> Resample(int newHeight, int newWidth) const;

    /// Puts the picture on the clipboard; false when that fails, and with a message for a Dib,
    /// which no clipboard here takes.
    [[nodiscard]] bool CopyToClipboard(Ui& screen,
                                       ClipboardFormat format = ClipboardFormat::Bitmap) const;

  private:
    [[nodiscard]] bool CreateDIB(int width, int height);
    [[nodiscard]] PicturePart Whole(const PicturePart& part) const;
    void ResampleDib(cDIBSection& target) const;

    BitmapInfoHeader header_;
    std::unique_ptr<std::uint8_t[]> bits_;
};

}  // namespace vendrel
