#include "storage/stipple_file.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>

#include "shell/stipple_grid.h"
#include "support/counter.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/size_text.h"

namespace vendrel {
namespace {

// Room for a cell's line at its longest: four numbers of up to six characters and their marks.
constexpr std::size_t kCellLine = 32;

constexpr std::string_view kEditsWord = "Edits";
constexpr std::string_view kOrderWord = "Order";

void AppendNumber(std::string& out, int value) {
    char digits[16];
    out.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

void AppendNumbers(std::string& out, std::initializer_list<int> values) {
    for (const int value : values) {
        AppendNumber(out, value);
        out += ',';
    }
}

// Nothing marks a double quote inside a text as part of it; written as it is, it would end the
// text early and nobody could load the file again.
void AppendText(std::string& out, std::string_view text) {
    const std::size_t begin = out.size() + 1;
    out += '"';
    out += text;
    std::replace(out.begin() + static_cast<std::ptrdiff_t>(begin), out.end(), '"', '\'');
    out += '"';
}

void AppendPaint(std::string& out, const PaintColor& paint, int cellCount) {
    AppendNumbers(out, {paint.Red, paint.Green, paint.Blue});
    AppendText(out, paint.PaintName);
    out += ',';
    AppendNumbers(out, {cellCount});
    AppendText(out, paint.Mfg);
    out += ',';
    AppendText(out, paint.PaintCode);
    out += "\r\n";
}

char* PutNumber(char* at, int value, char after) {
    at = std::to_chars(at, at + 12, value).ptr;
    *at = after;
    return at + 1;
}

char* PutCell(char* at, const StippleCell& cell) {
    at = PutNumber(at, cell.AreaNumber, ',');
    at = PutNumber(at, cell.ColorIndex, ',');
    at = PutNumber(at, cell.X, ',');
    at = PutNumber(at, cell.Y, '\r');
    *at = '\n';
    return at + 1;
}

void AppendRow(std::string& out, RowView<const StippleCell> row) {
    const std::size_t begin = out.size();
    out.resize(begin + row.size() * kCellLine);
    char* at = out.data() + begin;
    for (const StippleCell& cell : row) {
        at = PutCell(at, cell);
    }
    out.resize(static_cast<std::size_t>(at - out.data()));
}

// Each edit on a line, and each paint of an exchange.
void AppendEdits(std::string& out, const EditLayer& layer) {
    AppendText(out, kEditsWord);
    out += ',';
    AppendNumbers(out, {layer.Across, layer.Down, layer.Paints.Count(),
                        static_cast<int>(layer.Cells.size())});
    AppendNumber(out, static_cast<int>(layer.Exchanges.size()));
    out += "\r\n";
    for (const PaintColor& paint : layer.Paints) {
        AppendPaint(out, paint, 0);
    }
    for (const StippleEdit& edit : layer.Cells) {
        AppendNumbers(out, {edit.At.X, edit.At.Y, edit.Wish == StippleWish::Neighbors ? 1 : 0});
        AppendNumber(out, edit.Paint);
        out += "\r\n";
    }
    for (const PaintExchange& exchange : layer.Exchanges) {
        AppendPaint(out, exchange.From, 0);
        AppendPaint(out, exchange.To, 0);
    }
    if (!layer.Order.Empty()) {
        AppendText(out, kOrderWord);
        out += ',';
        AppendNumber(out, layer.Order.Count());
        out += "\r\n";
        for (const PaintColor& paint : layer.Order) {
            AppendPaint(out, paint, 0);
        }
    }
}

}  // namespace

std::filesystem::path StippleFilePath(const ProgramFolder& folder, const LoadedPhoto& photo,
                                      const WorkSettings& settings) {
    return StippleFilePath(folder, photo.PictureName, std::string(DifficultyWord(settings)));
}

std::filesystem::path StippleFilePath(const ProgramFolder& folder, const std::string& photo,
                                      const std::string& difficulty) {
    return folder.Path("Saved Stipples/" + photo + "-" + difficulty + ".stp");
}

bool StippleFileExists(const ProgramFolder& folder, const LoadedPhoto& photo,
                       const WorkSettings& settings) {
    return IsRegularFile(StippleFilePath(folder, photo, settings));
}

std::string FormatStippleFile(const SavedGrid& saved) {
    const int paintCount = saved.Palette.Count();
    const OneBased<int> counts = CountStipples(saved.Cells, saved.Across, saved.Down, paintCount);
    std::string out;
    out.reserve(static_cast<std::size_t>(paintCount) * 80 +
                static_cast<std::size_t>(saved.Across) * static_cast<std::size_t>(saved.Down + 2) *
                    (kCellLine - 8));
    AppendNumbers(out, {paintCount, saved.Across, saved.Down});
    AppendNumber(out, saved.FinalColors);
    out += "\r\n";
    for (int i = 1; i <= paintCount; ++i) {
        AppendPaint(out, saved.Palette[i], counts[i]);
    }
    for (int y = 1; y <= saved.Down; ++y) {
        AppendRow(out, saved.Cells.Row(y).First(saved.Across + 1).From(1));
    }
    if (saved.Edits != nullptr) {
        AppendEdits(out, *saved.Edits);
    }
    return out;
}

void WriteStippleFile(const Target& target, const SavedGrid& saved, Lasting lasting) {
    WriteWholeFile(target, FormatStippleFile(saved), lasting);
}

StippleFileReader::StippleFileReader(std::string_view text, const std::filesystem::path& path)
    : fields_(text, path) {
    header_.PaintCount = ReadFirst("the number of paints", 0, kMaxCounter);
    header_.Across = fields_.ReadInt("the number of stipples across", 0, kMaxCounter);
    header_.Down = fields_.ReadInt("the number of stipples down", 0, kMaxCounter);
    header_.FinalColors = fields_.ReadInt("the number of final paints", 0, kMaxCounter);
    EndRecord();
}

// A field too many or too few would otherwise shift all that follows and be noticed only where
// the file ends, thousands of lines further down.
int StippleFileReader::ReadFirst(const char* what, int min, int max) {
    const int value = fields_.ReadInt(what, min, max);
    if (fields_.Line() == recordLine_) {
        throw FormatError(fields_.File(), recordLine_,
                          "there are too many fields. Correct this line.");
    }
    recordLine_ = fields_.Line();
    return value;
}

void StippleFileReader::EndRecord() const {
    if (fields_.Line() != recordLine_) {
        throw FormatError(fields_.File(), recordLine_,
                          "there are too few fields. Correct this line.");
    }
}

PaintColor StippleFileReader::ReadPaint() {
    PaintColor paint;
    paint.Red = ReadFirst("a paint's red", 0, 255);
    paint.Green = fields_.ReadInt("a paint's green", 0, 255);
    paint.Blue = fields_.ReadInt("a paint's blue", 0, 255);
    paint.PaintName = fields_.ReadText("a paint's name");
    paint.CellCount =
        fields_.ReadInt("a paint's stipple count", 0, std::numeric_limits<int>::max());
    paint.Mfg = fields_.ReadText("a paint's set");
    paint.PaintCode = fields_.ReadText("a paint's code");
    EndRecord();
    return paint;
}

PaintList StippleFileReader::ReadPalette() {
    PaintList palette;
    for (int i = 1; i <= header_.PaintCount; ++i) {
        palette.Add(ReadPaint());
    }
    return palette;
}

void StippleFileReader::RequireCells() const {
    const std::int64_t wanted = std::int64_t{header_.Across} * header_.Down;
    if (wanted == 0) {
        throw FormatError(fields_.File(), 1,
                          "the file announces no stipples. Restore it or correct its counts.");
    }
    const FieldReader::LineRange left = fields_.LinesLeft();
    const int there = left.Last == 0 ? 0 : left.Last - left.First + 1;
    if (there < wanted) {
        throw FormatError(fields_.File(), std::max(left.Last, recordLine_),
                          "the file ends here with " + std::to_string(there) + " of the " +
                              std::to_string(wanted) + " stipples (" +
                              SizeText(header_.Across, header_.Down) +
                              ") that its first line announces. Restore it or correct its counts.");
    }
}

void StippleFileReader::ReadRow(Grid<StippleCell>& cells, int y, int across) {
    for (StippleCell& cell : cells.Row(y).First(across + 1).From(1)) {
        cell.AreaNumber = ReadFirst("a stipple's area", 0, kMaxCounter);
        cell.ColorIndex = fields_.ReadInt("a stipple's paint", 1, header_.PaintCount);
        cell.X = fields_.ReadInt("a stipple's pixel column", 0, kMaxCounter);
        cell.Y = fields_.ReadInt("a stipple's pixel row", 0, kMaxCounter);
        EndRecord();
    }
}

std::optional<EditLayer> StippleFileReader::ReadEdits() {
    if (fields_.LinesLeft().Last == 0 || fields_.ReadText("the edits") != kEditsWord) {
        return std::nullopt;
    }
    recordLine_ = fields_.Line();
    EditLayer layer;
    layer.Across = fields_.ReadInt("the edits' stipples across", 0, kMostStipplesASide);
    layer.Down = fields_.ReadInt("the edits' stipples down", 0, kMostStipplesASide);
    const int paints = fields_.ReadInt("the number of the edits' paints", 0, kMaxCounter);
    const int cells = fields_.ReadInt("the number of edits", 0, layer.Across * layer.Down);
    const int exchanges = fields_.ReadInt("the number of exchanged paints", 0, kMaxCounter);
    EndRecord();
    for (int i = 1; i <= paints; ++i) {
        layer.Paints.Add(ReadPaint());
    }
    for (int i = 1; i <= cells; ++i) {
        layer.Cells.push_back(ReadEdit(layer));
    }
    for (int i = 1; i <= exchanges; ++i) {
        const PaintColor from = ReadPaint();
        layer.Exchanges.push_back({from, ReadPaint()});
    }
    ReadOrder(layer);
    return layer;
}

void StippleFileReader::ReadOrder(EditLayer& layer) {
    if (fields_.LinesLeft().Last == 0 || fields_.ReadText("the paints' order") != kOrderWord) {
        return;
    }
    recordLine_ = fields_.Line();
    const int paints = fields_.ReadInt("the number of paints in order", 0, kMaxCounter);
    EndRecord();
    for (int i = 1; i <= paints; ++i) {
        layer.Order.Add(ReadPaint());
    }
}

StippleEdit StippleFileReader::ReadEdit(const EditLayer& layer) {
    const CellPos before = layer.Cells.empty() ? CellPos{0, 1} : layer.Cells.back().At;
    const int x = ReadFirst("an edit's column", 1, layer.Across);
    const int y = fields_.ReadInt("an edit's row", before.Y, layer.Down);
    const bool joined = fields_.ReadInt("an edit's kind", 0, 1) == 1;
    const int paint = fields_.ReadInt("an edit's paint", joined ? 0 : 1, layer.Paints.Count());
    EndRecord();
    if (y == before.Y && x <= before.X) {
        throw FormatError(fields_.File(), recordLine_,
                          "this edit comes before or on the one above. Correct this line.");
    }
    return {{x, y}, joined ? StippleWish::Neighbors : StippleWish::Paint, paint};
}

}  // namespace vendrel
