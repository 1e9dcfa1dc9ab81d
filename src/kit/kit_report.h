#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "convert/bitmap_header.h"
#include "output/kit_figures.h"
#include "output/sheet_record.h"
#include "plan/plan_figures.h"
#include "plan/shopping.h"
#include "shell/settings.h"

namespace vendrel {

/// What was made of one photo.
struct KitReport {
    std::string Photo;
    std::string Picture;  // the bitmap in Pictures that it became
    std::string Name;
    std::string Difficulty;  // the word in file names
    std::string Mark;        // see KitMark
    BitmapSize PhotoSize;
    BitmapSize WorkingSize;
    std::optional<PhotoFit> Fit;  // how a photo that did not fit by itself was brought on the sheet
    int CellsAcross = 0;
    int CellsDown = 0;
    bool FromGrid = false;
    int PaintsMatched = 0;  // not known of a saved grid
    int PaintsKept = 0;
    int Areas = 0;
    int Loners = 0;
    bool Paintable = false;
    std::string Matched;  // plain or eye
    KitFigures Figures;
    std::optional<SeenFigures> Seen;                           // when asked for
    std::optional<NumberingCounts> Numbering;                  // when a sheet was made
    std::optional<PlanFigures> Plan;                           // when the pdf was
    std::optional<KitNeeds> Needs;                             // when asked for
    std::vector<std::pair<std::string, double>> Milliseconds;  // per step, in order
    std::vector<std::pair<std::string, std::string>> Files;    // output name and path
    std::string List;                                          // of the kit; empty without files
    std::vector<std::string> Notes;
};

/// Several lines for people.
[[nodiscard]] std::string SummaryOf(const KitReport& report);
/// The same figures for programs: one JSON object on one line.
[[nodiscard]] std::string JsonLineOf(const KitReport& report);
/// What stands there instead when a photo failed.
[[nodiscard]] std::string JsonLineOf(const std::string& photo, const std::string& error);

}  // namespace vendrel
