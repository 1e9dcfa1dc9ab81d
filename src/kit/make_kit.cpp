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
#include "support/disk.h"
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
    const bool there = Stands(path);
    const bool same = there && ReadTextFile(path) == text;
    if (!same && there && !replace) {
        report.Notes.push_back(path.lexically_normal().string() +
                               " is a different grid and was kept. --replace-grid writes over it.");
        return;
    }
    if (!same) {
        WriteWholeFile(path, text, Lasting::Synced);
    }
    report.Files.emplace_back("grid", path.lexically_normal().string());
}

void AddFile(KitReport& report, const char* output, const fs::path& file) {
    report.Files.emplace_back(output, file.lexically_normal().string());
}

void WriteNumbered(const Workplace& place, const KitOutputs& outputs, KitReport& report) {
    const SavedSheets saved =
        WriteSheets(place, {.Sheet = outputs.Sheet, .Reference = outputs.Reference});
    report.Numbering = saved.Counts;
    if (outputs.Sheet) {
        AddFile(report, "sheet", saved.Sheet);
    }
    if (outputs.Reference) {
        AddFile(report, "reference", saved.Reference);
    }
}

void WritePrinted(const Workplace& place, const KitOptions& options, const Exporter* exporter,
                  KitReport& report) {
    if (exporter == nullptr) {
        if (options.Outputs.Chart) {
            report.Notes.emplace_back(
                "No color chart: this build has no fonts to draw it with. Build the program with "
                "Qt to get it.");
        }
        return;
    }
    if (options.Outputs.Chart) {
        Timed(report, "chart", [&] { AddFile(report, "chart", exporter->WriteColorChart(place)); });
    }
    if (options.Outputs.Pdf) {
        Timed(report, "pdf",
              [&] { AddFile(report, "pdf", exporter->WriteKitPdf(place, options.Plan)); });
    }
}

void WriteOutputs(Workplace& place, const KitOptions& options, const Exporter* exporter,
                  KitReport& report) {
    const KitOutputs& outputs = options.Outputs;
    if (outputs.Sheet || outputs.Reference) {
        Timed(report, "sheet", [&] { WriteNumbered(place, outputs, report); });
    }
    if (outputs.Painting) {
        Timed(report, "painting", [&] { AddFile(report, "painting", PrintWorkform_Click(place)); });
    }
    // Painting numbers the areas of a grid anew; nobody asked for that in the file it came from.
    const bool gridIsTheSource = options.FromGrid && !options.ReplaceGrid && !outputs.ByName;
    if (outputs.Grid && !gridIsTheSource) {
        Timed(report, "grid", [&] { SaveGrid(place, options.ReplaceGrid, report); });
    }
    WritePrinted(place, options, exporter, report);
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
    report.Difficulty = DifficultyWord(state);
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

void RequireExporter(const KitOutputs& outputs, const Exporter* exporter) {
    if (exporter == nullptr && (outputs.Pdf || (outputs.Chart && outputs.ByName))) {
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
