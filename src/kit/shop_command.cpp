#include <nlohmann/json.hpp>

#include "kit/kit_keeping.h"
#include "kit/printable.h"
#include "kit/shelf_commands.h"
#include "kit/shelf_desk.h"
#include "shelf/painted.h"
#include "support/decimals.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

using Json = nlohmann::ordered_json;

std::string LineOf(const ShoppingItem& item) {
    std::string line = "  " + item.Paint.PaintName;
    line += item.Paint.PaintCode.empty() ? "" : " [" + item.Paint.PaintCode + "]";
    line += ", buy " + Decimals(item.BuyMl, 1) + " ml";
    if (item.Pots > 0) {
        line += ", pots " + std::to_string(item.Pots);
    }
    if (item.LeftMl > 0) {
        line += " (" + Decimals(item.LeftMl, 1) + " ml left)";
    }
    return line;
}

Json JsonOf(const ShoppingItem& item) {
    return {{"set", item.Paint.Mfg},
            {"name", item.Paint.PaintName},
            {"code", item.Paint.PaintCode},
            {"color", HexOf(item.Paint)},
            {"kits", item.Kits},
            {"owned", item.IsOwned},
            {"amountUnknown", item.IsUnknown},
            {"neededMl", item.NeededMl},
            {"leftMl", item.LeftMl},
            {"buyMl", item.BuyMl},
            {"pots", item.Pots}};
}

void PrintList(const std::vector<ShoppingItem>& items, std::ostream& out) {
    std::string set;
    int toBuy = 0;
    double ml = 0;
    for (const ShoppingItem& item : items) {
        if (item.BuyMl <= 0) {
            continue;
        }
        if (toBuy++ == 0 || set != item.Paint.Mfg) {
            set = item.Paint.Mfg;
            out << Printable(set) << '\n';
        }
        ml += item.BuyMl;
        out << Printable(LineOf(item)) << '\n';
    }
    out << (toBuy == 0 ? "There is nothing to buy.\n"
                       : std::to_string(toBuy) + " paints, " + Decimals(ml, 1) +
                             " ml with 15 % to spare\n");
}

void Shop(ShelfDesk& desk, const ShopOptions& options, std::ostream& out) {
    std::vector<KitNeeds> kits;
    for (const std::string& kit : options.Kits) {
        kits.push_back(desk.NeedsOf(kit));
    }
    const std::vector<ShoppingItem> items = ListShopping(desk.Owned(), kits);
    if (!options.Csv.empty()) {
        WriteWholeFile(options.Csv, ShoppingCsv(items));
    }
    if (!options.Pdf.empty()) {
        desk.Fonts().WriteShopping({items, kits}, options.Pdf);
    }
    if (!options.Json) {
        PrintList(items, out);
        return;
    }
    Json json = Json::array();
    for (const ShoppingItem& item : items) {
        json.push_back(JsonOf(item));
    }
    out << json.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

void Report(const std::string& kit, int paints, const char* what, std::ostream& out) {
    out << Printable(kit) << ": " << what << ' ' << paints << (paints == 1 ? " paint" : " paints")
        << '\n';
}

void Painted(ShelfDesk& desk, const std::string& kit, std::ostream& out) {
    const KitNeeds needs = desk.NeedsOf(kit);
    std::vector<UsedPaint> used;
    for (const PaintNeed& need : needs.Needs) {
        used.push_back({IdOf(needs.Paints[need.Paint]), need.Ml});
    }
    int paints = 0;
    desk.Change([&](Shelf& shelf) { paints = TakePainted(shelf, needs.Title, used); });
    Report(needs.Title, paints, "taken off", out);
}

void Undo(ShelfDesk& desk, const std::string& kit, std::ostream& out) {
    const std::string title = ReadKitFile(FindKit(desk.Folder(), kit)).Title;
    int paints = 0;
    desk.Change([&](Shelf& shelf) { paints = UndoPainted(shelf, title); });
    Report(title, paints, "given back to", out);
}

}  // namespace

void RunShop(const ShopOptions& options, const Surroundings& around) {
    ShelfDesk desk(options.Folder, around);
    if (!options.Painted && !options.Undo) {
        Shop(desk, options, around.Out);
        return;
    }
    for (const std::string& kit : options.Kits) {
        if (options.Painted) {
            Painted(desk, kit, around.Out);
        } else {
            Undo(desk, kit, around.Out);
        }
    }
}

}  // namespace vendrel
