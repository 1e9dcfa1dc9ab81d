#pragma once

#include <algorithm>

#include "support/cell_pos.h"

namespace vendrel {

/// A rectangle of stipples, all four sides included; empty at first.
struct CellRect {
    int Left = 1;
    int Top = 1;
    int Right = 0;
    int Bottom = 0;

    [[nodiscard]] bool Empty() const { return Right < Left || Bottom < Top; }

    void Include(CellPos pos) {
        if (Empty()) {
            *this = {pos.X, pos.Y, pos.X, pos.Y};
            return;
        }
        Left = std::min(Left, pos.X);
        Top = std::min(Top, pos.Y);
        Right = std::max(Right, pos.X);
        Bottom = std::max(Bottom, pos.Y);
    }

    bool operator==(const CellRect&) const = default;
};

}  // namespace vendrel
