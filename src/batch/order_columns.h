#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vendrel {

/// What a column of an order list means.
enum class ColumnKind {
    Id,
    Photo,
    Words,   // the value of a setting of `vendrel kit`
    File,    // the same, of a file beside the list
    Names,   // several of them between | or line ends
    Switch,  // yes or no
    Text     // the shop's own
};

struct OrderColumn {
    ColumnKind Kind = ColumnKind::Text;
    std::string Option{};  // as in --canvas
};

/// By its heading, whatever the case of letters and whether - or a blank stands between words.
[[nodiscard]] OrderColumn ColumnOf(std::string_view heading);

/// The settings that a field stands for; empty for an empty one. Throws UsageError for a switch
/// that is neither yes nor no.
[[nodiscard]] std::vector<std::string> WordsOfField(const OrderColumn& column,
                                                    std::string_view field);

/// Settings, a word each, without all that sets one option: "--sets=A", "--paintable".
[[nodiscard]] std::vector<std::string> WithoutOption(const std::vector<std::string>& words,
                                                     std::string_view option);

}  // namespace vendrel
