// Kits as the plain method and the paintable one make them, side by side in figures: areas, seen
// differences of all pixels, limits kept, time taken. Writes both paintings beside each other.
//   trial_paintable FOLDER DETAIL PAINTS easy|medium|difficult PHOTO...
// Times are the processor's, in milliseconds.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cleanup/paint_pass.h"
#include "convert/bitmap_writer.h"
#include "convert/cell_color.h"
#include "convert/photo_import.h"
#include "convert/stipple_conversion.h"
#include "eye/mean_difference.h"
#include "eye/palette_by_eye.h"
#include "eye/seen_table.h"
#include "kit/kit_settings.h"
#include "kit/terminal_ui.h"
#include "paintable/area_figures.h"
#include "paintable/make_paintable.h"
#include "paintable/print_areas.h"
#include "paints/paint_sets.h"
#include "paints/restore.h"
#include "shell/palette.h"
#include "startup/start_up.h"

namespace vendrel::bench {
namespace {

namespace fs = std::filesystem;

// Processor time: the machine may have other work.
class Watch {
  public:
    double Lap() {
        const std::clock_t now = std::clock();
        return 1000.0 * static_cast<double>(now - std::exchange(last_, now)) / CLOCKS_PER_SEC;
    }

  private:
    std::clock_t last_ = std::clock();
};

struct Studio {
    Studio(const fs::path& folder, Difficulty level)
        : Ui(Nowhere, Chatter::None, ScreenSize::FromPixels(1920, 1080)),
          Folder(folder, VENDREL_SOURCE_DIR) {
        PrepareSettings(Place);
        (void)PrepareFolders(Folder);
        PreparePaints(Place);
        KitOptions options;
        options.Chosen.Level = level;
        ApplySettings(Place, options);
    }
    std::ostringstream Nowhere;
    TerminalUi Ui;
    WorkState State;
    Surfaces Frames;
    Menu MainMenu;
    ProgramFolder Folder;
    Workplace Place{State, Frames, MainMenu, Ui, Folder};
};

struct Figures {
    AreaFigures Areas;
    double Mean = 0;  // CIEDE2000 over all pixels
    std::vector<Color> Painting;
};

Figures Measure(const ValueGrid& paints, const std::vector<Color>& colors, const Surface& photo,
                PrintScale scale) {
    Figures figures{MeasureAreas(paints, scale), 0, {}};
    std::vector<Color> pixels;
    for (int y = 0; y < photo.Height(); ++y) {
        const RowView<const Color> row = photo.Row(y);
        pixels.insert(pixels.end(), row.begin(), row.end());
    }
    for (const int paint : paints.All()) {
        figures.Painting.push_back(colors[static_cast<std::size_t>(paint)]);
    }
    figures.Mean = MeanDifference(pixels, figures.Painting);
    return figures;
}

// From 0, as tables count.
std::vector<Color> ColorsOf(const PaintList& paints) {
    std::vector<Color> colors;
    colors.reserve(paints.Entries().size());
    for (const PaintColor& paint : paints) {
        colors.push_back(ColorOf(paint));
    }
    return colors;
}

ValueGrid PixelPaints(const Studio& studio) {
    const Surface& picture = studio.Frames.WorkFrame.Picture;
    ValueGrid paints(picture.Width() - 1, picture.Height() - 1);
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            paints(x, y) = x > 0 && y > 0 ? studio.State.PixelMap(x, y).ColorIndex - 1 : -1;
        }
    }
    return paints;
}

ValueGrid GridPaints(const WorkState& state) {
    ValueGrid paints(state.CellsAcross - 1, state.CellsDown - 1);
    for (int y = 1; y <= state.CellsDown; ++y) {
        for (int x = 1; x <= state.CellsAcross; ++x) {
            paints(x - 1, y - 1) = state.Stipples(x, y).ColorIndex - 1;
        }
    }
    return paints;
}

void Row(const std::string& name, const Figures& f, const PaintLimits& limits) {
    std::printf("%-26s areas %5d  smallest %6.2f mm2  narrowest %5.2f mm  below %4d  mean %6.3f\n",
                name.c_str(), f.Areas.Count(), f.Areas.SmallestMm2, f.Areas.NarrowestMm,
                f.Areas.CountBelow(limits), f.Mean);
}

// What a trial asks for.
struct Wish {
    fs::path Folder;
    int Detail = 0;
    int Paints = 0;
    Difficulty Level = Difficulty::Medium;
};

// One photo both ways.
class Trial {
  public:
    Trial(const Wish& wish, const std::string& photo)
        : wish_(wish), name_(photo), studio_(wish.Folder, wish.Level) {
        (void)ChoosePhoto(studio_.State, studio_.Folder, photo);
        (void)LoadNewPicture(studio_.Place);
        photo_ = studio_.Frames.WorkFrame.Picture;
        scale_ = PrintScale::OfCanvas(kCanvasCm, photo_.Width());
    }

    void Run() {
        PaintPlain();
        SampleStipples();
        ChoosePalette();
        MatchStipples();
        MakeGridPaintable();
        PaintGrid();
        Report();
        ShowBeside();
    }

  private:
    static constexpr double kCanvasCm = 40;

    void PaintPlain() {
        (void)ChangeToStipples_Click(studio_.Place);
        PaintItNow_Click(studio_.Place);
        plainColors_ = ColorsOf(studio_.State.PaintColors);
        plainGrid_ = GridPaints(studio_.State);
        plain_ = Measure(PixelPaints(studio_), plainColors_, photo_, scale_);
    }

    void SampleStipples() {
        const WorkState& state = studio_.State;
        const int size = state.StippleSize;
        for (int j = 0; j < state.CellsDown; ++j) {
            for (int i = 0; i < state.CellsAcross; ++i) {
                const Channels c = AverageColor(photo_, 1 + i * size, 1 + j * size, size);
                stipples_.push_back(Rgb(c.Red, c.Green, c.Blue));
            }
        }
    }

    void ChoosePalette() {
        RestorePaintColors(studio_.Place);
        const PaintList allowed = studio_.State.PaintColors;
        const std::vector<Color> colors = ColorsOf(allowed);
        Watch watch;
        const ColorBins bins = BinColors(stipples_);
        const SeenTable table(bins.Colors, colors);
        times_.emplace_back("table", watch.Lap());
        for (const int p : ChoosePaintsByEye(table, bins.Stipples, wish_.Paints)) {
            palette_.Add(allowed[p + 1]);
        }
        times_.emplace_back("choose", watch.Lap());
    }

    void MatchStipples() {
        const WorkState& state = studio_.State;
        Watch watch;
        distinct_ = FindDistinctColors(stipples_);
        const std::vector<Color> paints = ColorsOf(palette_);
        table_ = SeenTable(distinct_.Colors, paints);
        picture_.Paints = ValueGrid(state.CellsAcross - 1, state.CellsDown - 1);
        picture_.Colors = picture_.Paints;
        for (std::size_t i = 0; i < stipples_.size(); ++i) {
            picture_.Colors.All()[i] = distinct_.IndexOf[i];
            picture_.Paints.All()[i] = table_.NearestTo(distinct_.IndexOf[i]);
        }
        times_.emplace_back("match", watch.Lap());
    }

    void MakeGridPaintable() {
        const WorkState& state = studio_.State;
        const AreaTerms terms{{SidesOf(photo_.Width(), state.StippleSize, state.CellsAcross),
                               SidesOf(photo_.Height(), state.StippleSize, state.CellsDown)},
                              LimitsInPixels(limits_, scale_),
                              LimitsInPixels(ThirdOf(limits_), scale_)};
        Watch watch;
        grid_ = MakePaintable(picture_, table_, terms, wish_.Detail);
        times_.emplace_back("grid", watch.Lap());
    }

    void PaintGrid() {
        WorkState& state = studio_.State;
        SetPalette(state, palette_);
        for (int y = 1; y <= state.CellsDown; ++y) {
            for (int x = 1; x <= state.CellsAcross; ++x) {
                state.Stipples(x, y).ColorIndex = grid_(x - 1, y - 1) + 1;
                state.CellMarks(x, y) = {};
            }
        }
        Watch watch;
        PaintItNow_Click(studio_.Place);
        times_.emplace_back("paint", watch.Lap());
        const ValueGrid print = PaintsForPrint({PixelPaints(studio_), grid_, {}, state.StippleSize},
                                               LimitsInPixels(limits_, scale_),
                                               LimitsInPixels(ThirdOf(limits_), scale_));
        times_.emplace_back("print", watch.Lap());
        paintable_ = Measure(print, ColorsOf(palette_), photo_, scale_);
    }

    // The mean over all stipples.
    [[nodiscard]] double SeenOf(const SeenTable& table, const ValueGrid& paints) const {
        double sum = 0;
        for (std::size_t i = 0; i < stipples_.size(); ++i) {
            sum += table.Of(distinct_.IndexOf[i])[static_cast<std::size_t>(paints.All()[i])];
        }
        return sum / kSeenUnit / static_cast<double>(stipples_.size());
    }

    void Report() const {
        Row(name_ + " plain", plain_, limits_);
        Row(name_ + " paintable", paintable_, limits_);
        const int gridAreas = FindRegions(grid_).Count();
        std::printf("   grid areas %d -> %d (%s), %.0f%% of plain, mean %+.1f%%\n",
                    FindRegions(picture_.Paints).Count(), gridAreas,
                    gridAreas == paintable_.Areas.Count() ? "same in print" : "OTHERS IN PRINT",
                    100.0 * paintable_.Areas.Count() / plain_.Areas.Count(),
                    100 * (paintable_.Mean / plain_.Mean - 1));
        const SeenTable plainTable(distinct_.Colors, plainColors_);
        std::printf("   seen per stipple: plain %.3f, by eye %.3f, paintable %.3f; %d paints\n",
                    SeenOf(plainTable, plainGrid_), SeenOf(table_, picture_.Paints),
                    SeenOf(table_, grid_), palette_.Count());
        std::printf("   ms:");
        for (const auto& [step, took] : times_) {
            std::printf(" %s %.1f", step, took);
        }
        std::printf("\n");
    }

    // The photo, the plain painting and the paintable one.
    void ShowBeside() const {
        constexpr int kGap = 8;
        const int step = photo_.Width() + kGap;
        Surface all(3 * step - kGap, photo_.Height(), kWhite);
        std::size_t at = 0;
        for (int y = 0; y < photo_.Height(); ++y) {
            for (int x = 0; x < photo_.Width(); ++x, ++at) {
                all.Set(x, y, photo_.Get(x, y));
                all.Set(step + x, y, plain_.Painting[at]);
                all.Set(2 * step + x, y, paintable_.Painting[at]);
            }
        }
        WriteBitmap(wish_.Folder / (fs::path(name_).stem().string() + " beside.bmp"), all);
    }

    const Wish& wish_;
    std::string name_;
    Studio studio_;
    Surface photo_;
    PrintScale scale_;
    PaintLimits limits_;
    std::vector<Color> plainColors_;
    ValueGrid plainGrid_;
    Figures plain_;
    std::vector<Color> stipples_;  // row by row
    PaintList palette_;
    DistinctColors distinct_;
    SeenTable table_;
    StipplePicture picture_;
    ValueGrid grid_;
    Figures paintable_;
    std::vector<std::pair<const char*, double>> times_;
};

Difficulty DifficultyNamed(std::string_view word) {
    const auto* const found = std::ranges::find(kDifficulties, word, &DifficultyTraits::Option);
    return found == kDifficulties.end() ? Difficulty::Difficult : found->Level;
}

}  // namespace
}  // namespace vendrel::bench

int main(int argc, char** argv) {
    using namespace vendrel::bench;
    if (argc < 6) {
        std::fprintf(stderr,
                     "trial_paintable FOLDER DETAIL PAINTS easy|medium|difficult PHOTO...\n"
                     "Photos are those of FOLDER/Pictures.\n");
        return 2;
    }
    const Wish wish{argv[1], std::atoi(argv[2]), std::atoi(argv[3]), DifficultyNamed(argv[4])};
    for (int i = 5; i < argc; ++i) {
        Trial(wish, argv[i]).Run();
    }
}
