#include "kit/size_options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "kit/option_kinds.h"

namespace vendrel {
namespace {

struct LengthUnit {
    std::string_view Word;
    double Mm;
};
constexpr auto kUnits =
    std::to_array<LengthUnit>({{"mm", 1}, {"cm", 10}, {"in", kMmPerInch}, {"\"", kMmPerInch}});

// One or two lengths, in millimetres.
struct Lengths {
    double First = 0;
    double Second = 0;  // 0: there is one alone
    bool Inches = false;
};

std::optional<double> LengthOf(std::string_view text) {
    double number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = failure == std::errc() && end == text.data() + text.size();
    return whole && number > 0 ? std::optional(number) : std::nullopt;
}

// With the unit behind the last of them.
std::optional<Lengths> LengthsOf(std::string_view text, double unitMm) {
    Lengths lengths;
    for (const LengthUnit& unit : kUnits) {
        if (text.ends_with(unit.Word)) {
            text.remove_suffix(unit.Word.size());
            unitMm = unit.Mm;
            break;
        }
    }
    lengths.Inches = unitMm == kMmPerInch;
    const std::size_t by = text.find_first_of("xX");
    const bool both = by != std::string_view::npos;
    const auto first = LengthOf(text.substr(0, by));
    const auto second = both ? LengthOf(text.substr(by + 1)) : std::optional(0.0);
    if (!first || !second) {
        return std::nullopt;
    }
    lengths.First = *first * unitMm;
    lengths.Second = *second * unitMm;
    return lengths;
}

bool IsWithin(const Lengths& lengths, double least, double most) {
    const double second = lengths.Second > 0 ? lengths.Second : lengths.First;
    return std::min(lengths.First, second) >= least && std::max(lengths.First, second) <= most;
}

}  // namespace

CanvasOption ToCanvas(const std::string& option, std::string_view value) {
    if (value == "auto") {
        return {};
    }
    const std::optional<Lengths> lengths = LengthsOf(value, 10);
    if (!lengths || !IsWithin(*lengths, kSmallestCanvasCm * 10, kLargestCanvasCm * 10)) {
        RefuseValue(option, value,
                    "a width from 10cm to 300cm, both sides as in 40x50cm or 16x20in, or auto");
    }
    CanvasOption canvas{lengths->First / 10, {}, lengths->Inches};
    if (lengths->Second > 0) {
        canvas = {0, {lengths->First, lengths->Second}, lengths->Inches};
    }
    return canvas;
}

Paper ToPaper(const std::string& option, std::string_view value) {
    for (const NamedPaper& paper : kNamedPapers) {
        if (SameIgnoringCase(paper.Name, value)) {
            return paper.Meaning;
        }
    }
    const std::optional<Lengths> lengths = LengthsOf(value, 1);
    if (!lengths || lengths->Second <= 0 ||
        !IsWithin(*lengths, kSmallestPaperMm, kLargestPaperMm)) {
        RefuseValue(option, value,
                    PaperWords() + ", or a size from 140x140mm to 2000x2000mm, as in 250x400mm");
    }
    return PaperOf({lengths->First, lengths->Second}, lengths->Inches);
}

double ToBleedMm(const std::string& option, std::string_view value) {
    const std::optional<Lengths> lengths = value == "0" ? Lengths{} : LengthsOf(value, 1);
    if (!lengths || lengths->Second > 0 || lengths->First > kWidestBleedMm) {
        RefuseValue(option, value, "a width up to 100mm, as in 20mm");
    }
    return lengths->First;
}

std::string PaperWords() {
    std::string words;
    for (const NamedPaper& paper : kNamedPapers) {
        words += (words.empty() ? "" : ", ") + std::string(paper.Name);
    }
    return words;
}

}  // namespace vendrel
