#include "paints/foreign_catalogue.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <set>

#include "eye/lab.h"
#include "paints/template_file.h"
#include "paints/template_library.h"
#include "shell/paint_id.h"
#include "support/counter.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr double kMostInColor = 255;

using Where = std::optional<std::size_t>;

std::optional<Color> HexColor(std::string_view text) {
    text.remove_prefix(text.starts_with('#') ? 1 : 0);
    unsigned value = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (text.size() != 6 || failure != std::errc{} || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return Rgb(static_cast<int>(value >> 16U), static_cast<int>(value >> 8U & 255U),
               static_cast<int>(value & 255U));
}

std::string TextAt(const CsvRow& row, const Where& column) {
    std::string text(column ? row.Field(*column) : std::string_view());
    std::ranges::replace(text, '"', '\'');
    std::ranges::replace_if(
        text, [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return text;
}

std::optional<std::array<double, 3>> NumbersAt(const CsvRow& row,
                                               const std::array<Where, 3>& columns,
                                               char separator) {
    std::array<double, 3> numbers{};
    for (std::size_t i = 0; i < 3; ++i) {
        const auto number =
            CsvNumber(columns.at(i) ? row.Field(*columns.at(i)) : "", separator, kMostInColor);
        if (!number) {
            return std::nullopt;
        }
        numbers.at(i) = *number;
    }
    return numbers;
}

std::optional<Color> ColorAt(const CsvRow& row, const CatalogueColumns& columns, char separator) {
    if (columns.Hex) {
        return HexColor(row.Field(*columns.Hex));
    }
    const bool byRgb = columns.Rgb[0].has_value();
    const auto numbers = NumbersAt(row, byRgb ? columns.Rgb : columns.Lab, separator);
    if (!numbers) {
        return std::nullopt;
    }
    const auto& [one, two, three] = *numbers;
    if (!byRgb) {
        constexpr double kFarthest = 200;
        const bool holds =
            one >= 0 && one <= 100 && std::abs(two) <= kFarthest && std::abs(three) <= kFarthest;
        return holds ? std::optional(ColorOfLab({one, two, three})) : std::nullopt;
    }
    const bool whole = std::ranges::all_of(*numbers, [](double channel) {
        return channel >= 0 && channel <= 255 && channel == std::floor(channel);
    });
    return whole ? std::optional(
                       Rgb(static_cast<int>(one), static_cast<int>(two), static_cast<int>(three)))
                 : std::nullopt;
}

bool LooksLikeColor(const CsvRow& row) {
    return std::ranges::any_of(row.Fields, [](const std::string& field) {
        return field.starts_with('#') && HexColor(field).has_value();
    });
}

// Whether the first row has something in the place of a color that no heading is.
bool HasNumbers(const CsvTable& table, const CatalogueColumns& columns) {
    const CsvRow& row = table.Rows.front();
    return (columns.Hex && HexColor(row.Field(*columns.Hex))) ||
           NumbersAt(row, columns.Rgb, table.Separator) ||
           NumbersAt(row, columns.Lab, table.Separator);
}

// The place of a column that --columns names by its number or its heading.
std::size_t PlaceNamed(std::string_view word, const CsvTable& table) {
    const CsvRow& heading = table.Rows.front();
    std::size_t number = 0;
    const auto [end, failure] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (failure == std::errc{} && end == word.data() + word.size() && number >= 1 &&
        number <= heading.Fields.size()) {
        return number - 1;
    }
    if (const Where found = CsvColumn(heading, {ToLower(word)})) {
        return *found;
    }
    std::string names;
    for (const std::string& field : heading.Fields) {
        names += (names.empty() ? "" : ", ") + field;
    }
    throw UsageError("--columns names a column \"" + std::string(word) +
                     "\" that is not there. The table has " + names + ".");
}

Where* FieldNamed(std::string_view key, CatalogueColumns& columns) {
    const std::array<std::pair<std::string_view, Where*>, 10> fields{{{"set", &columns.Set},
                                                                      {"name", &columns.Name},
                                                                      {"code", &columns.Code},
                                                                      {"hex", &columns.Hex},
                                                                      {"red", &columns.Rgb[0]},
                                                                      {"green", &columns.Rgb[1]},
                                                                      {"blue", &columns.Rgb[2]},
                                                                      {"l", &columns.Lab[0]},
                                                                      {"a", &columns.Lab[1]},
                                                                      {"b", &columns.Lab[2]}}};
    const auto found = std::ranges::find(fields, key, &std::pair<std::string_view, Where*>::first);
    return found == fields.end() ? nullptr : found->second;
}

}  // namespace

CatalogueColumns GuessColumns(const CsvTable& table) {
    CatalogueColumns columns;
    if (table.Rows.empty()) {
        return columns;
    }
    const CsvRow& first = table.Rows.front();
    columns.Set = CsvColumn(first, {"set", "brand", "range", "series", "mfg"});
    columns.Name = CsvColumn(first, {"name", "paint", "paint name", "color name", "colour name"});
    columns.Code = CsvColumn(first, {"code", "number", "no", "no.", "sku", "paint code", "id"});
    columns.Hex = CsvColumn(first, {"hex", "html", "rgb", "color", "colour"});
    columns.Rgb = {CsvColumn(first, {"red", "r"}), CsvColumn(first, {"green", "g"}),
                   CsvColumn(first, {"blue", "b"})};
    columns.Lab = {CsvColumn(first, {"l", "l*", "cie l", "lightness"}),
                   CsvColumn(first, {"a", "a*", "cie a"}), CsvColumn(first, {"b", "b*", "cie b"})};
    const auto whole = [](const auto& three) { return three[0] && three[1] && three[2]; };
    columns.Lab = whole(columns.Lab) ? columns.Lab : decltype(columns.Lab){};
    columns.Rgb = whole(columns.Rgb) && !whole(columns.Lab) ? columns.Rgb : decltype(columns.Rgb){};
    if (!columns.Name && LooksLikeColor(first)) {
        columns = {.Heading = false};
        for (std::size_t i = 0; i < first.Fields.size(); ++i) {
            const bool hex = first.Fields[i].starts_with('#');
            (hex ? columns.Hex : columns.Name) = (hex ? columns.Hex : columns.Name).value_or(i);
        }
    }
    return columns;
}

CatalogueColumns ColumnsNamed(std::string_view words, const CsvTable& table) {
    CatalogueColumns columns;
    bool byHeading = false;
    while (!words.empty() && !table.Rows.empty()) {
        const std::size_t end = std::min(words.find(','), words.size());
        const std::string_view word = Trimmed(words.substr(0, end));
        words.remove_prefix(std::min(end + 1, words.size()));
        const std::size_t equals = std::min(word.find('='), word.size());
        const std::string key = ToLower(Trimmed(word.substr(0, equals)));
        Where* const field = FieldNamed(key, columns);
        if (field == nullptr || equals == word.size()) {
            throw UsageError(
                "--columns cannot have \"" + std::string(word) +
                "\"; choose from set, name, code, hex, red, green, blue, l, a and b, as "
                "in name=2,hex=5.");
        }
        const std::string_view place = Trimmed(word.substr(equals + 1));
        *field = PlaceNamed(place, table);
        byHeading = byHeading || place.find_first_not_of("0123456789") != place.npos;
    }
    // By numbers alone the first row may be a paint; then it has a color.
    columns.Heading = table.Rows.empty() || byHeading || !HasNumbers(table, columns);
    return columns;
}

ForeignCatalogue ReadForeignCatalogue(const CsvTable& table, const CatalogueColumns& columns,
                                      const std::string& set, const fs::path& file) {
    if ((!columns.Name && !columns.Code) || !columns.HasColor()) {
        throw FormatError(file, 1,
                          "which columns hold the names and the colors cannot be told. Name them, "
                          "as in name=2,hex=5.");
    }
    ForeignCatalogue read;
    std::set<PaintId> known;
    const auto fault = [&](const CsvRow& row, const std::string& what) {
        read.Faults.emplace_back(FormatError(file, row.Line, what).what());
    };
    for (std::size_t i = columns.Heading ? 1 : 0; i < table.Rows.size(); ++i) {
        const CsvRow& row = table.Rows[i];
        const auto color = ColorAt(row, columns, table.Separator);
        PaintColor paint;
        paint.Mfg = TextAt(row, columns.Set);
        paint.Mfg = paint.Mfg.empty() ? set : paint.Mfg;
        paint.PaintName = TextAt(row, columns.Name);
        paint.PaintCode = TextAt(row, columns.Code);
        if (row.Fields.size() > table.Rows.front().Fields.size()) {
            fault(row, "has more fields than the first row. Put what has a comma in quotes.");
        } else if (!IdOf(paint).Named()) {
            fault(row, "names no paint. Give it a name.");
        } else if (!color) {
            fault(row,
                  "has no color that can be read. Write #C08060, red, green and blue from 0 to "
                  "255, or L*a*b*.");
        } else if (!known.insert(IdOf(paint)).second) {
            fault(row, "lists a paint again; the first stands.");
        } else if (read.Paints.Count() < kMaxCounter) {
            paint.Red = RedOf(*color);
            paint.Green = GreenOf(*color);
            paint.Blue = BlueOf(*color);
            read.Paints.Add(std::move(paint));
        }
    }
    return read;
}

fs::path AddCatalogue(const ProgramFolder& folder, std::string_view name, const PaintList& paints) {
    const std::string clean = CleanTemplateName(name);
    const fs::path file = folder.Path("Data/catalogues/" + clean + ".csv");
    if (paints.Empty()) {
        throw FileError(file, "would hold no paints. Choose other columns.");
    }
    if (Stands(file)) {
        throw FileError(file,
                        "is there already. Give the file to add another name, or take that "
                        "one out.");
    }
    WriteTemplate(file, paints);
    return file;
}

}  // namespace vendrel
