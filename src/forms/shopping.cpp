#include "forms/shopping.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "forms/counted.h"
#include "forms/needs_of_kits.h"
#include "shelf/painted.h"
#include "shelf/shelf_file.h"
#include "shell/busy_pointer.h"
#include "support/decimals.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/list.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

bool IsNoted(const Shelf& shelf, const std::string& kit) {
    return std::ranges::any_of(shelf.Paints, [&kit](const ShelfPaint& paint) {
        return std::ranges::find(paint.Taken, kit, &TakenPaint::Kit) != paint.Taken.end();
    });
}

double MlOn(const Shelf& shelf) {
    double ml = 0;
    for (const ShelfPaint& paint : shelf.Paints) {
        ml += paint.MlLeft.value_or(0);
    }
    return ml;
}

std::vector<UsedPaint> UsedBy(const KitNeeds& kit) {
    std::vector<UsedPaint> used;
    for (const PaintNeed& need : kit.Needs) {
        used.push_back({IdOf(kit.Paints[need.Paint]), need.Ml});
    }
    return used;
}

std::string PaintsCounted(int count) {
    return Counted(count, "paint", "paints");
}

}  // namespace

double ShoppedKit::NeededMl() const {
    return vendrel::SumOf(Needs.Needs).Ml;
}

void ShoppingForm::Form_Load() {
    shelf_ = ReadShelf(place_.Folder);
    SeeInCatalogue(shelf_, place_.State->MasterColors);
    kits_.clear();
    told_.clear();
    // What was changed since it was saved counts as it is now.
    if (place_.MainMenu[MenuId::ColorPickerSelect].Enabled && place_.State->PictureLoaded) {
        const BusyPointer busy(place_.Screen);
        Add(desk_.File(), NeedsOfKitAtHand(place_, fonts_, plan_));
    }
    List();
}

void ShoppingForm::Add(std::filesystem::path file, KitNeeds needs) {
    potMl_ = potMl_ > 0 ? potMl_ : needs.Use.PotMl;
    const bool painted = IsNoted(shelf_, needs.Title);
    kits_.push_back({std::move(file), std::move(needs), !painted, painted});
}

void ShoppingForm::AddKits_Click(const std::vector<std::filesystem::path>& files) {
    const BusyPointer busy(place_.Screen);
    told_.clear();
    for (const std::filesystem::path& file : files) {
        const bool listed = std::ranges::any_of(kits_, [&file](const ShoppedKit& kit) {
            return !kit.File.empty() && FullPath(kit.File) == FullPath(file);
        });
        if (listed) {
            told_ = file.stem().string() + " is in the list already.";
            continue;
        }
        try {
            Add(file, NeedsOfKitFile(place_, fonts_, file));
        } catch (const Error& error) {
            // One that is at fault must not keep the others out.
            place_.Screen.ShowMessage("Shopping List", error.what());
        }
    }
    List();
}

void ShoppingForm::RemoveKits_Click(const std::vector<int>& kits) {
    std::vector<ShoppedKit> left;
    for (int kit = 0; kit < std::ssize(kits_); ++kit) {
        if (std::ranges::find(kits, kit) == kits.end()) {
            left.push_back(std::move(At(kits_, kit)));
        }
    }
    kits_ = std::move(left);
    told_.clear();
    List();
}

void ShoppingForm::Count_Click(int kit, bool counts) {
    if (Holds(kits_, kit)) {
        At(kits_, kit).Counts = counts;
        told_.clear();
        List();
    }
}

void ShoppingForm::ShowAll_Click(bool all) {
    all_ = all;
    List();
}

void ShoppingForm::Pot_Change(double ml) {
    potMl_ = ml;
    List();
}

void ShoppingForm::List() {
    counted_.clear();
    for (const ShoppedKit& kit : kits_) {
        if (kit.Counts) {
            counted_.push_back(kit.Needs);
            counted_.back().Use.PotMl = potMl_;
        }
    }
    items_ = ListShopping(shelf_, counted_);
    rows_ = items_;
    if (!all_) {
        std::erase_if(rows_, [](const ShoppingItem& item) { return item.BuyMl <= 0; });
    }
}

void ShoppingForm::Painted_Click(int kit) {
    if (!Holds(kits_, kit)) {
        return;
    }
    ShoppedKit& painted = At(kits_, kit);
    int paints = 0;
    double ml = 0;
    shelf_ = ChangeShelf(place_.Folder, [&](Shelf& shelf) {
        SeeInCatalogue(shelf, place_.State->MasterColors);
        ml = MlOn(shelf);
        paints = TakePainted(shelf, painted.Needs.Title, UsedBy(painted.Needs));
        ml -= MlOn(shelf);
    });
    painted.Counts = false;
    painted.Painted = IsNoted(shelf_, painted.Needs.Title);
    told_ =
        painted.Needs.Title + ": " +
        (paints == 0 ? "nothing to take off, for of none of its paints you noted the ml left."
                     : Decimals(ml, 1) + " ml taken off " + PaintsCounted(paints) + " of yours.");
    List();
}

void ShoppingForm::UndoPainted_Click(int kit) {
    if (!Holds(kits_, kit)) {
        return;
    }
    ShoppedKit& painted = At(kits_, kit);
    int paints = 0;
    shelf_ = ChangeShelf(place_.Folder, [&](Shelf& shelf) {
        SeeInCatalogue(shelf, place_.State->MasterColors);
        paints = UndoPainted(shelf, painted.Needs.Title);
    });
    painted.Counts = true;
    painted.Painted = IsNoted(shelf_, painted.Needs.Title);
    told_ = painted.Needs.Title + ": given back to " + PaintsCounted(paints) + " of yours.";
    List();
}

void ShoppingForm::RequireSomething() const {
    if (vendrel::SumOf(items_).Paints == 0) {
        throw Error("There is nothing to buy. Add kits, or tick those that are to count.");
    }
}

void ShoppingForm::SaveTable_Click(const std::filesystem::path& file) const {
    RequireSomething();
    WriteWholeFile(file, ShoppingCsv(items_));
}

void ShoppingForm::SavePage_Click(const std::filesystem::path& file) const {
    RequireSomething();
    fonts_.WriteShopping({items_, counted_}, file);
}

void ShoppingForm::Done_Click() {
    place_.Screen.CloseForm(FormId::Shopping);
}

std::string ShoppingForm::Summary() const {
    const ShoppingSum sum = vendrel::SumOf(items_);
    if (items_.empty()) {
        return kits_.empty() ? "Add the kits that you want to paint." : "No kit is ticked.";
    }
    const int enough = static_cast<int>(items_.size()) - sum.Paints;
    std::string text =
        sum.Paints == 0 ? "There is nothing to buy." : PaintsCounted(sum.Paints) + " to buy, ";
    if (sum.Paints > 0) {
        text += Decimals(sum.Ml, 1) + " ml";
        text += sum.Pots > 0 ? ", " + vendrel::Counted(sum.Pots, "pot", "pots") : "";
        text += " with 15 % to spare.";
    }
    return text + (enough > 0 ? " Of " + std::to_string(enough) + " more you have enough." : "");
}

}  // namespace vendrel
