#pragma once

#include <span>
#include <string>
#include <vector>

#include "shell/loaded_photo.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"
#include "shell/work_settings.h"
#include "support/color.h"

namespace vendrel {

/// One paint of the chart.
struct ChartRow {
    int Symbol = 0;     // that marks it
    std::string Set;    // the paint set alone
    std::string Label;  // set, name and code
    Color Swatch = kBlack;
    int Stipples = 0;
    int ShareTenths = 0;  // of the picture, in tenths of a percent

    bool operator==(const ChartRow&) const = default;
};

enum class ChartOrder { Symbol, Share, Set };

/// Lists every paint in palette order with its stipples of the grid.
[[nodiscard]] std::vector<ChartRow> ListChart(const Palette& palette, const StippleGrid& grid);

/// The same, and keeps what it counted in CellCount.
[[nodiscard]] std::vector<ChartRow> FillChart(Palette& palette, const StippleGrid& grid);

/// By symbol, by share with the largest first, or by set and name; equals stay in symbol order.
void SortChart(std::vector<ChartRow>& rows, ChartOrder order);

/// Tenths of a percent that add up to exactly 1000: everybody gets the whole tenths due, and the
/// largest remainders one more. All 0 when nothing is counted.
[[nodiscard]] std::vector<int> SharesInTenths(std::span<const int> counts);

/// "12.3 %".
[[nodiscard]] std::string ShareText(int tenths);

/// The photo's name as a title: cameras and painters write "_" for a space.
[[nodiscard]] std::string PrintedName(const LoadedPhoto& photo);

/// The same with the difficulty, as a kit is called: "beach, Medium".
[[nodiscard]] std::string KitTitle(const LoadedPhoto& photo, const WorkSettings& settings);

/// "Set: Name [Code]".
[[nodiscard]] std::string PaintLabel(const PaintColor& paint);

}  // namespace vendrel
