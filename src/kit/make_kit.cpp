#include "kit/make_kit.h"

#include <chrono>
#include <utility>

#include "cleanup/area_search.h"
#include "cleanup/paint_pass.h"
#include "convert/crop.h"
#include "convert/photo_import.h"
#include "convert/stipple_conversion.h"
#include "convert/working_size.h"
#include "kitset/save_kit.h"
#include "storage/load_stipples.h"
#include "storage/stipple_file.h"
#include "support/disk.h"
#include "support/error.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

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
        throw FileError(photo, "is no .bmp file with pixels. Choose another photo.");
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

void FillFigures(const Workplace& place, KitReport& report) {
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
    report.Loners = CountLoners(state.Stipples);
    if (StretchPercent(report.PhotoSize, report.WorkingSize) > kStretchThatShows) {
        report.Notes.emplace_back(
            "The photo's shape does not fit whole stipples on this screen, so it is stretched; "
            "--crop, or --crop top for faces, cuts off what is too much.");
    }
}

}  // namespace

void RequireExporter(const KitOutputs& outputs, const Exporter* exporter) {
    if (exporter == nullptr && outputs.ByName && outputs.Chosen.NeedsFonts()) {
        throw Error(
            "This build has no fonts to draw the chart and the pdf with; build it with Qt, or "
            "choose other --outputs.");
    }
}

KitReport MakeKit(Workplace& place, const KitOptions& options, KitPhotos& photos,
                  const fs::path& photo, const Exporter* exporter) {
    KitReport report;
    report.Photo = photo.string();
    report.FromGrid = options.FromGrid;
    std::string picture;
    Timed(report, "photo", [&] { picture = photos.TakeIn(place, options, photo); });
    Timed(report, "import", [&] { ImportPhoto(place, photo, picture); });
    if (options.FromGrid) {
        Timed(report, "load", [&] { TakeSavedGrid(place); });
    } else {
        Timed(report, "convert", [&] { report.PaintsMatched = ChangeToStipples_Click(place); });
    }
    Timed(report, "paint", [&] { PaintItNow_Click(place); });
    FillFigures(place, report);
    WriteOutputs(place, options, exporter, report);
    return report;
}

}  // namespace vendrel
