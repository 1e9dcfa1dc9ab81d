#pragma once

namespace vendrel {

/// A position on a grid: column X, row Y.
struct CellPos {
    int X = 0;
    int Y = 0;
    bool operator==(const CellPos&) const = default;
};

}  // namespace vendrel
