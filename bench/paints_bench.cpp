#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

#include "eye/palette_by_eye.h"
#include "paints/nearest_paint.h"
#include "paints/palette_reduction.h"
#include "shell/owned_first.h"
#include "shell/palette.h"
#include "shell/records.h"
#include "shell/stipple_grid.h"
#include "shell/work_state.h"

namespace vendrel {
namespace {

// Colours wander from cell to cell as they do across a photo.
std::vector<Channels> PhotoColors(int count) {
    std::mt19937 random(3);
    std::uniform_int_distribution<int> step(-9, 9);
    std::vector<Channels> colors;
    Channels color{128, 110, 90};
    const auto wander = [&](int& channel) { channel = std::clamp(channel + step(random), 0, 255); };
    for (int i = 0; i < count; ++i) {
        wander(color.Red);
        wander(color.Green);
        wander(color.Blue);
        colors.push_back(color);
    }
    return colors;
}

PaintList Catalogue(int count) {
    std::mt19937 random(5);
    std::uniform_int_distribution<int> channel(0, 255);
    PaintList paints(static_cast<std::size_t>(count) + 1);
    for (PaintColor& paint : paints) {
        paint = {channel(random),
                 channel(random),
                 channel(random),
                 "Artist Acrylics",
                 "PW6",
                 "Titanium White",
                 0};
    }
    return paints;
}

// Cells of a 960 x 720 picture at the three difficulties; 50 to 2000 paints to choose from.
void MatchCells(benchmark::State& bench) {
    const std::vector<Channels> colors = PhotoColors(static_cast<int>(bench.range(0)));
    const PaintList paints = Catalogue(static_cast<int>(bench.range(1)));
    for ([[maybe_unused]] const auto step : bench) {
        NearestPaintTable table(paints);
        int sum = 0;
        for (const Channels& color : colors) {
            sum += table.Find(color);
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(MatchCells)
    ->ArgNames({"cells", "paints"})
    ->ArgsProduct({{10800, 19200, 43200}, {50, 500}})
    ->Args({43200, 2000})
    ->Unit(benchmark::kMicrosecond);

// What is owned goes first: 50 of 1,000 paints for the cells of a 960 x 720 picture, by eye.
void ChooseOwnedFirst(benchmark::State& bench) {
    std::vector<Color> cells;
    for (const Channels& color : PhotoColors(static_cast<int>(bench.range(0)))) {
        cells.push_back(Rgb(color.Red, color.Green, color.Blue));
    }
    std::vector<Color> paints;
    for (const PaintColor& paint : Catalogue(1000)) {
        paints.push_back(ColorOf(paint));
    }
    BuyTerms terms{std::vector<bool>(paints.size()), kUsualWorth, kMostToBuy};
    std::fill_n(terms.IsOwned.begin(), bench.range(1), true);
    for ([[maybe_unused]] const auto step : bench) {
        const ColorBins bins = BinColors(cells);
        const SeenTable table(bins.Colors, paints);
        benchmark::DoNotOptimize(ChoosePaintsByEye(table, bins.Stipples, 50, terms));
    }
}
BENCHMARK(ChooseOwnedFirst)
    ->ArgNames({"cells", "owned"})
    ->ArgsProduct({{10800, 43200}, {40, 200}})
    ->Unit(benchmark::kMillisecond);

// Every cell at the hardest difficulty, from as many matched paints down to 16.
void Reduce(benchmark::State& bench) {
    constexpr int kAcross = 240;
    constexpr int kDown = 180;
    const int found = static_cast<int>(bench.range(0));
    WorkState full;
    SetPalette(full, Catalogue(found));
    SetGrid(full, Grid<StippleCell>(kAcross, kDown));
    OneBased<int> counts(found);
    for (int y = 1; y <= kDown; ++y) {
        for (int x = 1; x <= kAcross; ++x) {
            const int paint = 1 + (x * y + x) % found;
            full.Stipples(x, y).ColorIndex = paint;
            ++counts[paint];
        }
    }
    for ([[maybe_unused]] const auto step : bench) {
        bench.PauseTiming();
        WorkState state = full;
        bench.ResumeTiming();
        PaletteReduction reduction(state, counts);
        while (reduction.PaintCount() > 16) {
            reduction.Remove(LeastUsed(reduction.Counts()));
        }
        reduction.Commit(state, state);
        benchmark::DoNotOptimize(state.PaintCount);
    }
}
BENCHMARK(Reduce)->ArgName("found")->Arg(50)->Arg(200)->Arg(400)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vendrel
