#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vendrel {

/// A row of a table and the line it begins in, from 1.
struct CsvRow {
    int Line = 0;
    std::vector<std::string> Fields;  // without the blanks around them

    /// Empty for a column that the row does not reach.
    [[nodiscard]] std::string_view Field(std::size_t column) const {
        return column < Fields.size() ? std::string_view(Fields[column]) : std::string_view();
    }
};

/// A table as spreadsheets write it.
struct CsvTable {
    char Separator = ',';
    std::vector<CsvRow> Rows;  // without empty ones
};

/// Takes a UTF-8 text apart: fields between commas, semicolons or tabs, whichever the first row has
/// (or a first line such as "sep=;" names), quoted or not, a doubled quote inside quotes for one,
/// line ends in quotes too. Throws FormatError for a quote that is never closed.
[[nodiscard]] CsvTable ParseCsv(std::string_view text, const std::filesystem::path& file);

/// A number with a decimal point or comma. Nothing for what is no number, and for what may be read
/// in two ways: 1,234 is a thousand for some, and so is 1.234 where semicolons stand between;
/// unless a thousand would be more than `most`.
[[nodiscard]] std::optional<double> CsvNumber(std::string_view text, char separator,
                                              double most = 1e15);

/// The column whose heading is one of those names, whatever the case of letters; nothing without.
[[nodiscard]] std::optional<std::size_t> CsvColumn(const CsvRow& heading,
                                                   const std::vector<std::string_view>& names);

/// A text as a field, in quotes where it needs them.
[[nodiscard]] std::string CsvField(std::string_view text, char separator = ',');

/// Without the blanks at both ends.
[[nodiscard]] std::string_view Trimmed(std::string_view text);

}  // namespace vendrel
