#include "kit/make_kit.h"

#include <chrono>
#include <optional>
#include <utility>

#include "cleanup/area_search.h"
#include "cleanup/paint_pass.h"
#include "convert/crop.h"
#include "convert/photo_import.h"
#include "convert/stipple_conversion.h"
#include "convert/working_size.h"
#include "intake/photo_intake.h"
#include "kit/kit_keeping.h"
#include "kitfile/take_kit.h"
#include "kitset/save_kit.h"
#include "storage/load_stipples.h"
#include "storage/stipple_file.h"
#include "support/disk.h"
#include "support/error.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// A canvas the other way up is worth a word.
constexpr double kWorthTurning = 1.02;

// Runs one step and notes how long it took.
template <class Step>
void Timed(KitReport& report, const char* name, Step step) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    step();
    const std::chrono::duration<double, std::milli> took = Clock::now() - start;
    report.Milliseconds.emplace_back(name, took.count());
}

void ImportPhoto(Workplace& place, const fs::path& photo, const std::string& picture) {
    if (!ChoosePhoto(place.State, place.Folder, picture) ||
        LoadNewPicture(place) == PhotoLoad::Nothing) {
        throw FileError(photo, "has no pixels. Choose another photo.");
    }
}

void TakeSavedGrid(Workplace& place) {
    if (!StippleFileExists(place.Folder, place.State, place.State)) {
        throw FileError(StippleFilePath(place.Folder, place.State, place.State),
                        "there is no saved grid to take. Make the kit once without --from-grid.");
    }
    LoadStipples_Click(place);
}

// Without fonts a kit is made of the rest, and painting numbers the areas of a grid anew, which
// nobody asked for in the file it came from.
OutputChoice Possible(const KitOptions& options, const Exporter* exporter, KitReport& report) {
    OutputChoice outputs = options.Outputs.Chosen;
    if (options.FromGrid && !options.ReplaceGrid && !options.Outputs.ByName) {
        outputs.Remove(OutputId::Grid);
    }
    if (exporter == nullptr && outputs.NeedsFonts()) {
        report.Notes.emplace_back(
            "No color chart: this build has no fonts to draw it with. Build the program with Qt "
            "to get it.");
        for (const Output& output : AllOutputs()) {
            if (output.NeedsFonts) {
                outputs.Remove(output.Id);
            }
        }
    }
    return outputs;
}

void WriteOutputs(Workplace& place, const KitOptions& options, const Exporter* exporter,
                  KitReport& report) {
    const SavedKit saved = SaveKit(
        place, {.Outputs = Possible(options, exporter, report),
                .Fonts = exporter,
                .Plan = options.Plan,
                .Different = options.ReplaceGrid ? DifferentGrid::Replaced : DifferentGrid::Kept,
                .FromGrid = options.FromGrid});
    report.Mark = saved.Mark;
    report.Numbering = saved.Numbering;
    report.List = saved.List.lexically_normal().string();
    for (const SavedKit::File& file : saved.Files) {
        report.Files.emplace_back(OutputOf(file.Output).Word,
                                  file.Path.lexically_normal().string());
    }
    for (const auto& [step, took] : saved.Milliseconds) {
        report.Milliseconds.emplace_back(step, took);
    }
    report.Notes.insert(report.Notes.end(), saved.Notes.begin(), saved.Notes.end());
    report.Plan = saved.Plan;
    if (const std::string warning = report.Plan ? WarningOf(*report.Plan) : ""; !warning.empty()) {
        report.Notes.push_back(warning);
    }
}

// Whether anybody reads the figures.
bool IsRead(const KitOptions& options) {
    return !options.Quiet || options.Json;
}

int CountLoners(const Grid<StippleCell>& stipples) {
    int loners = 0;
    for (int y = 1; y <= stipples.Down(); ++y) {
        for (int x = 1; x <= stipples.Across(); ++x) {
            loners += CheckLoner(stipples, x, y, stipples(x, y).ColorIndex) ? 1 : 0;
        }
    }
    return loners;
}

// Measured while painting: it costs little beside it, and nobody paints 5,000 areas.
void FillBrushFigures(const Workplace& place, const KitOptions& options, KitReport& report) {
    report.Matched = place.State->Chosen.Match == Matching::ByEye ? "eye" : "plain";
    report.Paintable = place.State->PaintableKit;
    if (!IsRead(options)) {
        return;
    }
    report.Figures = MeasureKit(place);
    if (report.Paintable) {
        report.Areas = report.Figures.Areas;
    }
    if ((options.Json && options.Compared) || options.Figures) {
        report.Seen = CompareWithPhoto(place);
    }
    if (report.Paintable && report.Figures.BelowLimits > 0) {
        report.Notes.push_back(
            std::to_string(report.Figures.BelowLimits) + " of " +
            std::to_string(report.Figures.Areas) + " areas are below the limits, since " +
            (options.FromGrid
                 ? "the saved grid was taken as it is; without --from-grid none would be."
                 : "touch-ups are kept as they were painted; Merge in the editor's "
                   "Areas joins small ones."));
    } else if (IsHardToPaint(report.Figures)) {
        report.Notes.push_back(
            std::to_string(report.Figures.BelowLimits) + " of " +
            std::to_string(report.Figures.Areas) +
            " areas are smaller or narrower than a brush paints well at this width; --paintable "
            "makes a kit without them.");
    }
}

void FillFigures(const Workplace& place, const KitOptions& options, KitReport& report) {
    const WorkState& state = place.State;
    const TwipsPerPixel twips = place.Screen.Screen().Twips;
    report.Name = state.PictureName;
    report.Picture = fs::path(state.PicturePath).lexically_normal().string();
    report.Difficulty = DifficultyWord(state);
    report.PhotoSize = {state.BmpWidth, state.BmpHeight};
    report.WorkingSize = {state.PictureWidth / twips.X, state.PictureHeight / twips.Y};
    report.CellsAcross = state.CellsAcross;
    report.CellsDown = state.CellsDown;
    report.PaintsKept = state.PaintCount;
    report.Areas = state.AreaCount - 1;
    report.Loners = IsRead(options) ? CountLoners(state.Stipples) : 0;
    if (StretchPercent(report.PhotoSize, report.WorkingSize) > kStretchThatShows) {
        report.Notes.emplace_back(
            "The photo's shape does not fit the sheet, so it is stretched; --fit keep keeps its "
            "shape, --fit crop, or top for faces, cuts off what is too much.");
    }
}

// Most photos fit without.
std::optional<PhotoFit> FitUsed(const Workplace& place, const TakenPhoto& taken) {
    const WorkState& state = place.State;
    const PhotoFit fit = state.Chosen.Fit;
    if (taken.Crop) {
        return fit;
    }
    if (SheetStretch({state.BmpWidth, state.BmpHeight}, TargetOf(place.Screen, place.State)) <=
        kStretchThatShows) {
        return std::nullopt;
    }
    return fit == PhotoFit::Stretch ? fit : PhotoFit::Keep;
}

// Limits and figures hold for the picture as wide as it comes to stand on the canvas.
void FitIntoCanvas(Workplace& place, const PlanSettings& plan, KitReport& report) {
    const WorkState& state = place.State;
    const TwipsPerPixel twips = place.Screen.Screen().Twips;
    const BitmapSize size{state.PictureWidth / twips.X, state.PictureHeight / twips.Y};
    const auto widthOn = [&size](const SizeMm& canvas) {
        return FittedPixelMm(canvas, size.Width, size.Height) * size.Width / 10;
    };
    place.State->Chosen.CanvasCm = widthOn(plan.Canvas);
    const double turned = widthOn({plan.Canvas.Height, plan.Canvas.Width});
    if (turned > place.State->Chosen.CanvasCm * kWorthTurning) {
        report.Notes.emplace_back(
            "The canvas would hold a larger picture if it were turned; name its other side first.");
    }
}

// The title and the canvas are chosen before anything depends on them.
void NameKit(Workplace& place, const KitOptions& options, KitReport& report) {
    if (!options.Title.empty()) {
        place.State->PictureName = options.Title;
    }
    if (options.Plan.Canvas.Width > 0) {
        FitIntoCanvas(place, options.Plan, report);
    }
}

// Stands in where no page is drawn: a canvas that is given needs no fonts to be laid out.
class NoFonts final : public Exporter {
  public:
    [[nodiscard]] SymbolAspects Aspects(const PaintMarks& /*marks*/) const override {
        SymbolAspects aspects;
        aspects.fill(1);
        return aspects;
    }
    [[nodiscard]] Surface Preview(PlannedKit& /*kit*/, int /*longest*/) const override {
        return {};
    }
    void WriteStickers(const std::vector<Sticker>& /*stickers*/, const StickerSheet& /*sheet*/,
                       int /*used*/, const Target& target) const override {
        Refuse(target);
    }
    void WriteShopping(const ShoppingPage& /*page*/, const Target& target) const override {
        Refuse(target);
    }
    void Write(OutputId /*output*/, PlannedKit& /*kit*/, const Target& target) const override {
        Refuse(target);
    }

  private:
    [[noreturn]] static void Refuse(const Target& target) {
        throw FileError(target.Place, "cannot be drawn without fonts.");
    }
};

// As its pages have them, or on the canvas that the figures hold for.
KitNeeds NeedsOf(const Workplace& place, const KitOptions& options, const Exporter* exporter) {
    const NoFonts noFonts;
    PlanSettings plan = options.Plan;
    if (exporter == nullptr && !plan.HasCanvas()) {
        plan.CanvasCm = kUsualCanvasCm;
    }
    PlannedKit planned(place, exporter != nullptr ? *exporter : noFonts, plan);
    return {place.State->PictureName, place.State->PaintColors, planned.Needs(), plan.Use};
}

// What is made of a grid, whatever it came from.
void PaintAndWrite(Workplace& place, const KitOptions& options, const TakenPhoto& taken,
                   const Exporter* exporter, KitReport& report) {
    Timed(report, "paint", [&] { PaintItNow_Click(place); });
    FillFigures(place, options, report);
    report.Fit = FitUsed(place, taken);
    Timed(report, "figures", [&] { FillBrushFigures(place, options, report); });
    if (KeepsKit(options)) {
        Timed(report, "kit file", [&] { KeepKit(place, options, taken, report); });
    }
    WriteOutputs(place, options, exporter, report);
    if (options.Needs) {
        Timed(report, "needs", [&] { report.Needs = NeedsOf(place, options, exporter); });
    }
}

}  // namespace

void RequireExporter(const KitOutputs& outputs, const Exporter* exporter) {
    if (exporter == nullptr && outputs.ByName && outputs.Chosen.NeedsFonts()) {
        throw Error(
            "This build has no fonts to draw the chart, the pdf, the svg and the page with; build "
            "it "
            "with Qt, or choose other --outputs.");
    }
}

KitReport MakeKit(Workplace& place, const KitOptions& options, KitPhotos& photos,
                  const fs::path& photo, const Exporter* exporter) {
    KitReport report;
    report.Photo = Shown(photo);
    report.FromGrid = options.FromGrid;
    TakenPhoto taken;
    Timed(report, "photo", [&] { taken = photos.TakeIn(place, options, photo); });
    Timed(report, "import", [&] { ImportPhoto(place, photo, taken.File); });
    NameKit(place, options, report);
    if (options.FromGrid) {
        Timed(report, "load", [&] { TakeSavedGrid(place); });
        place.State->PaintableKit = options.Chosen.Paintable;
    } else {
        if (options.From) {
            place.State->Edits = options.From->Layer.Edits;
            // Made so in the window, which settings alone do not tell.
            place.State->Chosen.Paintable |= options.From->PaintableKit;
        }
        Timed(report, "convert", [&] { report.PaintsMatched = ChangeToStipples_Click(place); });
        if (!place.State->LaidOn.empty()) {
            report.Notes.push_back(place.State->LaidOn + ".");
        }
    }
    PaintAndWrite(place, options, taken, exporter, report);
    return report;
}

KitReport MakeKitAgain(Workplace& place, const KitOptions& options, const fs::path& photo,
                       const Exporter* exporter) {
    KitReport report;
    report.Photo = Shown(photo);
    report.FromGrid = true;
    Timed(report, "load", [&] { TakeKit(place, *options.From, photo); });
    NameKit(place, options, report);
    PaintAndWrite(place, options, {}, exporter, report);
    return report;
}

}  // namespace vendrel
