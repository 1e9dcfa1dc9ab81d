#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "support/cell_pos.h"
#include "support/color.h"
#include "support/one_based.h"

namespace vendrel {

/// One paint, of the catalogue, the working palette, the found colours or a template.
struct PaintColor {
    int Red = 0;  // channels 0..255
    int Green = 0;
    int Blue = 0;
    std::string Mfg;  // the paint set it belongs to
    std::string PaintCode;
    std::string PaintName;
    int CellCount = 0;  // stipples painted with it, once counted

    bool operator==(const PaintColor&) const = default;
};

[[nodiscard]] inline Color ColorOf(const PaintColor& paint) {
    return Rgb(paint.Red, paint.Green, paint.Blue);
}

/// Paints numbered from 1: a palette, a template, the catalogue.
using PaintList = OneBased<PaintColor>;

/// A range of paints that may be allowed for matching.
struct PaintSet {
    std::string Name;
    bool Selected = false;
};

/// One cell of the stipple grid.
struct StippleCell {
    int ColorIndex = 0;  // paint 1..PaintCount, 0 none
    int X = 0;           // photo pixel of the centre
    int Y = 0;
    int AreaNumber = 0;  // 0 until marked
    int Spare[3] = {};   // carried along, always 0

    bool operator==(const StippleCell&) const = default;
};

/// Working marks of the area search, one per cell.
struct CellMark {
    int AreaNumber = 0;
    bool Visited = false;
    bool Loner = false;

    bool operator==(const CellMark&) const = default;
};

/// What the brush left on one photo pixel.
struct MapPixel {
    int ColorIndex = 0;         // the paint that claimed the pixel last, 0 none
    Color PixelColor = kBlack;  // the colour a clean-up wrote there

    bool operator==(const MapPixel&) const = default;
};

/// A connected area of one paint.
struct PaintArea {
    int StippleCount = 0;
    int ColorIndex = 0;
    std::vector<CellPos> Members;  // row-major order
    bool Painted = false;
};

/// What the numbering of a sheet finds on one picture pixel. Small, since a picture has a million.
struct NumberPixel {
    std::int16_t ColorIndex = 0;  // the paint of the pixel, 0 none
    std::int16_t XTwips = 0;
    std::int16_t YTwips = 0;
    std::int16_t AreaNumber = 0;  // the area that met the pixel as its border last
    bool IsBorder = false;

    bool operator==(const NumberPixel&) const = default;
};

/// Visit mark of the numbering, with all that its walk must know of a pixel in four bytes: it looks
/// at every pixel five times, each time in another row.
struct NumberMark {
    std::int16_t AreaNumber = 0;  // the area the pixel belongs to
    bool Marked = false;
    bool Queued : 1 = false;          // waits in the queue, or did before it was marked
    std::uint8_t ColorIndex : 7 = 0;  // the paint of the pixel; 127 for all beyond the palette

    bool operator==(const NumberMark&) const = default;
};

/// A pixel of a symbol, relative to the corner it is stamped at.
struct GlyphPoint {
    int X = 0;
    int Y = 0;
    bool operator==(const GlyphPoint&) const = default;
};

/// A symbol's pixels.
struct SymbolGlyph {
    OneBased<GlyphPoint> Points;
    [[nodiscard]] int PointCount() const { return Points.Count(); }
};

}  // namespace vendrel
