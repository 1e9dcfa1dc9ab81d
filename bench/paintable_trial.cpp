// Kits as the plain method and the paintable one make them, side by side in figures; held against
// what a paintable kit promises. Writes photo and both paintings beside each other.
//   trial_paintable FOLDER DETAIL PAINTS easy|medium|difficult PHOTO...
// Photos are those of FOLDER/Pictures. Times are the processor's, in milliseconds. Fails where a
// promise is broken.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <string>
#include <string_view>

#include "convert/bitmap_writer.h"
#include "output/kit_figures.h"
#include "trial_place.h"

namespace vendrel::bench {
namespace {

namespace fs = std::filesystem;

// What a trial asks for.
struct Wish {
    fs::path Folder;
    int Detail = 0;
    int Paints = 0;
    Difficulty Level = Difficulty::Medium;
};

struct Made {
    KitFigures Figures;
    SeenFigures Seen;
    Surface Painting;
    Surface Photo;
    int Paints = 0;
    double Milliseconds = 0;
};

// Makes a kit of one photo, processor time: the machine may have other work.
Made MakeOne(const Wish& wish, const std::string& photo, bool paintable) {
    KitOptions options;
    options.Chosen.Level = wish.Level;
    options.Chosen.FinalPaints = wish.Paints;
    options.Chosen.Detail = wish.Detail;
    options.Chosen.Paintable = paintable;
    options.Chosen.Match = paintable ? Matching::ByEye : Matching::Plain;
    TrialPlace trial(wish.Folder, options);
    const std::clock_t start = std::clock();
    trial.Paint(photo);
    const std::clock_t end = std::clock();
    return {
        MeasureKit(trial.Place),        CompareWithPhoto(trial.Place),
        trial.Frames.WorkFrame.Picture, trial.Frames.CaptureFrame.Picture,
        trial.State.PaintCount,         1000.0 * static_cast<double>(end - start) / CLOCKS_PER_SEC};
}

void Row(const std::string& name, const Made& made) {
    const KitFigures& f = made.Figures;
    std::printf(
        "%-26s areas %5d  smallest %6.2f mm2  narrowest %5.2f mm  below %4d  seen %6.3f %6.3f  "
        "paints %2d  %5.0f ms\n",
        name.c_str(), f.Areas, f.SmallestMm2, f.NarrowestMm, f.BelowLimits, made.Seen.Pixels,
        made.Seen.AtArmsLength, made.Paints, made.Milliseconds);
}

void ShowBeside(const fs::path& file, const Made& plain, const Made& paintable) {
    constexpr int kGap = 8;
    const Surface& photo = plain.Photo;
    const int step = photo.Width() + kGap;
    Surface all(3 * step - kGap, photo.Height(), kWhite);
    for (int y = 0; y < photo.Height(); ++y) {
        for (int x = 0; x < photo.Width(); ++x) {
            all.Set(x, y, photo.Get(x, y));
            all.Set(step + x, y, plain.Painting.Get(x, y));
            all.Set(2 * step + x, y, paintable.Painting.Get(x, y));
        }
    }
    WriteBitmap(file, all);
}

// Holds what was made against the promises; answers how many are broken.
class Promises {
  public:
    explicit Promises(const Wish& wish) : wish_(wish) {}

    void Look(const Made& plain, const Made& paintable) {
        const int most = wish_.Detail == 0 ? 850 : 1300;
        Hold(paintable.Figures.BelowLimits == 0, "no area is below the limits");
        Hold(paintable.Figures.Areas <= most, "not too many areas");
        Hold(paintable.Figures.Areas * 10 <= plain.Figures.Areas * 4, "at most 40 % of the areas");
        Hold(wish_.Detail < kUsualDetail || paintable.Seen.Pixels <= plain.Seen.Pixels,
             "no farther from the photo than plain");
        plain_ += plain.Seen.Pixels;
        paintable_ += paintable.Seen.Pixels;
    }
    [[nodiscard]] int Broken() {
        std::printf("mean difference %+.1f %%\n", 100 * (paintable_ / plain_ - 1));
        Hold(wish_.Detail < kUsualDetail || paintable_ <= 0.92 * plain_,
             "8 % nearer to the photos on the average");
        return broken_;
    }

  private:
    void Hold(bool held, const char* promise) {
        if (!held) {
            std::printf("  BROKEN: %s\n", promise);
            ++broken_;
        }
    }
    const Wish& wish_;
    double plain_ = 0;
    double paintable_ = 0;
    int broken_ = 0;
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
    Promises promises(wish);
    for (int i = 5; i < argc; ++i) {
        const std::string photo = argv[i];
        const Made plain = MakeOne(wish, photo, false);
        const Made paintable = MakeOne(wish, photo, true);
        Row(photo + " plain", plain);
        Row(photo + " paintable", paintable);
        promises.Look(plain, paintable);
        ShowBeside(wish.Folder / (fs::path(photo).stem().string() + " beside.bmp"), plain,
                   paintable);
    }
    return promises.Broken() == 0 ? 0 : 1;
}
