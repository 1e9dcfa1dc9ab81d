#pragma once

#include "plan/inscribed_boxes.h"
#include "plan/symbol_aspects.h"
#include "support/print_scale.h"

namespace vendrel {

/// Height of the smallest symbol when the canvas may be as large as it likes, in millimetres.
inline constexpr double kLegibleSymbolMm = 2;
/// A symbol larger than this wastes paint.
inline constexpr double kLargestSymbolMm = 3;
/// What is drawn around areas, in millimeters.
inline constexpr double kBorderMm = 0.13;

/// How symbols keep off the lines around them. All in one unit.
struct SymbolAir {
    double Wanted = 0;   // to the middle of a line, where a symbol of legible height has it
    double Least = 0;    // that legible ones make do with, and smaller ones keep
    double Legible = 0;  // height
    double Largest = 0;

    /// How tall a symbol is drawn where it could be so tall with the air wanted, with the least and
    /// with none.
    [[nodiscard]] double HeightIn(double withWantedAir, double withLeastAir,
                                  double withoutAir) const;
};

/// In millimeters.
[[nodiscard]] SymbolAir AirInPrint();
[[nodiscard]] SymbolAir InPixels(const SymbolAir& air, PrintScale scale);

/// A box that a symbol has to itself, in pixels, and how wide the symbol is for its height.
struct SymbolRoom {
    double Width = 0;
    double Height = 0;
    double Aspect = 1;

    /// How tall the symbol is printed in it, in millimeters.
    [[nodiscard]] double SymbolMm(PrintScale scale) const;
    [[nodiscard]] SymbolRoom Times(double times) const {
        return {Width * times, Height * times, Aspect};
    }
    /// How wide a pixel has to be for a legible symbol, in millimeters.
    [[nodiscard]] double LegiblePixelMm() const;
};

/// How many times larger a symbol has to be printed that is so tall in its room, in millimeters,
/// until it is legible.
[[nodiscard]] double GrowthToLegible(double heightMm);

/// What a region's box leaves to a symbol of such an aspect.
[[nodiscard]] SymbolRoom RoomIn(const InscribedBox& box, double aspect);

/// What a lone stipple of that size has for a symbol of such an aspect.
[[nodiscard]] SymbolRoom RoomInStipple(int stippleSize, double aspect);

}  // namespace vendrel
