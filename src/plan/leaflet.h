#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "plan/shop_face.h"
#include "support/placeholders.h"

namespace vendrel {

enum class LeafletKind { Heading, Text, Item };

/// A heading, a paragraph or an entry of a list, with its placeholders filled in.
struct LeafletPart {
    LeafletKind Kind = LeafletKind::Text;
    std::string Text{};

    bool operator==(const LeafletPart&) const = default;
};

/// What every kit has for a leaflet, beside the shop's own fields.
struct LeafletFacts {
    std::string Order{};
    std::string Title{};
    std::string Difficulty{};
    std::string Paints{};
    std::string Canvas{};
    std::string Hours{};
    std::string Maker{};
};

/// The facts and the fields by their names; a field goes before a fact of its name.
[[nodiscard]] Placeholders LeafletValues(const LeafletFacts& facts, const ShopFace& shop);

/// Takes a text apart: "# " begins a heading, "- " an entry, empty lines part paragraphs. Throws
/// FormatError with the line of a placeholder that is not known.
[[nodiscard]] std::vector<LeafletPart> ParseLeaflet(std::string_view text,
                                                    const std::filesystem::path& file,
                                                    const Placeholders& values);

/// The shop's leaflet for a kit; nothing without one. Throws FileError for one that cannot be read
/// or is no leaflet's size, FormatError.
[[nodiscard]] std::vector<LeafletPart> ReadLeaflet(const ShopFace& shop, const LeafletFacts& facts);

}  // namespace vendrel
