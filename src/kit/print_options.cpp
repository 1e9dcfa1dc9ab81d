#include "kit/print_options.h"

#include <array>
#include <string>
#include <string_view>

#include "kit/option_kinds.h"
#include "kit/shop_face_options.h"
#include "kit/size_options.h"

namespace vendrel {
namespace {

constexpr auto kSymbolStyles =
    std::to_array<Choice<SymbolStyle>>({{"letters", SymbolStyle::Letters},
                                        {"clear", SymbolStyle::Clear},
                                        {"numbers", SymbolStyle::Numbers},
                                        {"signs", SymbolStyle::Signs},
                                        {"mine", SymbolStyle::Mine}});
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

void AddSizeOptions(CLI::App& app, KitOptions& kit) {
    AddValue(
        app,
        {"--paper", "SIZE",
         "prints the pdf on A5, A4 (default), A3, A2, A1, Letter,\nLegal, Tabloid, paper as in "
         "250x400mm, or in one piece\non the canvas"},
        [&kit](const std::string& option, const std::string& value) {
            kit.Plan.Sheet = ToPaper(option, value);
        });
    AddValue(app,
             {"--canvas", "SIZE",
              "makes the kit for a canvas this wide, as in 60cm or 16in,\nor with both sides as in "
              "40x50cm; with auto (default)\nlimits and figures hold for 40cm, and the pdf of a "
              "plain\nkit fills the pages that legible symbols need"},
             [&kit](const std::string& option, const std::string& value) {
                 const CanvasOption canvas = ToCanvas(option, value);
                 kit.CanvasNamed = true;
                 kit.Chosen.CanvasCm = canvas.WidthCm;
                 kit.Plan.Canvas = canvas.Size;
                 kit.Plan.InchCanvas = canvas.Inches;
             });
    AddValue(
        app,
        {"--bleed", "WIDTHmm",
         "carries the outlines on around a canvas printed in one\npiece, to wrap round a frame"},
        [&kit](const std::string& option, const std::string& value) {
            kit.Plan.BleedMm = ToBleedMm(option, value);
        });
}

void AddPlanOptions(CLI::App& app, KitOptions& kit) {
    AddValue(
        app,
        {"--symbols", "STYLE",
         "marks the paints on the plan with letters (default: the\nsheet's), clear ones of them, "
         "numbers, signs or mine: the\nlabels of your own paints"},
        [&kit](const std::string& option, const std::string& value) {
            kit.Plan.Symbols = Chosen(option, value, kSymbolStyles);
            kit.Plan.Labels.clear();  // those of today
        });
    AddChoice(app,
              {"--lines", "SHAPE",
               "draws the plan's borders smooth (default for paintable\nkits) or in steps (default "
               "for others)"},
              kLineShapes, kit.Plan.Lines);
    AddValue(
        app,
        {"--gray", "N",
         "10 to 100 (50): how dark the plan's lines and symbols\nare; paint covers light ones"},
        [&kit](const std::string& option, const std::string& value) {
            kit.Plan.Gray = static_cast<int>(ToNumber(option, value, kGrays));
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
    AddShopFaceOptions(app, kit.Plan.Shop);
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
    AddSizeOptions(app, kit);
    AddPlanOptions(app, kit);
    AddShopOptions(app, kit);
    AddText(app, {"--title", "NAME", "names the files in place of the photo's name"}, kit.Title);
}

}  // namespace vendrel
