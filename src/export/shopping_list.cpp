#include "export/shopping_list.h"

#include <string>
#include <string_view>
#include <vector>

#include "export/print_symbols.h"
#include "plan/paint_needs.h"
#include "shell/symbol_of.h"
#include "support/decimals.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

// Its byte order mark tells a spreadsheet the encoding.
constexpr const char* kHead =
    "\xEF\xBB\xBF"
    "symbol,set,name,code,color,cm2,ml,pots,pages\r\n";

std::string Field(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) {
        return text;
    }
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    }
    return quoted + "\"";
}

std::string HexOf(Color color) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string hex = "#";
    for (const int part : {RedOf(color), GreenOf(color), BlueOf(color)}) {
        hex += kDigits[static_cast<std::size_t>(part / 16)];
        hex += kDigits[static_cast<std::size_t>(part % 16)];
    }
    return hex;
}

std::string Joined(const std::vector<std::string>& words) {
    std::string all;
    for (const std::string& word : words) {
        all += (all.empty() ? "" : " ") + word;
    }
    return all;
}

std::string Figures(const PaintNeed& need, const PaintUse& use) {
    return Decimals(need.Cm2, 1) + "," + Decimals(need.Ml, 1) + "," +
           (use.PotMl > 0 ? std::to_string(need.Pots) : "");
}

}  // namespace

void WriteShoppingList(PlannedKit& kit, const Target& target) {
    const WorkState& state = kit.Place().State;
    const PlanSettings& settings = kit.Settings();
    const PrintSymbols symbols(kit.Marks());
    const PlanSketch& sketch = kit.Sketch();
    const PlanSheets sheets = LayOutSheets(sketch, settings);
    const std::vector<PaintNeed> needs =
        PaintNeeds({sketch.Regions, sketch.Paints, sheets.Pages, sheets.Scale}, state.PaintCount,
                   settings.Use);
    std::string text = kHead;
    for (const PaintNeed& need : needs) {
        const PaintColor& paint = state.PaintColors[need.Paint];
        text += Field(symbols.NameOf(SymbolOf(state.PaintColors, need.Paint))) + "," +
                Field(paint.Mfg) + "," + Field(paint.PaintName) + "," + Field(paint.PaintCode) +
                "," + HexOf(ColorOf(paint)) + "," + Figures(need, settings.Use) + "," +
                Joined(need.Pages) + "\r\n";
    }
    text += "sum,,,,," + Figures(SumOf(needs), settings.Use) + ",\r\n";
    WriteWholeFile(target, text);
}

}  // namespace vendrel
