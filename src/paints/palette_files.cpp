#include "paints/palette_files.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

#include "support/error.h"
#include "support/letter_case.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string WithoutQuotes(std::string_view text) {
    std::string name(text);
    std::ranges::replace(name, '"', '\'');
    return name;
}

// -1 when the text is no whole number from 0 to 255.
int Channel(std::string_view text) {
    text = Trim(text);
    int value = 0;
    const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = status == std::errc() && end == text.data() + text.size() && !text.empty();
    return whole && value >= 0 && value <= 255 ? value : -1;
}

PaintColor MakePaint(const std::array<int, 3>& rgb, std::string_view set, std::string_view name) {
    return {rgb[0], rgb[1], rgb[2], WithoutQuotes(set), "", WithoutQuotes(name), 0};
}

// Our templates begin with the number of their paints, alone on its line.
bool IsTemplate(std::string_view text) {
    const std::string_view line = Trim(text.substr(0, text.find_first_of("\r\n")));
    return !line.empty() && line.find_first_not_of("0123456789") == std::string_view::npos;
}

// A .gpl palette has one text per color: "set: name [code]". So that it can be taken apart again, a
// colon in a set and a [ in a code are doubled, and a name that ends like a code gets an empty one.
std::string Doubled(std::string_view text, char c) {
    std::string doubled;
    for (const char each : text) {
        doubled.append(each == c ? 2 : 1, each);
    }
    return doubled;
}

std::string Halved(std::string_view text, char c) {
    std::string halved;
    for (std::size_t i = 0; i < text.size(); ++i) {
        halved += text[i];
        i += text[i] == c && i + 1 < text.size() && text[i + 1] == c ? 1 : 0;
    }
    return halved;
}

std::string GplTitle(const PaintColor& paint) {
    std::string title = Doubled(paint.Mfg, ':') + ": " + paint.PaintName;
    if (!paint.PaintCode.empty() || paint.PaintName.ends_with(']')) {
        title += " [" + Doubled(paint.PaintCode, '[') + "]";
    }
    std::ranges::replace_if(
        title, [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return title;
}

// The colon that is not doubled; npos where there is none.
std::size_t EndOfSet(std::string_view title) {
    std::size_t at = title.find(':');
    while (at != std::string_view::npos && title.substr(at).starts_with("::")) {
        at = title.find(':', at + 2);
    }
    const bool ends =
        at != std::string_view::npos && (at + 1 == title.size() || title[at + 1] == ' ');
    return ends ? at : std::string_view::npos;
}

// The " [" of the code, of which an odd number of [ stands together; npos where there is none.
std::size_t StartOfCode(std::string_view name) {
    std::size_t last = name.ends_with(']') ? name.rfind('[') : std::string_view::npos;
    while (last != std::string_view::npos) {
        std::size_t first = last;
        while (first > 0 && name[first - 1] == '[') {
            --first;
        }
        if ((last - first) % 2 == 0) {
            return first > 0 && name[first - 1] == ' ' ? first - 1 : std::string_view::npos;
        }
        last = first == 0 ? std::string_view::npos : name.rfind('[', first - 1);
    }
    return std::string_view::npos;
}

bool IsGplTitle(const PaintColor& paint) {
    return EndOfSet(paint.PaintName) != std::string::npos;
}

void TakeTitleApart(PaintColor& paint) {
    const std::string title = paint.PaintName;
    const std::size_t colon = EndOfSet(title);
    paint.Mfg = Halved(title.substr(0, colon), ':');
    paint.PaintName = title.substr(std::min(colon + 2, title.size()));
    if (const std::size_t code = StartOfCode(paint.PaintName); code != std::string::npos) {
        paint.PaintCode = Halved(
            std::string_view(paint.PaintName).substr(code + 2, paint.PaintName.size() - code - 3),
            '[');
        paint.PaintName.resize(code);
    }
}

// Takes the next blank-separated word off the front.
std::string_view TakeWord(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    const std::string_view word = line.substr(0, line.find_first_of(" \t"));
    line.remove_prefix(word.size());
    return word;
}

// The fields of one CSV line; a doubled quote inside quotes stands for one.
std::vector<std::string> SplitCsvLine(std::string_view line, char separator) {
    std::vector<std::string> fields(1);
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '"' && quoted && i + 1 < line.size() && line[i + 1] == '"') {
            fields.back() += line[++i];
        } else if (line[i] == '"') {
            quoted = !quoted;
        } else if (line[i] == separator && !quoted) {
            fields.emplace_back();
        } else {
            fields.back() += line[i];
        }
    }
    return fields;
}

struct CsvColumns {
    std::array<std::size_t, 3> Rgb = {0, 1, 2};
    std::size_t Name = 3;
};

constexpr std::size_t kNoColumn = static_cast<std::size_t>(-1);

std::size_t FindColumn(const std::vector<std::string>& heading,
                       std::initializer_list<std::string_view> names) {
    for (std::size_t i = 0; i < heading.size(); ++i) {
        if (std::ranges::find(names, ToLower(Trim(heading[i]))) != names.end()) {
            return i;
        }
    }
    return kNoColumn;
}

CsvColumns ReadHeading(const std::vector<std::string>& heading, const fs::path& file) {
    const CsvColumns columns{
        {FindColumn(heading, {"red", "r"}), FindColumn(heading, {"green", "g"}),
         FindColumn(heading, {"blue", "b"})},
        FindColumn(heading, {"name", "color", "colour", "paint"})};
    if (std::ranges::find(columns.Rgb, kNoColumn) != columns.Rgb.end()) {
        throw FormatError(file, 1,
                          "the columns red, green and blue were not found. Name them in the first "
                          "line, or give red, green, blue, name in this order.");
    }
    return columns;
}

char SeparatorOf(std::string_view line) {
    for (const char separator : {',', ';', '\t'}) {
        if (line.find(separator) != std::string_view::npos) {
            return separator;
        }
    }
    return ',';
}

PaintColor ReadCsvRow(const std::vector<std::string>& fields, const CsvColumns& columns,
                      const fs::path& file, int line) {
    std::array<int, 3> rgb{};
    for (std::size_t i = 0; i < rgb.size(); ++i) {
        rgb[i] = columns.Rgb[i] < fields.size() ? Channel(fields[columns.Rgb[i]]) : -1;
    }
    if (std::ranges::min(rgb) < 0) {
        throw FormatError(file, line,
                          "red, green and blue must be whole numbers from 0 to 255. Correct this "
                          "line or take it out.");
    }
    const bool named = columns.Name < fields.size() && !Trim(fields[columns.Name]).empty();
    return MakePaint(rgb, file.stem().string(),
                     named ? Trim(fields[columns.Name]) : std::string_view("Unnamed"));
}

}  // namespace

PaintList ParseGplPalette(std::string_view text, const fs::path& file) {
    const std::vector<std::string> lines = SplitLines(text);
    if (lines.empty() || !lines[0].starts_with("GIMP Palette")) {
        throw FormatError(file, 1,
                          "this is no .gpl palette: its first line must be \"GIMP Palette\".");
    }
    PaintList paints;
    std::string set = file.stem().string();
    for (std::size_t i = 1; i < lines.size(); ++i) {
        std::string_view line = Trim(lines[i]);
        if (line.starts_with("Name:")) {
            set = Trim(line.substr(5));
        }
        if (line.empty() || line[0] == '#' || line.starts_with("Name:") ||
            line.starts_with("Columns:")) {
            continue;
        }
        const std::array<int, 3> rgb = {Channel(TakeWord(line)), Channel(TakeWord(line)),
                                        Channel(TakeWord(line))};
        if (std::ranges::min(rgb) < 0) {
            throw FormatError(file, static_cast<int>(i) + 1,
                              "three whole numbers from 0 to 255 were expected. Correct this line "
                              "or take it out.");
        }
        const std::string_view name = Trim(line);
        paints.Add(MakePaint(rgb, set, name.empty() ? "Unnamed" : name));
    }
    if (std::ranges::all_of(paints, IsGplTitle)) {
        std::ranges::for_each(paints, TakeTitleApart);
    }
    return paints;
}

PaintList ParseColorCsv(std::string_view text, const fs::path& file) {
    const std::vector<std::string> lines = SplitLines(text);
    PaintList paints;
    if (lines.empty()) {
        return paints;
    }
    const char separator = SeparatorOf(lines[0]);
    const std::vector<std::string> first = SplitCsvLine(lines[0], separator);
    const bool hasHeading = Channel(first[0]) < 0;
    const CsvColumns columns = hasHeading ? ReadHeading(first, file) : CsvColumns{};
    for (std::size_t i = hasHeading ? 1 : 0; i < lines.size(); ++i) {
        if (!Trim(lines[i]).empty()) {
            paints.Add(ReadCsvRow(SplitCsvLine(lines[i], separator), columns, file,
                                  static_cast<int>(i) + 1));
        }
    }
    return paints;
}

PaintFile ReadPaletteFile(const fs::path& file) {
    const std::string ending = ToLower(file.extension().string());
    if (ending != ".gpl" && ending != ".csv") {
        throw FileError(file, "is no palette that can be read. Choose a .gpl or a .csv file.");
    }
    const std::string text = ReadTextFile(file);
    PaintFile read;
    if (ending == ".gpl") {
        read.Paints = ParseGplPalette(text, file);
    } else if (IsTemplate(text)) {
        read = ReadPaintFile(file);
    } else {
        read.Paints = ParseColorCsv(text, file);
    }
    if (read.Paints.Empty()) {
        throw FileError(file, "holds no colors. Choose another palette.");
    }
    return read;
}

std::string GplText(std::string_view name, const PaintList& paints) {
    std::string text = "GIMP Palette\nName: " + std::string(name) + "\nColumns: 8\n#\n";
    for (const PaintColor& paint : paints) {
        for (const int channel : {paint.Red, paint.Green, paint.Blue}) {
            const std::string number = std::to_string(channel);
            text += std::string(3 - number.size(), ' ') + number + ' ';
        }
        text.back() = '\t';
        text += GplTitle(paint) + '\n';
    }
    return text;
}

}  // namespace vendrel
