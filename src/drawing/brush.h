#pragma once

#include <span>

namespace vendrel {

/// Only 8-pixel stipples have a square stamp; the smaller sizes are always rounded.
enum class BrushShape { Square, Rounded };

/// Columns First..Last of one pixel row, relative to the centre of the stamp.
struct BrushRun {
    int Row;
    int First;
    int Last;
};

/// The stamp of one stipple of 8, 6 or 4 pixels; empty for any other size.
[[nodiscard]] std::span<const BrushRun> BrushStamp(int stippleSize, BrushShape shape);

/// Directions 1..8 as bits 0..7, clockwise from the upper left neighbour.
using Directions = unsigned;

/// Everything the rounded brush covers when it is dragged, pixel by pixel, from a cell's centre
/// toward the neighbours in `directions`, each time stopping one pixel short of the neighbour's
/// centre. Empty without directions or for a size other than 8, 6 and 4.
[[nodiscard]] std::span<const BrushRun> BrushStrokes(int stippleSize, Directions directions);

}  // namespace vendrel
