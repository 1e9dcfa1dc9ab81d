#include "touchup/sheet_file.h"

#include <string>

#include "support/error.h"
#include "support/size_text.h"

namespace vendrel {
namespace {

constexpr const char* kElsewhere =
    ". Close the editor and choose Picture, Load Stipple Picture: it takes the file as it is.";

void RequireRoom(const std::filesystem::path& path, const StippleHeader& header,
                 const EditSheet& sheet) {
    if (header.PaintCount > sheet.PaintRoom()) {
        throw FormatError(path, 1,
                          "the file has " + std::to_string(header.PaintCount) +
                              " paints, but the editor was opened with " +
                              std::to_string(sheet.PaintRoom()) + kElsewhere);
    }
    const Grid<StippleCell>& cells = sheet.Cells();
    if (header.Across > cells.Across() || header.Down > cells.Down()) {
        throw FormatError(path, 1,
                          "the file has " + SizeText(header.Across, header.Down) +
                              " stipples, but the editor was opened with " +
                              SizeText(cells.Across(), cells.Down()) + kElsewhere);
    }
}

}  // namespace

void RequireFit(std::string_view text, const std::filesystem::path& path, const EditSheet& sheet) {
    StippleFileReader reader(text, path);
    (void)reader.ReadPalette();
    reader.RequireCells();
    RequireRoom(path, reader.Header(), sheet);
}

void ReadIntoSheet(StippleFileReader& reader, EditSheet& sheet) {
    const StippleHeader& header = reader.Header();
    sheet.Announce({header.PaintCount, header.Across, header.Down}, header.FinalColors);
    for (PaintColor& paint : sheet.Paints()) {
        paint = reader.ReadPaint();
    }
    for (int y = 1; y <= header.Down; ++y) {
        reader.ReadRow(sheet.Cells(), y, header.Across);
    }
}

void WriteSheet(const std::filesystem::path& path, const EditSheet& sheet, int finalColors,
                const EditLayer* edits) {
    WriteStippleFile(
        path, {sheet.Paints(), sheet.Cells(), sheet.Across(), sheet.Down(), finalColors, edits});
}

}  // namespace vendrel
