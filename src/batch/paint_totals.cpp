#include "batch/paint_totals.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "plan/shop_face.h"
#include "plan/shopping.h"
#include "shell/paint_id.h"
#include "support/csv_table.h"
#include "support/decimals.h"

namespace vendrel {
namespace {

using Json = nlohmann::ordered_json;

PaintColor PaintIn(const Json& need) {
    PaintColor paint;
    const Color color = ColorFromHex(need.value("color", "")).value_or(kBlack);
    paint.Red = RedOf(color);
    paint.Green = GreenOf(color);
    paint.Blue = BlueOf(color);
    paint.Mfg = need.value("set", "");
    paint.PaintName = need.value("name", "");
    paint.PaintCode = need.value("code", "");
    return paint;
}

// Nothing of an order that failed, or was made by a version that did not tell.
KitNeeds NeedsIn(const ManifestEntry& entry) {
    KitNeeds kit{.Title = entry.Order, .Paints = {}, .Needs = {}, .Use = {}};
    const Json figures = Json::parse(entry.Figures, nullptr, false);
    if (!entry.Done || !figures.is_object() || !figures.contains("needs")) {
        return kit;
    }
    kit.Use.PotMl = figures["needs"].value("potMl", 0.0);
    for (const Json& need : figures["needs"].value("paints", Json::array())) {
        kit.Paints.Add(PaintIn(need));
        kit.Needs.push_back({.Paint = kit.Paints.Count(),
                             .Cm2 = need.value("cm2", 0.0),
                             .Ml = need.value("ml", 0.0),
                             .Pots = 0,
                             .Pages = {}});
    }
    return kit;
}

double AreaOf(const PaintColor& paint, const std::vector<KitNeeds>& kits) {
    double cm2 = 0;
    for (const KitNeeds& kit : kits) {
        for (const PaintNeed& need : kit.Needs) {
            cm2 += SamePaint(kit.Paints[need.Paint], paint) ? need.Cm2 : 0;
        }
    }
    return cm2;
}

}  // namespace

std::vector<PaintTotal> TotalPaints(const std::vector<ReportedOrder>& orders, const Shelf& shelf) {
    std::vector<KitNeeds> kits;
    for (const ReportedOrder& order : orders) {
        kits.push_back(NeedsIn(*order.Became));
    }
    std::vector<PaintTotal> totals;
    for (const ShoppingItem& item : ListShopping(shelf, kits)) {
        totals.push_back({item.Paint.Mfg, item.Paint.PaintName, item.Paint.PaintCode,
                          HexOf(item.Paint), AreaOf(item.Paint, kits), item.NeededMl, item.LeftMl,
                          item.BuyMl, item.Pots, item.Kits});
    }
    return totals;
}

std::string FormatTotals(const std::vector<PaintTotal>& totals) {
    std::string text =
        "\xEF\xBB\xBF"
        "set,name,code,color,cm2,ml,left ml,buy ml,pots,orders\r\n";
    for (const PaintTotal& total : totals) {
        std::string orders;
        for (const std::string& order : total.Orders) {
            orders += (orders.empty() ? "" : "; ") + order;
        }
        text += CsvField(total.Set) + "," + CsvField(total.Name) + "," + CsvField(total.Code) +
                "," + total.Color + "," + Decimals(total.Cm2, 1) + "," + Decimals(total.Ml, 1) +
                "," + Decimals(total.LeftMl, 1) + "," + Decimals(total.BuyMl, 1) + "," +
                (total.Pots > 0 ? std::to_string(total.Pots) : "") + "," + CsvField(orders) +
                "\r\n";
    }
    return text;
}

}  // namespace vendrel
