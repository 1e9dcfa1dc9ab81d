#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "plan/outlines.h"
#include "plan/paper.h"
#include "shelf/shelf.h"

namespace vendrel {

/// A sheet of labels for pots as shops sell them, or a grid to cut out, in millimeters. The first
/// label's corner lies at (Left, Top); the next one begins StepX to the right, the next row StepY
/// below.
struct StickerSheet {
    std::string_view Name;
    SizeMm Paper;
    SizeMm Label;
    int Across = 1;
    int Down = 1;
    double Left = 0;
    double Top = 0;
    double StepX = 0;
    double StepY = 0;

    [[nodiscard]] int Count() const { return Across * Down; }
};

/// Common sheets, by the size of their labels.
[[nodiscard]] std::span<const StickerSheet> StickerSheets();

/// As many labels of a size as a paper holds, side by side in its middle, with `margin` around that
/// printers cannot reach. Throws Error when it holds none.
[[nodiscard]] StickerSheet StickerGrid(const SizeMm& paper, const SizeMm& label, double margin);

/// What is written on a pot.
struct Sticker {
    std::string Label;
    PaintColor Paint;
};
/// Of the paints that are left and have a label, by their labels.
[[nodiscard]] std::vector<Sticker> StickersOf(const Shelf& shelf);

/// Where a sticker goes.
struct StickerPlace {
    int Page = 0;  // from 0
    PlanRect Box;  // in millimeters
};

/// The places of `count` stickers, row by row; the first `used` labels of the first sheet are gone
/// already (0..Count() - 1).
[[nodiscard]] std::vector<StickerPlace> PlaceStickers(const StickerSheet& sheet, int count,
                                                      int used);

}  // namespace vendrel
