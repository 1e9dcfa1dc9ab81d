#include "plan/sticker_sheet.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "support/error.h"

namespace vendrel {

std::span<const StickerSheet> StickerSheets() {
    constexpr SizeMm kA4{210, 297};
    constexpr SizeMm kLetter{215.9, 279.4};
    static constexpr std::array<StickerSheet, 6> kSheets = {
        {{"38.1 x 21.2 mm, 65 on A4", kA4, {38.1, 21.2}, 5, 13, 4.65, 10.7, 40.65, 21.2},
         {"45.7 x 21.2 mm, 48 on A4", kA4, {45.7, 21.2}, 4, 12, 9.85, 21.3, 48.2, 21.2},
         {"52.5 x 29.7 mm, 40 on A4", kA4, {52.5, 29.7}, 4, 10, 0, 0, 52.5, 29.7},
         {"63.5 x 38.1 mm, 21 on A4", kA4, {63.5, 38.1}, 3, 7, 7.25, 15.15, 66, 38.1},
         {"44.5 x 12.7 mm, 80 on Letter", kLetter, {44.45, 12.7}, 4, 20, 7.14, 12.7, 52.39, 12.7},
         {"66.7 x 25.4 mm, 30 on Letter",
          kLetter,
          {66.675, 25.4},
          3,
          10,
          4.76,
          12.7,
          69.85,
          25.4}}};
    return kSheets;
}

StickerSheet StickerGrid(const SizeMm& paper, const SizeMm& label, double margin) {
    constexpr double kRounding = 1e-9;
    const auto fitting = [margin](double side, double each) {
        return each > 0 ? static_cast<int>((side - 2 * margin) / each + kRounding) : 0;
    };
    StickerSheet sheet{"", paper, label, fitting(paper.Width, label.Width),
                       fitting(paper.Height, label.Height)};
    if (sheet.Across < 1 || sheet.Down < 1) {
        throw Error("A label of that size does not fit on the paper. Choose a smaller one.");
    }
    sheet.StepX = label.Width;
    sheet.StepY = label.Height;
    sheet.Left = (paper.Width - sheet.Across * label.Width) / 2;
    sheet.Top = (paper.Height - sheet.Down * label.Height) / 2;
    return sheet;
}

std::vector<Sticker> StickersOf(const Shelf& shelf) {
    std::vector<Sticker> stickers;
    for (const ShelfPaint& paint : shelf.Paints) {
        if (paint.IsLeft() && !paint.Label.empty()) {
            stickers.push_back({paint.Label, PaintOf(paint)});
        }
    }
    // 2 before 10, as one looks for them.
    std::ranges::stable_sort(stickers, {}, [](const Sticker& sticker) {
        return std::pair(sticker.Label.size(), sticker.Label);
    });
    return stickers;
}

std::vector<StickerPlace> PlaceStickers(const StickerSheet& sheet, int count, int used) {
    std::vector<StickerPlace> places;
    for (int i = used; i < used + count; ++i) {
        const int onSheet = i % sheet.Count();
        const double left = sheet.Left + onSheet % sheet.Across * sheet.StepX;
        const double top = sheet.Top + onSheet / sheet.Across * sheet.StepY;
        places.push_back(
            {i / sheet.Count(), {left, top, left + sheet.Label.Width, top + sheet.Label.Height}});
    }
    return places;
}

}  // namespace vendrel
