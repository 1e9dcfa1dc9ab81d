#pragma once

#include <functional>
#include <string>
#include <vector>

#include "plan/outlines.h"
#include "plan/paper.h"

namespace vendrel {

/// What every page of the plan keeps free around its part of the picture and its list of paints,
/// in millimetres.
struct PageFrame {
    double Side = 0;  // left and right each
    double Top = 0;   // with the heading
    double Bottom = 0;
};

/// One page of the plan. Parts are in millimetres of the finished canvas.
struct PageTile {
    int Column = 0;  // from 0
    int Row = 0;
    PlanRect Own;           // the page's share, trimmed at its crop marks
    PlanRect Shown;         // with the overlap under the pages right and below
    double ListHeight = 0;  // of its paints, in millimetres

    [[nodiscard]] std::string Name() const;  // "B3": row B, third page in it
};

/// One way of turning the paper and of placing the lists.
struct PaperChoice {
    SizeMm Sheet;
    PageFrame Frame;
    int ListColumns = 1;
    double Beside = 0;  // width of the list to the right of the picture; 0: it stands below
};

/// A canvas cut into pages.
struct PagePlan {
    PaperChoice Paper;
    SizeMm Canvas;
    int Across = 0;
    int Down = 0;
    std::vector<PageTile> Tiles;  // row by row
};

/// How much of the pages to the right and below a page shows again: the strip on which they are
/// glued, in millimetres. To the left and the top it is trimmed where its own share begins.
inline constexpr double kOverlapMm = 5;

/// Where stipples begin on the canvas: every Step millimetres from First on.
struct StippleRuler {
    double First = 0;
    double Step = 0;  // 0: no stipples to spare
};

/// Height in millimetres of the list of a page's share of the canvas.
using ListHeight = std::function<double(const PaperChoice& paper, const PlanRect& own)>;

/// What is to be cut.
struct CanvasToCut {
    SizeMm Size;
    StippleRuler Stipples;
    ListHeight List;  // none: nothing is listed
};

/// Cuts the canvas between its stipples into about equal shares, by the choice that needs the
/// fewest pages; of several by the one with the most room to grow, the first when it makes no
/// difference. Throws Error when none leaves room on the paper.
[[nodiscard]] PagePlan PlanPages(const CanvasToCut& canvas,
                                 const std::vector<PaperChoice>& choices);

/// How many times larger the canvas could be on the same pages.
[[nodiscard]] double RoomToGrow(const PagePlan& plan);
/// The same pages for a canvas so many times larger.
[[nodiscard]] PagePlan Enlarged(const PagePlan& plan, double times);

}  // namespace vendrel
