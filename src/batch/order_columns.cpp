#include "batch/order_columns.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "support/csv_table.h"
#include "support/error.h"
#include "support/letter_case.h"
#include "support/placeholders.h"

namespace vendrel {
namespace {

struct Heading {
    std::string_view Name;
    ColumnKind Kind;
    std::string_view Option;
};

constexpr auto kHeadings = std::to_array<Heading>({
    {"order", ColumnKind::Id, ""},
    {"photo", ColumnKind::Photo, ""},
    {"title", ColumnKind::Words, "--title"},
    {"canvas", ColumnKind::Words, "--canvas"},
    {"difficulty", ColumnKind::Words, "--difficulty"},
    {"final paints", ColumnKind::Words, "--final-paints"},
    {"sample", ColumnKind::Words, "--sample"},
    {"set", ColumnKind::Names, "--sets"},
    {"sets", ColumnKind::Names, "--sets"},
    {"template", ColumnKind::Words, "--template"},
    {"match", ColumnKind::Words, "--match"},
    {"fit", ColumnKind::Words, "--fit"},
    {"paintable", ColumnKind::Switch, "--paintable"},
    {"smallest", ColumnKind::Words, "--smallest"},
    {"smallest spot", ColumnKind::Words, "--smallest"},
    {"narrowest", ColumnKind::Words, "--narrowest"},
    {"detail", ColumnKind::Words, "--detail"},
    {"symbols", ColumnKind::Words, "--symbols"},
    {"lines", ColumnKind::Words, "--lines"},
    {"outputs", ColumnKind::Words, "--outputs"},
    {"paper", ColumnKind::Words, "--paper"},
    {"bleed", ColumnKind::Words, "--bleed"},
    {"pot", ColumnKind::Words, "--pot"},
    {"maker", ColumnKind::Words, "--maker"},
    {"address", ColumnKind::Words, "--address"},
    {"accent", ColumnKind::Words, "--accent"},
    {"logo", ColumnKind::File, "--logo"},
    {"leaflet", ColumnKind::File, "--leaflet"},
});

bool IsYes(std::string_view field) {
    constexpr auto kYes = std::to_array<std::string_view>({"yes", "y", "x", "1", "true"});
    constexpr auto kNo = std::to_array<std::string_view>({"no", "n", "0", "false"});
    const std::string word = ToLower(field);
    if (std::ranges::find(kNo, word) != kNo.end()) {
        return false;
    }
    if (std::ranges::find(kYes, word) == kYes.end()) {
        throw UsageError("\"" + std::string(field) + "\" is neither yes nor no.");
    }
    return true;
}

std::vector<std::string> WordsOfNames(const std::string& option, std::string_view field) {
    std::vector<std::string> words;
    while (!field.empty()) {
        const std::size_t end = std::min(field.find_first_of("|\n"), field.size());
        if (const std::string_view name = Trimmed(field.substr(0, end)); !name.empty()) {
            words.push_back(option + "=" + std::string(name));
        }
        field.remove_prefix(std::min(end + 1, field.size()));
    }
    return words;
}

}  // namespace

OrderColumn ColumnOf(std::string_view heading) {
    const auto found = std::ranges::find(kHeadings, PlaceholderName(heading), &Heading::Name);
    return found == kHeadings.end() ? OrderColumn{}
                                    : OrderColumn{found->Kind, std::string(found->Option)};
}

std::vector<std::string> WordsOfField(const OrderColumn& column, std::string_view field) {
    if (field.empty()) {
        return {};
    }
    switch (column.Kind) {
        case ColumnKind::Words:
        case ColumnKind::File:
            return {column.Option + "=" + std::string(field)};
        case ColumnKind::Names:
            return WordsOfNames(column.Option, field);
        case ColumnKind::Switch:
            return IsYes(field) ? std::vector{column.Option} : std::vector<std::string>();
        default:
            return {};
    }
}

std::vector<std::string> WithoutOption(const std::vector<std::string>& words,
                                       std::string_view option) {
    std::vector<std::string> kept;
    std::ranges::copy_if(words, std::back_inserter(kept), [option](const std::string& word) {
        return word.substr(0, word.find('=')) != option;
    });
    return kept;
}

}  // namespace vendrel
