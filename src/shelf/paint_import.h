#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "shelf/shelf.h"

namespace vendrel {

/// How well a line of a list names a paint.
enum class ImportMatch {
    Exact,    // its code or name, and of one paint alone
    Near,     // misspelled, or of several paints
    Unknown,  // nothing like it
};

/// A line of a list and the paints that it may mean.
struct ImportProposal {
    int Line = 0;
    std::string Text;  // as it stands there
    ImportMatch Match = ImportMatch::Unknown;
    std::vector<int> Paints{};  // of the catalogue, the likeliest first; at most kImportChoices
    std::optional<double> MlLeft{};
    std::optional<int> Pots{};
};
inline constexpr std::size_t kImportChoices = 4;

/// Reads a list of paints: a table with a row that names its columns (name or code, and set, ml
/// left and pots if they are there), or plain text with a paint a line, by code or name, its set
/// before it or not. Every line is answered. Throws FormatError for a table that cannot be read.
[[nodiscard]] std::vector<ImportProposal> ProposeImport(std::string_view text,
                                                        const std::filesystem::path& file,
                                                        const PaintList& catalogue);

/// Puts what was confirmed of a proposal on the shelf: one of its paints, with the amounts of the
/// list where it has any.
void TakeProposal(Shelf& shelf, const PaintList& catalogue, const ImportProposal& proposal,
                  int paint);

}  // namespace vendrel
