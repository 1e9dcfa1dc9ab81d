#include "touchup/sheet_file.h"

#include <algorithm>
#include <string>

#include "support/error.h"

namespace vendrel {
namespace {

constexpr const char* kTakeBack =
    " Take the load back with Undo; \"Load Stipple Picture\" of the main window may still read it.";

std::string TooMuch(int inFile, const char* what, int inEditor) {
    return "the file has " + std::to_string(inFile) + what + ", but the editor was opened with " +
           std::to_string(inEditor) + "." + kTakeBack;
}

void ReadPaints(StippleFileReader& reader, const std::filesystem::path& path, PaintList& paints) {
    for (PaintColor& paint : paints) {
        paint = reader.ReadPaint();
    }
    const int announced = reader.Header().PaintCount;
    if (announced > paints.Count()) {
        throw FormatError(path, paints.Count() + 2, TooMuch(announced, " paints", paints.Count()));
    }
}

void ReadCells(StippleFileReader& reader, const std::filesystem::path& path,
               Grid<StippleCell>& cells) {
    const StippleHeader& header = reader.Header();
    for (int y = 1; y <= header.Down; ++y) {
        const int rowLine = 1 + header.PaintCount + (y - 1) * header.Across + 1;
        if (y > cells.Down()) {
            throw FormatError(path, rowLine, TooMuch(header.Down, " rows", cells.Down()));
        }
        reader.ReadRow(cells, y, std::min(header.Across, cells.Across()));
        if (header.Across > cells.Across()) {
            throw FormatError(path, rowLine + cells.Across(),
                              TooMuch(header.Across, " columns", cells.Across()));
        }
    }
}

}  // namespace

void ReadIntoSheet(StippleFileReader& reader, const std::filesystem::path& path, EditSheet& sheet) {
    const StippleHeader& header = reader.Header();
    sheet.Announce({header.PaintCount, header.Across, header.Down}, header.FinalColors);
    ReadPaints(reader, path, sheet.Paints());
    ReadCells(reader, path, sheet.Cells());
}

void WriteSheet(const std::filesystem::path& path, const EditSheet& sheet, int finalColors) {
    WriteStippleFile(path,
                     {sheet.Paints(), sheet.Cells(), sheet.Across(), sheet.Down(), finalColors});
}

}  // namespace vendrel
