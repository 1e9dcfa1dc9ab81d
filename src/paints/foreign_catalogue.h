#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/records.h"
#include "support/csv_table.h"
#include "support/program_folder.h"

namespace vendrel {

/// Which columns of a table, from 0, hold what. A color is one of the three: hex as in #C08060 or
/// C08060, red, green and blue of 0..255, or CIE L*a*b* under daylight.
struct CatalogueColumns {
    bool Heading = true;  // the first row names them
    std::optional<std::size_t> Set{};
    std::optional<std::size_t> Name{};
    std::optional<std::size_t> Code{};
    std::optional<std::size_t> Hex{};
    std::array<std::optional<std::size_t>, 3> Rgb{};
    std::array<std::optional<std::size_t>, 3> Lab{};

    [[nodiscard]] bool HasColor() const { return Hex || Rgb[0] || Lab[0]; }
};

/// What the first row's names and the fields below them look like.
[[nodiscard]] CatalogueColumns GuessColumns(const CsvTable& table);

/// "name=2,hex=Color": of set, name, code, hex, red, green, blue, l, a and b the column, by its
/// number from 1 or its name. Throws UsageError, naming the columns that there are.
[[nodiscard]] CatalogueColumns ColumnsNamed(std::string_view words, const CsvTable& table);

/// The paints of a table, and a sentence with file and line for each row that is none.
struct ForeignCatalogue {
    PaintList Paints;
    std::vector<std::string> Faults;
};
/// `set` is the paint set of rows that name none. Throws FormatError when the columns give no name
/// or no color.
[[nodiscard]] ForeignCatalogue ReadForeignCatalogue(const CsvTable& table,
                                                    const CatalogueColumns& columns,
                                                    const std::string& set,
                                                    const std::filesystem::path& file);

/// Writes "Data/catalogues/<name>.csv", which joins the catalogue at the next start, and answers
/// its place. Throws Error when there is one of that name already or nothing to write, FileError.
std::filesystem::path AddCatalogue(const ProgramFolder& folder, std::string_view name,
                                   const PaintList& paints);

}  // namespace vendrel
