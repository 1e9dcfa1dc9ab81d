#include "kit/shop_face_options.h"

#include <algorithm>

#include "kit/option_kinds.h"
#include "support/csv_table.h"
#include "support/placeholders.h"

namespace vendrel {
namespace {

bool HasControls(std::string_view text) {
    return std::ranges::any_of(
        text, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; });
}

std::string ToOrder(const std::string& option, const std::string& value) {
    if (value.size() > kLongestOrder || HasControls(value)) {
        RefuseValue(option, value, "a number of at most 100 letters, digits and signs");
    }
    return value;
}

// Lines end with a line's end, | or the two characters \n, as a shell leaves them.
std::vector<std::string> ToAddress(const std::string& option, const std::string& value) {
    std::vector<std::string> lines;
    std::string text = value;
    for (auto at = text.find("\\n"); at != text.npos; at = text.find("\\n", at)) {
        text.replace(at, 2, "\n");
    }
    for (const std::string& part : CLI::detail::split(text, '|')) {
        for (const std::string& line : CLI::detail::split(part, '\n')) {
            if (const std::string_view words = Trimmed(line); !words.empty()) {
                lines.emplace_back(words);
            }
        }
    }
    if (lines.empty() || lines.size() > kMostAddressLines ||
        std::ranges::any_of(lines, HasControls)) {
        RefuseValue(option, value, "one to six lines with | between them");
    }
    return lines;
}

Color ToAccent(const std::string& option, const std::string& value) {
    const std::optional<Color> color = ColorFromHex(value);
    if (!color) {
        RefuseValue(option, value, "a color as in #1F5FA8");
    }
    if (!ReadsOnWhite(*color)) {
        throw UsageError(option + " cannot be " + value +
                         ", which is hard to read on white paper; choose a darker color.");
    }
    return *color;
}

void TakeField(const std::string& option, const std::string& value, ShopFace& shop) {
    const std::size_t equals = std::min(value.find('='), value.size());
    const std::string name = PlaceholderName(value.substr(0, equals));
    if (name.empty() || equals == value.size() || name.find_first_of("{}") != name.npos) {
        RefuseValue(option, value, "NAME=VALUE, as in \"table=7\"");
    }
    shop.Fields[name] = value.substr(equals + 1);
}

}  // namespace

void AddShopFaceOptions(CLI::App& app, ShopFace& shop) {
    AddValue(
        app,
        {"--order", "NUMBER", "puts an order's number there, on its cover with a code to\nscan"},
        [&shop](const std::string& option, const std::string& value) {
            shop.Order = ToOrder(option, value);
        });
    AddValue(app, {"--address", "TEXT", "puts lines on the cover, with | between them"},
             [&shop](const std::string& option, const std::string& value) {
                 shop.Address = ToAddress(option, value);
             });
    AddValue(app, {"--accent", "COLOR", "draws headings and rules in a color, as in #1F5FA8"},
             [&shop](const std::string& option, const std::string& value) {
                 shop.Accent = ToAccent(option, value);
             });
    AddText(app,
            {"--leaflet", "FILE",
             "adds a text as pages of the pdf: \"# \" begins a heading,\n{order}, {title}, "
             "{difficulty}, {paints}, {canvas}, {hours}\nand {maker} are filled in"},
            shop.Leaflet);
    AddValue(app, {"--field", "NAME=VALUE", "fills in {NAME} of the leaflet; may be repeated"},
             [&shop](const std::string& option, const std::string& value) {
                 TakeField(option, value, shop);
             });
}

}  // namespace vendrel
