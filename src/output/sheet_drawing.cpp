#include "output/sheet_drawing.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "convert/bitmap_writer.h"
#include "convert/dib_section.h"
#include "output/symbol_set.h"
#include "shell/symbol_of.h"
#include "support/error.h"

namespace vendrel {
namespace {

constexpr int kStripBytes = 512 * 1024;  // fits the processor's second cache

int CellSizeOf(const SheetLook& look) {
    return TraitsOf(look.Settings.Chosen.Level).SheetCellSize;
}

// Draws the picture rows of one strip, each SheetCellSize sheet rows high.
class StripPainter {
  public:
    StripPainter(const SheetRecord& record, const SheetLook& look);

    /// Draws `strip`, whose uppermost picture row is `first`.
    void Draw(cDIBSection& strip, int first) const;

  private:
    // Sheet rows that a symbol reaches, the last excluded.
    struct Reach {
        int Top = 0;
        int Bottom = 0;
    };

    void LayGround(cDIBSection& strip, int first) const;
    void DrawDots(const DibView& SheetDC, int first) const;
    void DrawSymbol(const DibView& SheetDC, std::size_t index, int first) const;
    [[nodiscard]] std::span<const GlyphPoint> InkOf(int paint) const {
        return vendrel::InkOf(look_.Shapes, SymbolOf(look_.Paints.PaintColors, paint));
    }

    const SheetRecord& record_;
    const SheetLook& look_;
    int scale_;
    std::vector<Reach> reaches_;  // per recorded symbol
};

StripPainter::StripPainter(const SheetRecord& record, const SheetLook& look)
    : record_(record), look_(look), scale_(CellSizeOf(look)) {
    for (const auto& [paint, at] : record.Symbols()) {
        Reach reach{scale_ * at.Y, scale_ * at.Y};
        for (const GlyphPoint& point : InkOf(paint)) {
            const int row = OnSheet(scale_, at.Y, point.Y);  // a strip counts its rows anew
            reach = {std::min(reach.Top, row), std::max(reach.Bottom, row + 1)};
        }
        reaches_.push_back(reach);
    }
}

void StripPainter::Draw(cDIBSection& strip, int first) const {
    LayGround(strip, first);
    const DibView SheetDC = strip.hdc();
    DrawDots(SheetDC, first);
    const int top = scale_ * first;
    for (std::size_t i = 0; i < reaches_.size(); ++i) {
        if (reaches_[i].Bottom > top && reaches_[i].Top < top + strip.Height()) {
            DrawSymbol(SheetDC, i, first);
        }
    }
}

void StripPainter::LayGround(cDIBSection& strip, int first) const {
    std::uint8_t* to = strip.DIBSectionBitsPtr();
    if (look_.Ground == nullptr) {
        std::fill_n(to, strip.hDib()->SizeImage, std::uint8_t{255});
        return;
    }
    const auto rowBytes = static_cast<std::size_t>(strip.BytesPerScanLine());
    for (int y = first + strip.Height() / scale_ - 1; y >= first; --y) {
        std::uint8_t* const row = to;
        for (const Color color : look_.Ground->Row(y)) {
            for (int i = 0; i < scale_; ++i) {
                StoreBgr(color, to);
                to += 3;
            }
        }
        to = row + rowBytes;
        for (int i = 1; i < scale_; ++i, to += rowBytes) {
            std::copy_n(row, rowBytes, to);
        }
    }
}

void StripPainter::DrawDots(const DibView& SheetDC, int first) const {
    for (int y = 0; y < SheetDC.Height() / scale_; ++y) {
        int x = 0;
        for (const int dot : record_.Dots(first + y)) {
            if (dot != 0) {
                SheetDC.Set(x, scale_ * y, look_.Settings.BorderColor);
            }
            x += scale_;
        }
    }
}

// All dots are there already, so those that came after the symbol are put back on top of it.
void StripPainter::DrawSymbol(const DibView& SheetDC, std::size_t index, int first) const {
    const auto& [paint, at] = record_.Symbols()[index];
    const auto ink = InkOf(paint);
    Number2CDIB(SheetDC, ink, scale_, look_.Inks[paint], {at.X, at.Y - first});
    for (const GlyphPoint& point : ink) {
        if (point.X % scale_ == 0 && point.Y % scale_ == 0) {
            const CellPos pixel{at.X + point.X / scale_, at.Y + point.Y / scale_};
            if (record_.DottedAfter(index, pixel)) {
                SheetDC.Set(scale_ * pixel.X, scale_ * (pixel.Y - first),
                            look_.Settings.BorderColor);
            }
        }
    }
}

void CreateStrip(cDIBSection& strip, int width, int height) {
    if (!strip.Create(width, height)) {
        throw Error("There is not enough memory for a sheet " + std::to_string(width) +
                    " pixels wide. Close other programs and try again.");
    }
}

}  // namespace

void WriteDrawing(const Target& target, const SheetRecord& record, const SheetLook& look) {
    const int scale = CellSizeOf(look);
    const int width = record.Width() * scale;
    const StripPainter painter(record, look);
    std::array<std::shared_ptr<cDIBSection>, BitmapStream::kBlocksInHand> strips;
    BitmapStream stream(target, width, record.Height() * scale);
    const int rows = std::max(1, kStripBytes / (3 * width * scale));
    std::size_t at = 0;
    for (int bottom = record.Height(); bottom > 0; bottom -= rows) {
        const int first = std::max(0, bottom - rows);
        std::shared_ptr<cDIBSection>& owner = strips[at];
        at = (at + 1) % strips.size();
        if (owner == nullptr) {
            owner = std::make_shared<cDIBSection>();
        }
        cDIBSection& strip = *owner;
        if (strip.Height() != (bottom - first) * scale) {
            CreateStrip(strip, width, (bottom - first) * scale);
        }
        painter.Draw(strip, first);
        stream.Write({strip.DIBSectionBitsPtr(), strip.hDib()->SizeImage}, owner);
    }
    stream.Commit();
}

}  // namespace vendrel
