#include "kit/print_options.h"

#include <array>
#include <string>
#include <string_view>

#include "kit/option_kinds.h"

namespace vendrel {
namespace {

constexpr auto kPapers =
    std::to_array<Choice<Paper>>({{"A4", Paper::A4}, {"Letter", Paper::Letter}, {"A3", Paper::A3}});
constexpr auto kSymbolStyles =
    std::to_array<Choice<SymbolStyle>>({{"letters", SymbolStyle::Letters},
                                        {"clear", SymbolStyle::Clear},
                                        {"numbers", SymbolStyle::Numbers},
                                        {"signs", SymbolStyle::Signs}});
constexpr auto kLineShapes =
    std::to_array<Choice<LineShape>>({{"smooth", LineShape::Smooth}, {"steps", LineShape::Steps}});

KitOutputs ToOutputs(const std::string& option, const std::string& value) {
    KitOutputs outputs{.Chosen = {}, .ByName = true};
    for (const std::string& name : CLI::detail::split(value, ',')) {
        const Output* const output = OutputNamed(ToLower(name));
        if (output == nullptr) {
            RefuseValue(option, name,
                        "from " + OutputWords(", ", IsOutput) + ", with commas between");
        }
        outputs.Chosen.Add(output->Id);
    }
    return outputs;
}

constexpr Measure kGrays{"", kLightestGray, kDarkestGray, "a whole number from 10 to 100"};

constexpr Measure kPots{"ml", 1, 10'000, "a size from 1ml to 10000ml, as in 20ml"};
constexpr Measure kCoats{"", 1, 10, "a number from 1 to 10"};
constexpr Measure kCoverage{"cm2", 1, 1000, "the square centimeters of one milliliter, 1 to 1000"};

// "60cm" or "60.5", within what can be painted; "auto" is 0.
double ToCanvasCm(const std::string& option, std::string_view value) {
    constexpr Measure kWidth{"cm", kSmallestCanvasCm, kLargestCanvasCm,
                             "a width from 10cm to 300cm, or auto"};
    return value == "auto" ? 0 : ToNumber(option, value, kWidth);
}

void AddPlanOptions(CLI::App& app, KitOptions& kit) {
    AddChoice(app, {"--paper", "SIZE", "prints the pdf on A4 (default), Letter or A3"}, kPapers,
              kit.Plan.Sheet);
    AddChoice(app,
              {"--symbols", "STYLE",
               "marks the paints in the pdf with the sheet's letters\n"
               "(default), the clearest of them, numbers or signs"},
              kSymbolStyles, kit.Plan.Symbols);
    AddChoice(app,
              {"--lines", "SHAPE",
               "draws the pdf's borders smooth (default for paintable\nkits) or in steps (default "
               "for others)"},
              kLineShapes, kit.Plan.Lines);
    AddValue(app,
             {"--gray", "N",
              "10 to 100 (50): how dark the pdf's lines and symbols\nare; paint covers light ones"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Plan.Gray = static_cast<int>(ToNumber(option, value, kGrays));
             });
    AddValue(app,
             {"--canvas", "WIDTHcm",
              "makes the kit for a canvas this wide, as in 60cm; with\n"
              "auto (default) limits and figures hold for 40cm, and\nthe pdf of a plain kit "
              "fills the pages that legible\nsymbols need"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Chosen.CanvasCm = ToCanvasCm(option, value);
             });
}

void AddShopOptions(CLI::App& app, KitOptions& kit) {
    AddValue(
        app,
        {"--pot", "SIZEml", "counts the pots of this size to buy, as in 20ml, with\n15 % to spare"},
        [&kit](const std::string& option, const std::string& value) {
            kit.Plan.Use.PotMl = ToNumber(option, value, kPots);
        });
    AddValue(app, {"--coats", "N", "coats of paint to reckon with (2)"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Plan.Use.Coats = static_cast<int>(ToNumber(option, value, kCoats));
             });
    AddValue(app, {"--coverage", "CM2", "what 1 ml covers in one coat (60cm2)"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Plan.Use.Cm2PerMl = ToNumber(option, value, kCoverage);
             });
    AddSwitch(app, {"--group-by-set", "", "groups the paints of the pdf's chart by their sets"},
              kit.Plan.GroupBySet);
    AddText(app, {"--maker", "TEXT", "puts your name or address on the pdf's pages"},
            kit.Plan.Maker);
    AddText(app, {"--logo", "FILE", "puts a picture there too"}, kit.Plan.Logo);
}

}  // namespace

void AddPrintOptions(CLI::App& app, KitOptions& kit) {
    AddValue(app,
             {"--outputs", "LIST",
              "of " + OutputWords(",", IsOutput) + "\n(" + OutputWords(",", IsByDefault) +
                  " unless given)"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Outputs = ToOutputs(option, value);
             });
    AddPlanOptions(app, kit);
    AddShopOptions(app, kit);
    AddText(app, {"--title", "NAME", "names the files in place of the photo's name"}, kit.Title);
}

}  // namespace vendrel
