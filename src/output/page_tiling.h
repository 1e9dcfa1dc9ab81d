#pragma once

#include <string>
#include <vector>

#include "output/outlines.h"

namespace vendrel {

enum class Paper { A4, Letter, A3 };

/// Width and height in millimetres.
struct SizeMm {
    double Width = 0;
    double Height = 0;
    bool operator==(const SizeMm&) const = default;
};

/// The sheet upright.
[[nodiscard]] SizeMm SizeOf(Paper paper);

/// What every page of the plan keeps free around its part of the picture, in millimetres.
struct PageFrame {
    double Side = 0;    // left and right each
    double Top = 0;     // with the heading
    double Bottom = 0;  // with the list of paints
};

/// One page of the plan. Parts are in millimetres of the finished canvas.
struct PageTile {
    int Column = 0;  // from 0
    int Row = 0;
    PlanRect Own;                            // the page's share, trimmed at its crop marks
    PlanRect Shown;                          // with the overlap toward the pages beside it
    [[nodiscard]] std::string Name() const;  // "B3": row B, third page in it
};

/// A canvas cut into pages.
struct PagePlan {
    SizeMm Sheet;  // of paper, turned as it is printed
    SizeMm Canvas;
    int Across = 0;
    int Down = 0;
    std::vector<PageTile> Tiles;  // row by row
};

/// How much of the page beside it a page shows again, in millimetres from its trimmed edge.
inline constexpr double kOverlapMm = 5;

/// What one way of turning the paper leaves for each page.
struct PaperChoice {
    SizeMm Sheet;
    PageFrame Frame;
};

/// Cuts the canvas into equal shares that fit the choice that needs fewer pages (the first when it
/// makes no difference). Throws Error when a frame leaves no room on the paper.
[[nodiscard]] PagePlan PlanPages(const SizeMm& canvas, const std::vector<PaperChoice>& choices);

/// The paints that occur on a part of the picture (in pixels), ascending.
[[nodiscard]] std::vector<int> PaintsWithin(const PaintedRegions& regions, const PlanRect& part);

}  // namespace vendrel
