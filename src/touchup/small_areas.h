#pragma once

#include <vector>

#include "touchup/edit_sheet.h"

namespace vendrel {

/// What a brush can still paint, in stipples.
struct StippleLimits {
    double Smallest = 0;   // stipples of an area
    double Narrowest = 0;  // diameter of the disc that every area holds
};

/// A printed area, stipples of one paint that touch side by side, that is below the limits.
struct HardArea {
    CellPos At;  // its first stipple, row-major
    int Size = 0;
    bool operator==(const HardArea&) const = default;
};

/// The areas below the limits by their first stipples, row-major, and whose each stipple is.
struct HardAreas {
    std::vector<HardArea> List;
    std::vector<CellPos> Cells;  // row-major

    /// The first area after `from`, starting over at the top; {0, 0} begins there. Nothing where
    /// there is none.
    [[nodiscard]] const HardArea* Next(CellPos from) const;
};

/// The paint of every stipple, by place from 0.
[[nodiscard]] ValueGrid PaintsOf(const EditSheet& sheet);

[[nodiscard]] HardAreas FindHardAreas(const EditSheet& sheet, const StippleLimits& limits);

/// The stipples that would change, row-major, if every area of fewer than `smallest` stipples took
/// the paint with which it shares the longest border, and the areas left then.
struct AreaMerge {
    std::vector<CellChange> Changes;
    int AreasLeft = 0;
};
[[nodiscard]] AreaMerge PlanAreaMerge(const EditSheet& sheet, int smallest);
/// The printed areas once these changes are made.
[[nodiscard]] int CountPrintedAfter(const EditSheet& sheet, const std::vector<CellChange>& changes);

/// The fewest stipples, each `mmPerStipple` wide, that are no smaller than that.
[[nodiscard]] int StipplesOfMm2(double mm2, double mmPerStipple);

}  // namespace vendrel
