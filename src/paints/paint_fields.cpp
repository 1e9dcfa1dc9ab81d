#include "paints/paint_fields.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>

#include "shell/paint_id.h"
#include "shell/warnings.h"
#include "support/counter.h"
#include "support/error.h"
#include "support/field_reader.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

constexpr std::size_t kMostNamed = 3;

PaintList ReadCounted(FieldReader& in) {
    const int count = in.ReadInt("the number of paints", 0, kMaxCounter);
    PaintList paints;  // grows with the rows: the count is only a claim
    for (int i = 1; i <= count; ++i) {
        PaintColor paint;
        paint.Red = in.ReadInt("a paint's red", 0, 255);
        paint.Green = in.ReadInt("a paint's green", 0, 255);
        paint.Blue = in.ReadInt("a paint's blue", 0, 255);
        paint.Mfg = in.ReadText("a paint's set");
        paint.PaintCode = in.ReadText("a paint's code");
        paint.PaintName = in.ReadText("a paint's name");
        paints.Add(std::move(paint));
    }
    return paints;
}

void WarnOfRowsLeft(const FieldReader& in, PaintFile& read) {
    const auto [first, last] = in.LinesLeft();
    if (first == 0) {
        return;
    }
    const std::string lines =
        first == last ? "line " + std::to_string(first) + " was"
                      : "lines " + std::to_string(first) + " to " + std::to_string(last) + " were";
    read.Warnings.push_back(
        Shown(in.File()) + ": " + lines + " not read, as the number in line 1 counts only " +
        std::to_string(read.Paints.Count()) + " paints. Correct that number to have them.");
}

std::string TitleOf(const PaintColor& paint) {
    return '"' + paint.Mfg + ": " + paint.PaintName +
           (paint.PaintCode.empty() ? "" : " (" + paint.PaintCode + ")") + '"';
}

void WarnOfRepeats(const std::filesystem::path& file, PaintFile& read) {
    std::map<PaintId, int> timesListed;
    std::string repeats;
    std::size_t count = 0;
    for (const PaintColor& paint : read.Paints) {
        const PaintId id = IdOf(paint);
        if (id.Named() && ++timesListed[id] == 2 && ++count <= kMostNamed) {
            repeats += (count == 1 ? "" : ", ") + TitleOf(paint);
        }
    }
    if (count > kMostNamed) {
        repeats += " and " + std::to_string(count - kMostNamed) + " more";
    }
    if (count > 0) {
        read.Warnings.push_back(Shown(file) + ": lists more than once " + repeats +
                                ". The first of a set, name and code stands; rename the others or "
                                "take them out.");
    }
}

}  // namespace

PaintFile ReadPaintFile(const std::filesystem::path& file) {
    const std::string text = ReadTextFile(file);
    FieldReader in(text, file);
    PaintFile read{ReadCounted(in), {}};
    WarnOfRowsLeft(in, read);
    WarnOfRepeats(file, read);
    return read;
}

PaintList ReadPaints(GivenWarnings& given, Ui& screen, const std::filesystem::path& file) {
    PaintFile read = ReadPaintFile(file);
    for (const std::string& warning : read.Warnings) {
        WarnOnce(given, screen, warning);
    }
    return std::move(read.Paints);
}

}  // namespace vendrel
