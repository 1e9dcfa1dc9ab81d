#include "kit/make_kit.h"

#include <chrono>
#include <utility>

#include "cleanup/cell_marking.h"
#include "cleanup/paint_pass.h"
#include "convert/crop.h"
#include "convert/photo_import.h"
#include "convert/stipple_conversion.h"
#include "convert/working_size.h"
#include "output/painting_writer.h"
#include "output/sheet_writer.h"
#include "storage/load_stipples.h"
#include "storage/stipple_file.h"
#include "support/error.h"
#include "support/text_file.h"
#include "support/whole_file.h"

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
    if (!ChoosePhoto(place, picture) || LoadNewPicture(place) == PhotoLoad::Nothing) {
        throw FileError(photo, "is no .bmp file with pixels. Choose another photo.");
    }
}

void TakeSavedGrid(Workplace& place) {
    if (!StippleFileExists(place)) {
        throw FileError(StippleFilePath(place),
                        "there is no saved grid to take. Make the kit once without --from-grid.");
    }
    LoadStipples_Click(place);
}

// Somebody may have touched up the saved grid, so only --replace-grid writes over a different one.
void SaveGrid(const Workplace& place, bool replace, KitReport& report) {
    const WorkState& state = place.State;
    const fs::path path = StippleFilePath(place);
    const std::string text = FormatStippleFile(
        {state.PaintColors, state.Stipples, state.CellsAcross, state.CellsDown, state.FinalColors});
    const bool same = fs::exists(path) && ReadTextFile(path) == text;
    if (!same && fs::exists(path) && !replace) {
        report.Notes.push_back(path.lexically_normal().string() +
                               " is a different grid and was kept. --replace-grid writes over it.");
        return;
    }
    if (!same) {
        WriteWholeFile(path, text);
    }
    report.Files.emplace_back("grid", path.lexically_normal().string());
}

void WriteOutputs(Workplace& place, const KitOptions& options, KitReport& report) {
    if (options.Outputs.Sheet) {
        Timed(report, "sheet", [&] {
            const SavedSheet sheet = WriteSheet(place);
            report.Numbering = sheet.Counts;
            report.Files.emplace_back("sheet", sheet.File.lexically_normal().string());
        });
    }
    if (options.Outputs.Painting) {
        Timed(report, "painting", [&] {
            report.Files.emplace_back("painting",
                                      PrintWorkform_Click(place).lexically_normal().string());
        });
    }
    if (options.Outputs.Grid) {
        Timed(report, "grid", [&] { SaveGrid(place, options.ReplaceGrid, report); });
    }
}

int CountLoners(const WorkState& state) {
    int loners = 0;
    for (int y = 1; y <= state.CellsDown; ++y) {
        for (int x = 1; x <= state.CellsAcross; ++x) {
            loners += CheckLoner(state, x, y, state.Stipples(x, y).ColorIndex) ? 1 : 0;
        }
    }
    return loners;
}

void FillFigures(const Workplace& place, KitReport& report) {
    const WorkState& state = place.State;
    const TwipsPerPixel twips = place.Screen.Screen().Twips;
    report.Name = state.PictureName;
    report.Picture = fs::path(state.PicturePath).lexically_normal().string();
    report.Difficulty = DifficultyWord(place.MainMenu);
    report.PhotoSize = {state.BmpWidth, state.BmpHeight};
    report.WorkingSize = {state.PictureWidth / twips.X, state.PictureHeight / twips.Y};
    report.CellsAcross = state.CellsAcross;
    report.CellsDown = state.CellsDown;
    report.PaintsKept = state.PaintCount;
    report.Areas = state.AreaCount - 1;
    report.Loners = CountLoners(state);
    if (StretchPercent(report.PhotoSize, report.WorkingSize) > kStretchThatShows) {
        report.Notes.emplace_back(
            "The photo's shape does not fit whole stipples on this screen, so it is stretched; "
            "--crop, or --crop top for faces, cuts off what is too much.");
    }
}

}  // namespace

KitReport MakeKit(Workplace& place, const KitOptions& options, KitPhotos& photos,
                  const fs::path& photo) {
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
    WriteOutputs(place, options, report);
    return report;
}

}  // namespace vendrel
