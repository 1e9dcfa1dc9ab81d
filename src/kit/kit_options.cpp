#include "kit/kit_options.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "kit/option_kinds.h"
#include "kit/print_options.h"

namespace vendrel {
namespace {

constexpr auto kLevels = [] {
    std::array<Choice<Difficulty>, kDifficulties.size()> levels{};
    std::ranges::transform(kDifficulties, levels.begin(), [](const DifficultyTraits& traits) {
        return Choice<Difficulty>{traits.Option, traits.Level};
    });
    return levels;
}();
constexpr auto kPaintCounts =
    std::to_array<Choice<int>>({{"16", 16}, {"32", 32}, {"40", 40}, {"50", 50}});
constexpr auto kSampleMethods =
    std::to_array<Choice<Sampling>>({{"average", Sampling::Average}, {"pixel", Sampling::Pixel}});
constexpr auto kMatchings =
    std::to_array<Choice<Matching>>({{"plain", Matching::Plain}, {"eye", Matching::ByEye}});
constexpr auto kFits = std::to_array<Choice<PhotoFit>>({{"keep", PhotoFit::Keep},
                                                        {"crop", PhotoFit::Crop},
                                                        {"top", PhotoFit::CropTop},
                                                        {"stretch", PhotoFit::Stretch}});
constexpr auto kCropParts =
    std::to_array<Choice<PhotoFit>>({{"center", PhotoFit::Crop}, {"top", PhotoFit::CropTop}});

// Some spell it so.
std::string_view American(std::string_view part) {
    return part == "centre" ? "center" : part;
}

[[nodiscard]] int ToInt(std::string_view text) {
    int number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failure == std::errc{} && end == text.data() + text.size() ? number : 0;
}

ScreenSize ToScreen(const std::string& option, std::string_view value) {
    constexpr int kLargest = 32767;
    const auto cross = std::min(value.find('x'), value.size());
    const int width = ToInt(value.substr(0, cross));
    const int height = cross < value.size() ? ToInt(value.substr(cross + 1)) : 0;
    if (std::min(width, height) < 1 || std::max(width, height) > kLargest) {
        RefuseValue(option, value, "WIDTHxHEIGHT in pixels, as in 1920x1080");
    }
    return ScreenSize::FromPixels(width, height);
}

constexpr Measure kWorths{"", 0, kLargestWorth, "a number from 0 to 20, as in 0.05"};
constexpr Measure kPaintsToBuy{"", 0, kMostToBuy, "a whole number from 0 to 50"};

// What is owned goes first, matched by eye.
template <typename Number>
void AddBuying(CLI::App& app, const OptionText& text, const Measure& measure, KitOptions& kit,
               Number& target) {
    AddValue(app, text,
             [&kit, &target, measure](const std::string& option, const std::string& value) {
                 target = static_cast<Number>(ToNumber(option, value, measure));
                 kit.Chosen.Buying.Asked = true;
                 kit.BuyingNamed = true;
                 kit.MatchByEye = true;
             });
}

void AddOwnedOptions(CLI::App& app, KitOptions& kit) {
    AddSwitch(app, {"--owned", "", "allows your own paints alone (see \"vendrel paints\")"},
              kit.OwnedOnly);
    AddBuying(
        app,
        {"--owned-first", "X",
         "allows them too, and others only where they lower the\nmean seen difference by more "
         "than X (0.05), by eye"},
        kWorths, kit, kit.Chosen.Buying.Worth);
    AddBuying(app, {"--buy-at-most", "N", "the same with at most N paints to buy"}, kPaintsToBuy,
              kit, kit.Chosen.Buying.MostToBuy);
}

void AddPaintOptions(CLI::App& app, KitOptions& kit) {
    AddText(app, {"--folder", "DIR", "works in DIR instead of the folder it is started in"},
            kit.Folder);
    AddChoice(app, {"--difficulty", "LEVEL", "easy (default), medium or difficult"}, kLevels,
              kit.Chosen.Level);
    AddChoice(app, {"--final-paints", "N", "16, 32, 40 or 50 (default) paints at most"},
              kPaintCounts, kit.Chosen.FinalPaints);
    AddChoice(app, {"--sample", "METHOD", "average (default) or pixel"}, kSampleMethods,
              kit.Chosen.Sample);
    AddValue(app, {"--sets", "NAME", "allows this paint set; may be repeated"},
             [&kit](const std::string&, const std::string& set) { kit.Sets.push_back(set); });
    AddText(app, {"--template", "NAME", "allows the paints of templates/NAME.csv"}, kit.Template);
    AddOwnedOptions(app, kit);
}

void AddPictureOptions(CLI::App& app, KitOptions& kit) {
    AddValue(app,
             {"--screen", "WIDTHxHEIGHT", "sizes the picture for this screen (default 1920x1080)"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Screen = ToScreen(option, value);
             });
    AddChoice(app,
              {"--fit", "WAY",
               "a photo that does not fit the sheet can keep (default)\n"
               "its shape, lose what is too much (crop round the center,\n"
               "or keep its top) or stretch"},
              kFits, kit.Chosen.Fit);
    AddValue(app,
             {"--crop", "[PART]",
              "another word for --fit crop; keeps the center (default)\n"
              "or the top"},
             [](const std::string&, const std::string&) {});  // always replaced by --fit
}

// An option that makes kits paintable; its value is a number that goes to `target`.
template <typename Number>
void AddLimit(CLI::App& app, const OptionText& text, const Measure& measure, KitOptions& kit,
              Number& target) {
    AddValue(app, text,
             [&kit, &target, measure](const std::string& option, const std::string& value) {
                 kit.Chosen.Paintable = true;
                 target = static_cast<Number>(ToNumber(option, value, measure));
             });
}

void AddPaintableOptions(CLI::App& app, KitOptions& kit) {
    app.add_flag_callback(
           "--paintable",
           [&kit] {
               kit.Chosen.Paintable = true;
               kit.MatchByEye = true;
           },
           "makes kits that a brush can paint: matched by eye, no\narea below the limits; the four "
           "options below and\n--canvas change what that means")
        ->disable_flag_override();
    AddValue(app, {"--match", "WAY", "matches paints plain (default) or by eye"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Match = Chosen(option, value, kMatchings);
             });
    AddLimit(app, {"--smallest", "MM2", "no area below this (25 square millimeters)"},
             {"mm2", 0, 10000, "square millimeters from 0 to 10000, as in 25"}, kit,
             kit.Chosen.Limits.SmallestMm2);
    AddLimit(app, {"--narrowest", "MM", "a disc this wide fits into every area (2 millimeters)"},
             {"mm", 0, 100, "millimeters from 0 to 100, as in 2"}, kit,
             kit.Chosen.Limits.NarrowestMm);
    AddLimit(app,
             {"--detail", "N",
              "0 to 100 (50): the more, the more small areas grow\n"
              "instead of joining a neighbor"},
             {"", 0, kMostDetail, "a whole number from 0 to 100"}, kit, kit.Chosen.Detail);
}

void AddRunOptions(CLI::App& app, KitOptions& kit) {
    AddSwitch(app,
              {"--save-kit", "", "keeps the kit as a file in Kits, to be opened or made again"},
              kit.SaveKit);
    AddText(app, {"--like", "KIT", "takes the settings of a kit file where nothing else is said"},
            kit.Like);
    AddText(app, {"--photo", "FILE", "is the photo of a kit file, where it is not in Pictures"},
            kit.KitPhoto);
    AddSwitch(app, {"--from-grid", "", "takes the saved grid instead of converting the photo"},
              kit.FromGrid);
    AddSwitch(app, {"--replace-grid", "", "writes over a saved grid that differs"},
              kit.ReplaceGrid);
    AddSwitch(app, {"--figures", "", "compares the painting with the photo"}, kit.Figures);
    AddSwitch(app, {"--json", "", "prints one JSON object per photo"}, kit.Json);
    app.add_flag_callback(
           "--no-compare", [&kit] { kit.Compared = false; },
           "leaves the comparison with the photo out of it")
        ->disable_flag_override();
    AddSwitch(app, {"--needs", "", "adds to it what every paint is needed for"}, kit.Needs);
    AddValue(app, {"--jobs", "N", "makes so many kits side by side (1)"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Jobs = static_cast<int>(
                     ToNumber(option, value, {"", 1, 256, "a whole number from 1 to 256"}));
             });
    AddSwitch(app, {"--quiet", "", "prints nothing but errors"}, kit.Quiet);
}

}  // namespace

void AddKitOptions(CLI::App& app, KitOptions& kit) {
    AddPaintOptions(app, kit);
    AddPictureOptions(app, kit);
    AddPaintableOptions(app, kit);
    AddPrintOptions(app, kit);
    AddRunOptions(app, kit);
    app.add_option("PHOTO", kit.Photos);
}

std::string CropWord(std::string_view word, std::span<const std::string_view>& rest) {
    std::string_view part = word.substr(std::min(word.size(), word.find('=') + 1));
    if (word == "--crop") {
        part = kCropParts.front().Word;
        if (!rest.empty() && FindChoice(kCropParts, American(rest.front())) != nullptr) {
            part = rest.front();
            rest = rest.subspan(1);
        }
    }
    const PhotoFit fit = Chosen("--crop", American(part), kCropParts);
    return "--fit=" + std::string(std::ranges::find(kFits, fit, &Choice<PhotoFit>::Meaning)->Word);
}

}  // namespace vendrel
