#include "output/chart_contents.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <numeric>
#include <string_view>
#include <tuple>

#include "shell/symbol_of.h"
#include "support/list.h"

namespace vendrel {
namespace {

constexpr std::int64_t kWhole = 1000;

}  // namespace

std::string PaintLabel(const PaintColor& paint) {
    return paint.Mfg + ": " + paint.PaintName + " [" + paint.PaintCode + "]";
}

std::vector<int> SharesInTenths(std::span<const int> counts) {
    const std::int64_t total = std::accumulate(counts.begin(), counts.end(), std::int64_t{0});
    std::vector<int> shares(counts.size());
    if (total == 0) {
        return shares;
    }
    std::int64_t left = kWhole;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        shares[i] = static_cast<int>(counts[i] * kWhole / total);
        left -= shares[i];
    }
    std::vector<std::size_t> byRemainder(counts.size());
    std::iota(byRemainder.begin(), byRemainder.end(), std::size_t{0});
    std::ranges::stable_sort(byRemainder, [&](std::size_t a, std::size_t b) {
        return counts[a] * kWhole % total > counts[b] * kWhole % total;
    });
    for (int i = 0; i < left; ++i) {
        ++shares[At(byRemainder, i)];
    }
    return shares;
}

std::vector<ChartRow> ListChart(const Palette& palette, const StippleGrid& grid) {
    const OneBased<int> counts = CountStipples(grid.Stipples, palette.PaintCount);
    const std::vector<int> shares = SharesInTenths(counts.Entries());
    std::vector<ChartRow> rows;
    for (int p = 1; p <= palette.PaintCount; ++p) {
        const PaintColor& paint = palette.PaintColors[p];
        rows.push_back({SymbolOf(palette.PaintColors, p), paint.Mfg, PaintLabel(paint),
                        ColorOf(paint), counts[p], At(shares, p - 1)});
    }
    return rows;
}

std::vector<ChartRow> FillChart(Palette& palette, const StippleGrid& grid) {
    std::vector<ChartRow> rows = ListChart(palette, grid);
    for (int p = 1; p <= palette.PaintCount; ++p) {
        palette.PaintColors[p].CellCount = At(rows, p - 1).Stipples;
    }
    return rows;
}

void SortChart(std::vector<ChartRow>& rows, ChartOrder order) {
    std::ranges::sort(rows, {}, &ChartRow::Symbol);
    if (order == ChartOrder::Share) {
        std::ranges::stable_sort(rows, std::ranges::greater{}, &ChartRow::Stipples);
    } else if (order == ChartOrder::Set) {
        std::ranges::stable_sort(rows, {},
                                 [](const ChartRow& row) { return std::tie(row.Set, row.Label); });
    }
}

std::string ShareText(int tenths) {
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + " %";
}

std::string PrintedName(const LoadedPhoto& photo) {
    constexpr std::string_view kCrop = " crop";
    std::string name = photo.PictureName;
    const std::string file = std::filesystem::path(photo.PicturePath).filename().string();
    // A title that the painter chose stays as it is.
    if (name.size() > kCrop.size() && name.ends_with(kCrop) && file.starts_with(name + ".")) {
        name.resize(name.size() - kCrop.size());
    }
    std::ranges::replace(name, '_', ' ');
    return name;
}

std::string KitTitle(const LoadedPhoto& photo, const WorkSettings& settings) {
    return PrintedName(photo) + ", " + std::string(DifficultyWord(settings));
}

}  // namespace vendrel
