#include "plan/shopping.h"

#include <algorithm>

#include "shell/paint_id.h"
#include "support/csv_table.h"
#include "support/decimals.h"
#include "support/list.h"

namespace vendrel {
namespace {

ShoppingItem& ItemOf(std::vector<ShoppingItem>& items, const PaintColor& paint) {
    const auto found = std::ranges::find_if(
        items, [&paint](const ShoppingItem& item) { return SamePaint(item.Paint, paint); });
    if (found != items.end()) {
        return *found;
    }
    return items.emplace_back(ShoppingItem{.Paint = paint});
}

void LookOnShelf(const Shelf& shelf, double potMl, ShoppingItem& item) {
    constexpr double kNothing = 0.005;
    const ShelfPaint* const owned =
        IdOf(item.Paint).Named() ? FindOnShelf(shelf, IdOf(item.Paint)) : nullptr;
    item.Label = owned != nullptr ? owned->Label : "";
    if (owned != nullptr && owned->IsLeft()) {
        item.IsOwned = true;
        item.IsUnknown = !owned->MlLeft;
        item.LeftMl = owned->MlLeft.value_or(0);
    }
    const double wanted = item.NeededMl * (1 + kToSpare) - item.LeftMl;
    item.BuyMl = item.IsUnknown || wanted < kNothing ? 0 : wanted;
    item.Pots = PotsOf(item.BuyMl, potMl);
}

std::vector<ShoppingItem> BySet(std::vector<ShoppingItem> items) {
    std::vector<std::string> sets;
    for (const ShoppingItem& item : items) {
        if (std::ranges::find(sets, item.Paint.Mfg) == sets.end()) {
            sets.push_back(item.Paint.Mfg);
        }
    }
    std::ranges::stable_sort(items, {}, [&sets](const ShoppingItem& item) {
        return std::ranges::find(sets, item.Paint.Mfg) - sets.begin();
    });
    return items;
}

}  // namespace

std::vector<ShoppingItem> ListShopping(const Shelf& shelf, const std::vector<KitNeeds>& kits) {
    std::vector<ShoppingItem> items;
    double potMl = 0;
    for (int i = 0; i < std::ssize(kits); ++i) {
        const KitNeeds& kit = At(kits, i);
        potMl = std::max(potMl, kit.Use.PotMl);
        for (const PaintNeed& need : kit.Needs) {
            ShoppingItem& item = ItemOf(items, kit.Paints[need.Paint]);
            item.NeededMl += need.Ml;
            item.In.push_back({i, need.Paint});
            if (item.Kits.empty() || item.Kits.back() != kit.Title) {
                item.Kits.push_back(kit.Title);
            }
        }
    }
    for (ShoppingItem& item : items) {
        LookOnShelf(shelf, potMl, item);
    }
    return BySet(std::move(items));
}

std::string ShoppingCsv(const std::vector<ShoppingItem>& items) {
    std::string text =
        "\xEF\xBB\xBF"
        "set,name,code,color,needed ml,left ml,buy ml,pots,kits\r\n";
    for (const ShoppingItem& item : items) {
        if (item.BuyMl <= 0) {
            continue;
        }
        std::string kits;
        for (const std::string& kit : item.Kits) {
            kits += (kits.empty() ? "" : "; ") + kit;
        }
        text += CsvField(item.Paint.Mfg) + "," + CsvField(item.Paint.PaintName) + "," +
                CsvField(item.Paint.PaintCode) + "," + HexOf(item.Paint) + "," +
                Decimals(item.NeededMl, 1) + "," + Decimals(item.LeftMl, 1) + "," +
                Decimals(item.BuyMl, 1) + "," + (item.Pots > 0 ? std::to_string(item.Pots) : "") +
                "," + CsvField(kits) + "\r\n";
    }
    return text;
}

SizeMm ShoppingPage::Sheet() const {
    return !Kits.empty() && Kits.front().Inches ? Paper::Letter.Size : Paper::A4.Size;
}

ShoppingSum SumOf(const std::vector<ShoppingItem>& items) {
    ShoppingSum sum;
    for (const ShoppingItem& item : items) {
        sum.Paints += item.BuyMl > 0 ? 1 : 0;
        sum.Ml += item.BuyMl;
        sum.Pots += item.Pots;
    }
    return sum;
}

std::string HexOf(const PaintColor& paint) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string hex = "#";
    for (const int part : {paint.Red, paint.Green, paint.Blue}) {
        hex += kDigits[static_cast<std::size_t>(part / 16)];
        hex += kDigits[static_cast<std::size_t>(part % 16)];
    }
    return hex;
}

}  // namespace vendrel
