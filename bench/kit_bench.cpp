// Every step of a kit and the whole command, on a photo-like picture with 50 paints. The argument
// of a step is the stipple's edge: 8 Easy, 6 Medium, 4 Difficult.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "cleanup/paint_pass.h"
#include "convert/bitmap_writer.h"
#include "convert/photo_import.h"
#include "convert/stipple_conversion.h"
#include "kit/command_line.h"
#include "kit/kit_settings.h"
#include "kit/terminal_ui.h"
#include "output/painting_writer.h"
#include "output/sheet_writer.h"
#include "scene.h"
#include "shell/palette.h"
#include "startup/start_up.h"
#include "storage/stipple_file.h"

namespace vendrel::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kWidth = 960;
constexpr int kHeight = 720;

// A folder with the photos of all sizes that a benchmark asks for, gone at the end.
class Photos {
  public:
    Photos() { fs::create_directories(Folder / "Pictures"); }
    ~Photos() { fs::remove_all(Folder); }
    Photos(const Photos&) = delete;
    Photos& operator=(const Photos&) = delete;

    std::string Photo(int width, int height) {
        std::string name = "scene" + std::to_string(width) + ".bmp";
        if (!fs::exists(Folder / "Pictures" / name)) {
            WriteBitmap(Folder / "Pictures" / name, Scene::Paint(width, height));
        }
        return name;
    }

    const fs::path Folder =
        fs::temp_directory_path() / ("vendrel-bench-" + std::to_string(std::random_device()()));
};

Photos& ThePhotos() {
    static Photos photos;
    return photos;
}

// A workplace as the command line sets it up, taken to any stage.
struct Studio {
    explicit Studio(std::int64_t stippleSize)
        : Ui(Nowhere, Chatter::None, ScreenSize::FromPixels(1920, 1080)),
          Folder(ThePhotos().Folder, VENDREL_SOURCE_DIR) {
        PrepareSettings(Place);
        (void)PrepareFolders(Folder);
        PreparePaints(Place);
        KitOptions options;
        options.Chosen.Level = stippleSize == 8   ? Difficulty::Easy
                               : stippleSize == 6 ? Difficulty::Medium
                                                  : Difficulty::Difficult;
        ApplySettings(Place, options);
    }
    void Choose(int width, int height) {
        (void)ChoosePhoto(State, Folder, ThePhotos().Photo(width, height));
        (void)LoadNewPicture(Place);
    }
    void Convert() {
        const PaintList palette = State.PaintColors;
        ChangeToStipples_Click(Place);
        spare_ = palette;
    }
    // The next conversion starts from the selection again, not from the paints just kept.
    void Restore() { SetPalette(State, spare_); }

    std::ostringstream Nowhere;
    TerminalUi Ui;
    WorkState State;
    Surfaces Frames;
    Menu MainMenu;
    ProgramFolder Folder;
    Workplace Place{State, Frames, MainMenu, Ui, Folder};

  private:
    PaintList spare_;
};

void StartUp(benchmark::State& run) {
    for ([[maybe_unused]] const auto step : run) {
        Studio studio(8);
        benchmark::DoNotOptimize(studio.State.PaintCount);
    }
}
BENCHMARK(StartUp)->Unit(benchmark::kMillisecond);

void Import(benchmark::State& run) {
    Studio studio(8);
    const auto width = static_cast<int>(run.range(0));
    for ([[maybe_unused]] const auto step : run) {
        studio.Choose(width, width * 3 / 4);
    }
    run.SetComplexityN(run.range(0) * run.range(0));
}
BENCHMARK(Import)
    ->Arg(480)
    ->Arg(960)
    ->Arg(1920)
    ->Arg(3840)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void Convert(benchmark::State& run) {
    Studio studio(run.range(0));
    studio.Choose(kWidth, kHeight);
    for ([[maybe_unused]] const auto step : run) {
        studio.Convert();
        run.PauseTiming();
        studio.Restore();
        run.ResumeTiming();
    }
}
BENCHMARK(Convert)->Arg(8)->Arg(6)->Arg(4)->Unit(benchmark::kMillisecond);

// Cost by the number of paints allowed; more than the catalogue has are darker copies.
void ConvertByPaints(benchmark::State& run) {
    Studio studio(4);
    studio.Choose(kWidth, kHeight);
    PaintList paints;
    for (int i = 0; i < run.range(0); ++i) {
        PaintColor paint = studio.State.MasterColors[i % studio.State.MasterCount + 1];
        paint.Red = std::max(1, paint.Red - i / studio.State.MasterCount);
        paints.Add(paint);
    }
    for ([[maybe_unused]] const auto step : run) {
        run.PauseTiming();
        SetPalette(studio.State, paints);
        run.ResumeTiming();
        ChangeToStipples_Click(studio.Place);
    }
    run.SetComplexityN(run.range(0));
}
BENCHMARK(ConvertByPaints)
    ->RangeMultiplier(4)
    ->Range(64, 4096)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void PaintPass(benchmark::State& run) {
    Studio studio(run.range(0));
    studio.Choose(kWidth, kHeight);
    studio.Convert();
    for ([[maybe_unused]] const auto step : run) {
        PaintItNow_Click(studio.Place);
    }
}
BENCHMARK(PaintPass)->Arg(8)->Arg(6)->Arg(4)->Unit(benchmark::kMillisecond);

void Sheet(benchmark::State& run) {
    Studio studio(run.range(0));
    studio.Choose(kWidth, kHeight);
    studio.Convert();
    PaintItNow_Click(studio.Place);
    for ([[maybe_unused]] const auto step : run) {
        NumberedPainting(studio.Place).WriteSheet(studio.Place.Folder.Path("Results/sheet.BMP"));
    }
}
BENCHMARK(Sheet)->Arg(8)->Arg(6)->Arg(4)->Unit(benchmark::kMillisecond);

void Painting(benchmark::State& run) {
    Studio studio(8);
    studio.Choose(kWidth, kHeight);
    studio.Convert();
    PaintItNow_Click(studio.Place);
    for ([[maybe_unused]] const auto step : run) {
        WritePainting(studio.Ui, studio.Frames.WorkFrame.Picture,
                      studio.Place.Folder.Path("Results/painting.BMP"));
    }
}
BENCHMARK(Painting)->Unit(benchmark::kMillisecond);

void SavedGridFile(benchmark::State& run) {
    Studio studio(run.range(0));
    studio.Choose(kWidth, kHeight);
    studio.Convert();
    const WorkState& state = studio.State;
    for ([[maybe_unused]] const auto step : run) {
        WriteStippleFile(StippleFilePath(studio.Folder, studio.State, studio.State),
                         {state.PaintColors, state.Stipples, state.CellsAcross, state.CellsDown,
                          state.FinalColors});
    }
}
BENCHMARK(SavedGridFile)->Arg(8)->Arg(6)->Arg(4)->Unit(benchmark::kMillisecond);

void WholeKit(benchmark::State& run, const char* difficulty, const char* outputs) {
    const std::string photo = ThePhotos().Photo(kWidth, kHeight);
    const std::string folder = ThePhotos().Folder.string();
    const std::vector<std::string_view> words = {
        "kit",      photo,       "--folder", folder,    "--difficulty",
        difficulty, "--outputs", outputs,    "--quiet", "--replace-grid"};
    std::ostringstream out;
    std::ostringstream err;
    const Surroundings around{.Out = out, .Err = err, .Shipped = VENDREL_SOURCE_DIR};
    for ([[maybe_unused]] const auto step : run) {
        if (RunCommandLine(words, around) != 0) {
            run.SkipWithError(err.str().c_str());
            return;
        }
    }
}
constexpr const char* kAll = "sheet,painting,grid";
BENCHMARK_CAPTURE(WholeKit, EasyPainting, "easy", "painting")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WholeKit, MediumPainting, "medium", "painting")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WholeKit, DifficultPainting, "difficult", "painting")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WholeKit, EasyAll, "easy", kAll)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WholeKit, MediumAll, "medium", kAll)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WholeKit, DifficultAll, "difficult", kAll)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vendrel::bench
