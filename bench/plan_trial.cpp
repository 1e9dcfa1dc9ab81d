// How symbols stand between the lines of printed plans.
//   trial_plan FOLDER PHOTO...
// Photos are those of FOLDER/Pictures; each at Medium and Difficult, plain and paintable, with the
// lines that such kits have, on the canvas that they get and on one of 40 cm. Per plan: how many
// hundredths of the symbols come nearer than 0.1 and 0.25 mm to the ink of a line, the smallest
// symbol, how many stand outside their areas, and the processor's time for all but the drawing.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <limits>
#include <string>

#include "export/qt_exporter.h"
#include "trial_place.h"

namespace vendrel::bench {
namespace {

namespace fs = std::filesystem;

struct Wish {
    fs::path Folder;
    std::string Photo;
    Difficulty Level = Difficulty::Medium;
    bool Paintable = false;
    double CanvasCm = 0;
};

struct Made {
    PrintPlan Plan;
    double Milliseconds = 0;
};

Made MakeOne(const Wish& wish, const Exporter& fonts) {
    KitOptions options;
    options.Chosen.Level = wish.Level;
    options.Chosen.Paintable = wish.Paintable;
    options.Chosen.Match = wish.Paintable ? Matching::ByEye : Matching::Plain;
    TrialPlace trial(wish.Folder, options);
    trial.Paint(wish.Photo);
    const std::clock_t start = std::clock();
    PlannedKit kit(trial.Place, fonts, {.CanvasCm = wish.CanvasCm});
    const PrintPlan& plan = kit.OnPages();
    return {plan, 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC};
}

// From a box to a piece of line, in one unit; measured along the piece.
double Distance(const PlanRect& box, const PlanPoint& from, const PlanPoint& to) {
    const int steps = 1 + static_cast<int>(10 * std::hypot(to.X - from.X, to.Y - from.Y));
    double least = std::numeric_limits<double>::infinity();
    for (int i = 0; i <= steps; ++i) {
        const double share = static_cast<double>(i) / steps;
        const double x = std::lerp(from.X, to.X, share);
        const double y = std::lerp(from.Y, to.Y, share);
        least = std::min(least, std::hypot(std::max({box.Left - x, x - box.Right, 0.0}),
                                           std::max({box.Top - y, y - box.Bottom, 0.0})));
    }
    return least;
}

double AirMm(const PrintPlan& plan, const LineIndex& index, const PlanLabel& label) {
    constexpr double kFar = 0.5;  // millimeters
    const PlanRect box = BoxOf(label, plan.Aspects[plan.Regions[label.Region].Value]);
    const double far = plan.Scale.Pixels(kFar);
    double least = far;
    index.Near({box.Left - far, box.Top - far, box.Right + far, box.Bottom + far},
               [&](const LinePiece& piece) {
                   least = std::min(least, Distance(box, piece.From, piece.To));
               });
    return plan.Scale.Mm(least) - kBorderMm / 2;
}

void Row(const Wish& wish, const Made& made) {
    const PrintPlan& plan = made.Plan;
    const LineIndex index(plan.Lines);
    int tight = 0;
    int close = 0;
    int outside = 0;
    double smallest = kLargestSymbolMm;
    for (const PlanLabel& label : plan.Labels) {
        const double air = AirMm(plan, index, label);
        tight += air < 0.1 - 1e-6 ? 1 : 0;
        close += air < 0.25 - 1e-6 ? 1 : 0;
        outside += label.PointsAt ? 1 : 0;
        smallest = std::min(smallest, plan.Scale.Mm(label.Height));
    }
    const double all = static_cast<double>(plan.Labels.size()) / 100;
    std::printf(
        "%-16s %-9s %-9s %5.1f cm %3zu pages  symbols %5zu  below 0.1 mm %5.1f %%  below 0.25 mm "
        "%5.1f %%  smallest %4.2f mm  outside %4d  %5.0f ms\n",
        wish.Photo.c_str(), wish.Level == Difficulty::Medium ? "medium" : "difficult",
        wish.Paintable ? "paintable" : "plain", plan.Pages.Canvas.Width / 10,
        plan.Pages.Tiles.size(), plan.Labels.size(), tight / all, close / all, smallest, outside,
        made.Milliseconds);
}

void RunAll(const fs::path& folder, const std::string& photo, const Exporter& fonts) {
    for (const Difficulty level : {Difficulty::Medium, Difficulty::Difficult}) {
        for (const bool paintable : {false, true}) {
            for (const double canvas : {0.0, kUsualCanvasCm}) {
                const Wish wish{folder, photo, level, paintable, canvas};
                if (!paintable || canvas > 0) {
                    Row(wish, MakeOne(wish, fonts));
                }
            }
        }
    }
}

}  // namespace
}  // namespace vendrel::bench

int main(int argc, char** argv) {
    using namespace vendrel;
    if (argc < 3) {
        std::fprintf(stderr, "trial_plan FOLDER PHOTO...\nPhotos are those of FOLDER/Pictures.\n");
        return 2;
    }
    const QtExporter fonts;
    for (int i = 2; i < argc; ++i) {
        bench::RunAll(argv[1], argv[i], fonts);
    }
    return 0;
}
