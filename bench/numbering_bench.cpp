// Numbering and stipple files at the size of a full work picture, 960 x 720 pixels, 50 paints.

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

#include "cleanup/paint_pass.h"
#include "output/cell_numbering.h"
#include "output/symbol_set.h"
#include "shell/palette.h"
#include "shell/recorder.h"
#include "shell/stipple_grid.h"
#include "storage/stipple_file.h"

namespace vendrel {
namespace {

constexpr int kPaints = 50;

// Soft shapes with some grain, as a photo's grid has them.
int PaintAt(double x, double y, std::mt19937& random) {
    const double shape = std::sin(x * 7) + std::sin(y * 5 + x * 3) + std::sin(x * y * 11);
    const double grain = static_cast<double>(random() % 1000) / 1000 * 0.15;
    return 1 + static_cast<int>((shape + 3 + grain) / 6.2 * kPaints);
}

class PaintedBench {
  public:
    explicit PaintedBench(int stippleSize) : bench(VENDREL_SOURCE_DIR) {
        WorkState& state = bench.State;
        SizeStipples(state, stippleSize);
        SetGrid(state, Grid<StippleCell>(960 / stippleSize, 720 / stippleSize));
        std::mt19937 random(1);
        for (int y = 1; y <= state.CellsDown; ++y) {
            for (int x = 1; x <= state.CellsAcross; ++x) {
                state.Stipples(x, y) = {
                    PaintAt(double(x) / state.CellsAcross, double(y) / state.CellsDown, random),
                    1 + (x - 1) * stippleSize + state.HalfStipple,
                    1 + (y - 1) * stippleSize + state.HalfStipple, 0};
            }
        }
        PaintList paints;
        for (int k = 1; k <= kPaints; ++k) {
            paints.Add({5 * k, 255 - 5 * k, 100, "Acme", "A1", "Paint", 0});
        }
        SetPalette(state, std::move(paints));
        state.PictureWidth = 960 * 15;
        state.PictureHeight = 720 * 15;
        state.PixelMap = Grid<MapPixel>(960, 720);
        bench.Frames.WorkFrame.Picture = Surface(960, 720);
        SetupBMPSymbols(bench.State, bench.Program);
        PaintAllCells(bench.Place);
    }

    test::Bench bench;
};

void BM_Numbering(benchmark::State& run) {
    PaintedBench painted(static_cast<int>(run.range(0)));
    NumberingCounts counts;
    for ([[maybe_unused]] const auto step : run) {
        counts = SetupCellNumbers(painted.bench.Place, nullptr).Counts;
    }
    run.counters["areas"] = counts.Areas;
    run.counters["symbols"] = counts.Symbols;
    run.counters["dots"] = counts.BorderDots;
}
BENCHMARK(BM_Numbering)->Arg(8)->Arg(6)->Arg(4)->Unit(benchmark::kMillisecond);

SavedGrid Saved(const WorkState& state) {
    return {state.PaintColors, state.Stipples, state.CellsAcross, state.CellsDown, 50};
}

void BM_FormatStippleFile(benchmark::State& run) {
    PaintedBench painted(4);
    for ([[maybe_unused]] const auto step : run) {
        benchmark::DoNotOptimize(FormatStippleFile(Saved(painted.bench.State)));
    }
}
BENCHMARK(BM_FormatStippleFile)->Unit(benchmark::kMillisecond);

void BM_ReadStippleFile(benchmark::State& run) {
    PaintedBench painted(4);
    const std::string text = FormatStippleFile(Saved(painted.bench.State));
    for ([[maybe_unused]] const auto step : run) {
        StippleFileReader reader(text, "a.stp");
        benchmark::DoNotOptimize(reader.ReadPalette());
        Grid<StippleCell> cells(reader.Header().Across, reader.Header().Down);
        for (int y = 1; y <= cells.Down(); ++y) {
            reader.ReadRow(cells, y, cells.Across());
        }
    }
}
BENCHMARK(BM_ReadStippleFile)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vendrel
