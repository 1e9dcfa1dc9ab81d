#include "shelf/labels.h"

#include <algorithm>
#include <array>

#include "support/error.h"

namespace vendrel {
namespace {

constexpr std::size_t kLongestLabel = 3;

// Characters that are taken for one another in small print, in a hand's writing, or with the pot
// upside down.
constexpr auto kAlike = std::to_array<std::string_view>(
    {"0O", "0Q", "0D", "OQ", "OD", "QD", "1I", "5S", "8B", "83", "2Z", "6G",
     "CG", "UV", "VY", "PR", "69", "MW", "HN", "EF", "68", "56", "GO"});
// Of each such pair one, in the order that a painter sorts pots in. No 3: behind one letter it is
// taken for a 2 in small print.
constexpr std::string_view kLetters = "ACEHJKLMPTUX";
constexpr std::string_view kDigits = "247";

bool AreAlike(char one, char other) {
    return one == other || std::ranges::any_of(kAlike, [=](std::string_view pair) {
               return (pair[0] == one && pair[1] == other) || (pair[0] == other && pair[1] == one);
           });
}

bool IsFree(std::string_view label, std::span<const std::string> taken) {
    return std::ranges::none_of(
        taken, [label](const std::string& other) { return AreLabelsAlike(label, other); });
}

// A label of one character, of a letter and a digit, and so on.
std::string FirstFree(std::string_view start, std::span<const std::string_view> rest,
                      std::span<const std::string> taken) {
    if (rest.empty()) {
        return IsFree(start, taken) ? std::string(start) : std::string();
    }
    for (const char c : rest.front()) {
        std::string label = FirstFree(std::string(start) + c, rest.subspan(1), taken);
        if (!label.empty()) {
            return label;
        }
    }
    return {};
}

}  // namespace

std::string LabelOf(std::string_view text) {
    std::string label;
    for (const char c : text) {
        const bool small = c >= 'a' && c <= 'z';
        const bool fits = small || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        if (!fits || label.size() == kLongestLabel) {
            return {};
        }
        label += small ? static_cast<char>(c - 'a' + 'A') : c;
    }
    return label;
}

bool AreLabelsAlike(std::string_view one, std::string_view other) {
    return one.size() == other.size() && std::ranges::equal(one, other, AreAlike);
}

std::string NextFreeLabel(std::span<const std::string> taken) {
    constexpr auto kForms = std::to_array<std::array<std::string_view, kLongestLabel>>(
        {{kLetters, "", ""},
         {kDigits, "", ""},
         {kLetters, kDigits, ""},
         {kLetters, kLetters, ""},
         {kLetters, kLetters, kDigits},
         {kLetters, kLetters, kLetters}});
    for (const auto& form : kForms) {
        const auto end = std::ranges::find(form, std::string_view());
        std::string label = FirstFree("", std::span(form.begin(), end), taken);
        if (!label.empty()) {
            return label;
        }
    }
    throw Error("No label is left for another paint. Give some paints labels by hand.");
}

std::string RequireFreeLabel(std::string_view text, std::span<const std::string> taken) {
    std::string label = LabelOf(text);
    if (label.empty()) {
        throw Error("\"" + std::string(text) +
                    "\" cannot be a label. Choose one to three letters or digits.");
    }
    for (const std::string& other : taken) {
        if (label == other) {
            throw Error("The label " + label + " is another paint's. Choose another.");
        }
        if (AreLabelsAlike(label, other)) {
            throw Error("The label " + label + " looks too much like " + other +
                        " of another paint. Choose another.");
        }
    }
    return label;
}

std::vector<std::string> NextFreeLabels(std::vector<std::string> taken, int count) {
    const auto before = static_cast<std::ptrdiff_t>(taken.size());
    for (int i = 0; i < count; ++i) {
        taken.push_back(NextFreeLabel(taken));
    }
    taken.erase(taken.begin(), taken.begin() + before);
    return taken;
}

}  // namespace vendrel
