#include "shelf/shelf_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <map>
#include <thread>
#include <utility>

#include "paints/template_file.h"
#include "shelf/labels.h"
#include "support/csv_table.h"
#include "support/decimals.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/held_file.h"
#include "support/letter_case.h"
#include "support/text_file.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

enum Column { kSet, kName, kCode, kMl, kPots, kLabel, kRed, kGreen, kBlue, kSeen, kNote, kTaken };
constexpr auto kColumns =
    std::to_array<std::string_view>({"set", "name", "code", "ml left", "pots", "label", "red",
                                     "green", "blue", "color", "note", "painted"});
constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);
constexpr double kMostMl = 1'000'000;

std::string HexText(Color color) {
    constexpr std::string_view kHexDigits = "0123456789ABCDEF";
    std::string hex = "#";
    for (const int channel : {RedOf(color), GreenOf(color), BlueOf(color)}) {
        hex += kHexDigits[static_cast<std::size_t>(channel / 16)];
        hex += kHexDigits[static_cast<std::size_t>(channel % 16)];
    }
    return hex;
}

std::optional<Color> ColorOfHex(std::string_view text) {
    unsigned value = 0;
    const auto [end, failure] =
        std::from_chars(text.data() + 1, text.data() + text.size(), value, 16);
    if (text.size() != 7 || text[0] != '#' || failure != std::errc{} ||
        end != text.data() + text.size()) {
        return std::nullopt;
    }
    return Rgb(static_cast<int>(value >> 16U), static_cast<int>(value >> 8U & 255U),
               static_cast<int>(value & 255U));
}

// "3.2 beach; 1.5 aunt": what stands between must not stand in a title.
std::string Hidden(std::string_view title) {
    std::string hidden;
    for (const char c : title) {
        hidden += c == ';' ? "%3B" : c == '%' ? "%25" : std::string(1, c);
    }
    return hidden;
}

std::string Unhidden(std::string_view text) {
    std::string title;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string_view code = text.substr(i, 3);
        title += code == "%3B" ? ';' : code == "%25" ? '%' : text[i];
        i += code == "%3B" || code == "%25" ? 2 : 0;
    }
    return title;
}

// Templates hold neither double quotes nor ends of lines.
std::string PlainName(std::string_view text) {
    std::string name(text);
    std::ranges::replace(name, '"', '\'');
    std::ranges::replace_if(
        name, [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return name;
}

std::string MlText(double ml, char separator) {
    std::string text = Decimals(ml, 2);
    text.resize(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) {
        text.pop_back();
    }
    if (separator == ';') {
        std::ranges::replace(text, '.', ',');
    }
    return text;
}

class ShelfReader {
  public:
    ShelfReader(const CsvTable& table, const fs::path& file) : table_(table), file_(file) {}

    [[nodiscard]] Shelf Read() {
        shelf_.Separator = table_.Separator;
        if (table_.Rows.empty()) {
            return std::move(shelf_);
        }
        ReadHeading(table_.Rows.front());
        for (std::size_t i = 1; i < table_.Rows.size(); ++i) {
            ReadPaint(table_.Rows[i]);
        }
        return std::move(shelf_);
    }

  private:
    void ReadHeading(const CsvRow& heading) {
        for (std::size_t i = 0; i < kColumns.size(); ++i) {
            columns_.at(i) = CsvColumn(heading, {kColumns.at(i)}).value_or(kNowhere);
        }
        if (columns_[kName] == kNowhere) {
            throw FormatError(file_, heading.Line,
                              "no column is called \"name\". The first row must name the columns, "
                              "as in set,name,code,ml left,pots,label,note.");
        }
        for (std::size_t i = 0; i < heading.Fields.size(); ++i) {
            if (std::ranges::find(columns_, i) == columns_.end() && !heading.Fields[i].empty()) {
                others_.push_back(i);
                shelf_.OtherColumns.push_back(heading.Fields[i]);
            }
        }
        width_ = heading.Fields.size();
    }

    // A decimal comma without quotes would move what is behind it into the next columns.
    void CheckWidth(const CsvRow& row) const {
        std::size_t used = row.Fields.size();
        while (used > width_ && row.Fields[used - 1].empty()) {
            --used;
        }
        const auto isFilled = [&](int column) { return !Text(row, column).empty(); };
        const bool shortNumbers = row.Fields.size() < width_ &&
                                  std::ranges::any_of(std::array{kMl, kPots, kRed}, isFilled);
        if (used > width_ || (shortNumbers && table_.Separator == ',')) {
            Refuse(row, "has " + std::to_string(used) + " fields for " + std::to_string(width_) +
                            " columns. Put texts and numbers with a comma in quotes, and leave no "
                            "field out.");
        }
    }

    void ReadPaint(const CsvRow& row) {
        CheckWidth(row);
        ShelfPaint paint{PlainName(Text(row, kSet)), PlainName(Text(row, kName)),
                         PlainName(Text(row, kCode))};
        if (!IdOf(paint).Named()) {
            Refuse(row, "names no paint. Give it a name or a code, or take the line out.");
        }
        paint.MlLeft = Number(row, kMl, kMostMl);
        if (const auto pots = Whole(row, kPots, 10'000)) {
            paint.Pots = *pots;
        }
        paint.Label = ReadLabel(row);
        paint.Measured = ReadMeasured(row);
        paint.LastSeen = ReadSeen(row);
        paint.Note = Text(row, kNote);
        paint.Taken = ReadTaken(row);
        for (const std::size_t column : others_) {
            paint.Others.emplace_back(row.Field(column));
        }
        if (const auto [twin, isNew] = lines_.emplace(IdOf(paint), row.Line); !isNew) {
            Refuse(row, "lists the paint of line " + std::to_string(twin->second) +
                            " again. Take one of them out.");
        }
        shelf_.Paints.push_back(std::move(paint));
    }

    [[nodiscard]] std::string ReadLabel(const CsvRow& row) {
        const std::string_view text = Text(row, kLabel);
        if (text.empty()) {
            return {};
        }
        std::string label = LabelOf(text);
        if (label.empty()) {
            Refuse(row, "has the label \"" + std::string(text) +
                            "\". Choose one to three letters or digits.");
        }
        for (const auto& [other, line] : labels_) {
            if (label == other) {  // pots that carry labels much alike are the painter's to relabel
                Refuse(row, "has the label " + label + ", which line " + std::to_string(line) +
                                " has too. Choose another or leave it empty.");
            }
        }
        labels_.emplace_back(label, row.Line);
        return label;
    }

    [[nodiscard]] std::optional<Color> ReadMeasured(const CsvRow& row) const {
        const auto red = Whole(row, kRed, 255);
        const auto green = Whole(row, kGreen, 255);
        const auto blue = Whole(row, kBlue, 255);
        if (red && green && blue) {
            return Rgb(*red, *green, *blue);
        }
        if (red || green || blue) {
            Refuse(row, "has only some of red, green and blue. Give all three or none.");
        }
        return std::nullopt;
    }

    [[nodiscard]] std::optional<Color> ReadSeen(const CsvRow& row) const {
        const std::string_view text = Text(row, kSeen);
        const auto color = text.empty() ? std::nullopt : ColorOfHex(text);
        if (!text.empty() && !color) {
            Refuse(row, "has a color that is none. Write it as in #C08060 or leave it empty.");
        }
        return color;
    }

    [[nodiscard]] std::vector<TakenPaint> ReadTaken(const CsvRow& row) const {
        std::vector<TakenPaint> taken;
        std::string_view text = Text(row, kTaken);
        while (!text.empty()) {
            const std::size_t end = std::min(text.find(';'), text.size());
            const std::string_view entry = Trimmed(text.substr(0, end));
            text.remove_prefix(std::min(end + 1, text.size()));
            const std::size_t blank = std::min(entry.find(' '), entry.size());
            const auto ml = CsvNumber(entry.substr(0, blank), ',');
            const std::string title = Unhidden(Trimmed(entry.substr(blank)));
            if (!ml || *ml < 0 || *ml > kMostMl || title.empty()) {
                Refuse(row,
                       "has something in the column \"painted\" that is no list as in \"3.2 beach; "
                       "1.5 aunt\". Correct it or leave it empty.");
            }
            taken.push_back({title, *ml});
        }
        return taken;
    }

    [[nodiscard]] std::string_view Text(const CsvRow& row, int column) const {
        return row.Field(columns_.at(static_cast<std::size_t>(column)));
    }

    [[nodiscard]] std::optional<double> Number(const CsvRow& row, int column, double most) const {
        const std::string_view text = Text(row, column);
        if (text.empty()) {
            return std::nullopt;
        }
        const auto number = CsvNumber(text, table_.Separator);
        if (!number || *number < 0 || *number > most) {
            Refuse(row, "has \"" + std::string(text) + "\" for " +
                            std::string(kColumns.at(static_cast<std::size_t>(column))) +
                            ". Write a number from 0 to " + Decimals(most, 0) +
                            " without dots or commas between thousands.");
        }
        return number;
    }

    [[nodiscard]] std::optional<int> Whole(const CsvRow& row, int column, int most) const {
        const auto number = Number(row, column, most);
        if (number && *number != std::floor(*number)) {
            Refuse(row, "has \"" + std::string(Text(row, column)) + "\" for " +
                            std::string(kColumns.at(static_cast<std::size_t>(column))) +
                            ". Write a whole number.");
        }
        return number ? std::optional(static_cast<int>(*number)) : std::nullopt;
    }

    [[noreturn]] void Refuse(const CsvRow& row, const std::string& problem) const {
        throw FormatError(file_, row.Line, problem);
    }

    const CsvTable& table_;
    const fs::path& file_;
    Shelf shelf_;
    std::array<std::size_t, kColumns.size()> columns_{};
    std::vector<std::size_t> others_;
    std::size_t width_ = 0;
    std::map<PaintId, int> lines_;
    std::vector<std::pair<std::string, int>> labels_;
};

std::string TakenText(const ShelfPaint& paint) {
    std::string text;
    for (const TakenPaint& taken : paint.Taken) {
        text += (text.empty() ? "" : "; ") + MlText(taken.Ml, ',') + " " + Hidden(taken.Kit);
    }
    return text;
}

std::vector<std::string> FieldsOf(const ShelfPaint& paint, const Shelf& shelf) {
    const auto channel = [&paint](int (*of)(Color)) {
        return paint.Measured ? std::to_string(of(*paint.Measured)) : std::string();
    };
    std::vector<std::string> fields{
        paint.Set,
        paint.Name,
        paint.Code,
        paint.MlLeft ? MlText(*paint.MlLeft, shelf.Separator) : "",
        paint.Pots ? std::to_string(*paint.Pots) : "",
        paint.Label,
        channel([](Color color) { return static_cast<int>(RedOf(color)); }),
        channel([](Color color) { return static_cast<int>(GreenOf(color)); }),
        channel([](Color color) { return static_cast<int>(BlueOf(color)); }),
        paint.LastSeen ? HexText(*paint.LastSeen) : "",
        paint.Note,
        TakenText(paint)};
    for (std::size_t i = 0; i < shelf.OtherColumns.size(); ++i) {
        fields.push_back(i < paint.Others.size() ? paint.Others[i] : "");
    }
    return fields;
}

void AppendRow(std::string& text, const std::vector<std::string>& fields, char separator) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (i > 0) {
            text += separator;
        }
        text += CsvField(fields[i], separator);
    }
    text += "\r\n";
}

// A heading tells what separates the fields, so no name in it may say otherwise.
std::string HeadingField(const std::string& name, char separator) {
    const std::size_t other = name.find_first_of(";\t,");
    return CsvField(name, other == name.npos ? separator : name[other]);
}

// Changes take a moment; a program that stands still must not keep the others waiting for ever.
std::shared_ptr<const HeldFile> HoldShelf(const fs::path& file) {
    using namespace std::chrono_literals;
    const auto end = std::chrono::steady_clock::now() + 10s;
    while (true) {
        if (auto held = HeldFile::Hold(file)) {
            return held;
        }
        if (std::chrono::steady_clock::now() > end) {
            throw FileError(file, "is being changed by another program. Try again.");
        }
        std::this_thread::sleep_for(5ms);
    }
}

Shelf ReadShelfFile(const fs::path& file) {
    return Stands(file) ? ParseShelf(ReadTextFile(file), file) : Shelf{};
}

}  // namespace

fs::path ShelfPath(const ProgramFolder& folder) {
    return folder.Path("Data/mypaints.csv");
}

Shelf ParseShelf(std::string_view text, const fs::path& file) {
    const CsvTable table = ParseCsv(text, file);
    return ShelfReader(table, file).Read();
}

std::string FormatShelf(const Shelf& shelf) {
    std::string text = "\xEF\xBB\xBF";  // tells a spreadsheet the encoding
    std::vector<std::string> heading(kColumns.begin(), kColumns.end());
    heading.insert(heading.end(), shelf.OtherColumns.begin(), shelf.OtherColumns.end());
    for (std::size_t i = 0; i < heading.size(); ++i) {
        text += (i > 0 ? std::string(1, shelf.Separator) : "") +
                HeadingField(heading[i], shelf.Separator);
    }
    text += "\r\n";
    for (const ShelfPaint& paint : shelf.Paints) {
        AppendRow(text, FieldsOf(paint, shelf), shelf.Separator);
    }
    return text;
}

Shelf ReadShelf(const ProgramFolder& folder) {
    return ReadShelfFile(ShelfPath(folder));
}

Shelf ChangeShelf(const ProgramFolder& folder, const std::function<void(Shelf&)>& change) {
    const fs::path file = ShelfPath(folder);
    std::error_code failure;
    fs::create_directories(file.parent_path(), failure);  // writing tells what is wrong
    const auto held = HoldShelf(file);
    const Shelf before = ReadShelfFile(file);
    Shelf after = before;
    change(after);
    if (after != before) {
        WriteWholeFile(file, FormatShelf(after), Lasting::Synced);
    }
    return after;
}

Shelf SaveShelf(const ProgramFolder& folder, const Shelf& before, const Shelf& after) {
    return ChangeShelf(folder, [&](Shelf& shelf) { shelf = MergeShelves(shelf, before, after); });
}

void RefuseEmptyShelf(const ProgramFolder& folder) {
    throw FileError(ShelfPath(folder),
                    "names no paint that is left and whose color is known. Add paints with "
                    "\"vendrel paints --import FILE\".");
}

PaintList WriteShelfTemplate(const ProgramFolder& folder, const Shelf& shelf) {
    const PaintList paints = OwnedPaints(shelf);
    if (paints.Empty()) {
        RefuseEmptyShelf(folder);
    }
    WriteTemplate(TemplatePath(folder, kShelfTemplate), paints);
    return paints;
}

}  // namespace vendrel
