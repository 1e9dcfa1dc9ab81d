#include "export/shopping_list.h"

#include <string>
#include <string_view>
#include <vector>

#include "export/print_symbols.h"
#include "plan/paint_needs.h"
#include "plan/shopping.h"
#include "shell/symbol_of.h"
#include "support/csv_table.h"
#include "support/decimals.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

// Its byte order mark tells a spreadsheet the encoding.
constexpr const char* kHead =
    "\xEF\xBB\xBF"
    "symbol,set,name,code,color,cm2,ml,pots,pages\r\n";

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
    const std::vector<PaintNeed> needs = kit.Needs();
    std::string text = kHead;
    for (const PaintNeed& need : needs) {
        const PaintColor& paint = state.PaintColors[need.Paint];
        text += CsvField(symbols.NameOf(SymbolOf(state.PaintColors, need.Paint))) + "," +
                CsvField(paint.Mfg) + "," + CsvField(paint.PaintName) + "," +
                CsvField(paint.PaintCode) + "," + HexOf(paint) + "," + Figures(need, settings.Use) +
                "," + Joined(need.Pages) + "\r\n";
    }
    text += "sum,,,,," + Figures(SumOf(needs), settings.Use) + ",\r\n";
    WriteWholeFile(target, text);
}

}  // namespace vendrel
