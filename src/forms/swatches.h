#pragma once

namespace vendrel {

/// How the squares of a palette stand in a box, left to right and row by row. Sizes in pixels.
struct SwatchLayout {
    int Size = 0;
    int Columns = 0;

    [[nodiscard]] int Left(int index) const { return (index % Columns) * Size; }
    [[nodiscard]] int Top(int index) const { return (index / Columns) * Size; }
    /// The square under a pixel, counted from 0; -1 outside the columns.
    [[nodiscard]] int IndexAt(int x, int y) const;
};

/// Squares of 255 twips, smaller by as many pixels as it takes for `count` of them to fit.
[[nodiscard]] SwatchLayout LayOutSwatches(int boxWidth, int boxHeight, int count,
                                          int twipsPerPixel);

}  // namespace vendrel
