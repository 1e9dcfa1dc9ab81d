#pragma once

#include <string>
#include <vector>

#include "plan/paint_needs.h"
#include "shelf/shelf.h"
#include "shell/records.h"

namespace vendrel {

/// What one kit needs of its paints: see PlannedKit::Needs.
struct KitNeeds {
    std::string Title;
    PaintList Paints;
    std::vector<PaintNeed> Needs;
    PaintUse Use;
};

/// A paint of some kits.
struct ShoppingItem {
    PaintColor Paint;
    std::vector<std::string> Kits{};
    double NeededMl = 0;  // by all of them, nothing to spare
    bool IsOwned = false;
    double LeftMl = 0;       // on the shelf
    bool IsUnknown = false;  // owned, and nobody measured how much: taken for enough
    double BuyMl = 0;        // with what is to spare; 0: nothing to buy
    int Pots = 0;            // to buy, 0 when their size is not known
};

/// All paints of some kits together less what is on the shelf, grouped by set in the order that the
/// kits have them. Pots are of the largest size that a kit names.
[[nodiscard]] std::vector<ShoppingItem> ListShopping(const Shelf& shelf,
                                                     const std::vector<KitNeeds>& kits);

/// The paints to buy as a table for spreadsheets, as the list of a kit's paints is.
[[nodiscard]] std::string ShoppingCsv(const std::vector<ShoppingItem>& items);

/// "#C08060"
[[nodiscard]] std::string HexOf(const PaintColor& paint);

}  // namespace vendrel
