#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "forms/kit_desk.h"
#include "plan/exporter.h"
#include "plan/shopping.h"
#include "shelf/shelf.h"
#include "shell/workplace.h"

namespace vendrel {

/// A kit that paints are bought for.
struct ShoppedKit {
    std::filesystem::path File;  // empty for one that is in no file yet
    KitNeeds Needs;
    bool Counts = true;    // what it needs is on the list; a painted kit needs nothing more
    bool Painted = false;  // what it used was taken off the shelf, and can be given back

    [[nodiscard]] double NeededMl() const;
};

/// What several kits together ask to be bought, less what is on the shelf.
class ShoppingForm {
  public:
    /// `fonts` and the plan's settings decide how much paint the kit at hand asks for; `desk` knows
    /// its file.
    ShoppingForm(Workplace& place, const Exporter& fonts, const KitDesk& desk, PlanSettings plan)
        : place_(place), fonts_(fonts), desk_(desk), plan_(std::move(plan)) {}

    /// The kit at hand is listed where there is one. Throws FileError and FormatError for the
    /// shelf.
    void Form_Load();
    /// Kits that cannot be read are named, and the others listed; one that is there stays as it is.
    void AddKits_Click(const std::vector<std::filesystem::path>& files);
    /// Kits are counted from 0.
    void RemoveKits_Click(const std::vector<int>& kits);
    void Count_Click(int kit, bool counts);
    /// The paints with nothing to buy, too.
    void ShowAll_Click(bool all);
    /// How much paint a pot holds; 0: pots are not counted.
    void Pot_Change(double ml);
    /// Takes what a kit used off the shelf, in its file. Throws FileError, FormatError.
    void Painted_Click(int kit);
    /// Gives it back. Throws Error when nothing of that kit is noted.
    void UndoPainted_Click(int kit);
    /// Throw FileError, and Error for a list of nothing.
    void SaveTable_Click(const std::filesystem::path& file) const;
    void SavePage_Click(const std::filesystem::path& file) const;
    void Done_Click();

    [[nodiscard]] const std::vector<ShoppedKit>& Kits() const { return kits_; }
    /// By set; their PaintInKit::Kit counts the kits of Counted().
    [[nodiscard]] const std::vector<ShoppingItem>& Rows() const { return rows_; }
    [[nodiscard]] const std::vector<KitNeeds>& Counted() const { return counted_; }
    [[nodiscard]] double PotMl() const { return potMl_; }
    [[nodiscard]] bool ShowsAll() const { return all_; }
    /// "14 paints to buy, 83.4 ml and 15 pots with 15 % to spare. Of 8 more you have enough."
    [[nodiscard]] std::string Summary() const;
    /// What became of the last thing asked for; may be empty.
    [[nodiscard]] const std::string& Told() const { return told_; }

  private:
    void Add(std::filesystem::path file, KitNeeds needs);
    void List();
    void RequireSomething() const;

    Workplace& place_;
    const Exporter& fonts_;
    const KitDesk& desk_;
    PlanSettings plan_;
    Shelf shelf_;
    std::vector<ShoppedKit> kits_;
    std::vector<KitNeeds> counted_;
    std::vector<ShoppingItem> items_;
    std::vector<ShoppingItem> rows_;
    double potMl_ = 0;
    bool all_ = false;
    std::string told_;
};

}  // namespace vendrel
