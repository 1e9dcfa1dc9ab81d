#pragma once

#include <string>
#include <vector>

#include "plan/paint_marks.h"
#include "plan/paint_needs.h"
#include "plan/paper.h"
#include "shelf/shelf.h"
#include "shell/records.h"

namespace vendrel {

/// What one kit needs of its paints: see PlannedKit::Needs.
struct KitNeeds {
    std::string Title;
    PaintList Paints;
    std::vector<PaintNeed> Needs;
    PaintUse Use;
    PaintMarks Marks{};   // on its pages
    bool Inches = false;  // who paints it reads inches
};

/// A paint in one of some kits.
struct PaintInKit {
    int Kit = 0;    // from 0
    int Paint = 0;  // of its palette
};

/// A paint of some kits.
struct ShoppingItem {
    PaintColor Paint;
    std::vector<std::string> Kits{};
    std::vector<PaintInKit> In{};
    double NeededMl = 0;  // by all of them, nothing to spare
    bool IsOwned = false;
    std::string Label{};     // of its pot; empty: it has none
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

/// What a page to take along to the shop is drawn from.
struct ShoppingPage {
    const std::vector<ShoppingItem>& Items;  // those with nothing to buy are left out
    const std::vector<KitNeeds>& Kits;

    /// A sheet that whoever paints them has at home.
    [[nodiscard]] SizeMm Sheet() const;
};

/// Of a list, what is to be bought.
struct ShoppingSum {
    int Paints = 0;
    double Ml = 0;
    int Pots = 0;
};
[[nodiscard]] ShoppingSum SumOf(const std::vector<ShoppingItem>& items);

/// "#C08060"
[[nodiscard]] std::string HexOf(const PaintColor& paint);

}  // namespace vendrel
