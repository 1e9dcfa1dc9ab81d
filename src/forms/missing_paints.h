#pragma once

#include <string>
#include <vector>

#include "plan/exporter.h"
#include "plan/shopping.h"
#include "shelf/shelf.h"
#include "shell/workplace.h"

namespace vendrel {

/// An owned paint that may stand in for a missing one.
struct Substitute {
    PaintColor Paint;
    std::string Label;
    double Seen = 0;  // CIEDE2000 to the missing one
};

/// A paint of the kit that has to be bought.
struct MissingPaint {
    ShoppingItem Item;
    std::vector<Substitute> Nearest{};  // the nearest first
};

/// What the kit at hand lacks on the shelf, and what could stand in for it.
class MissingPaintsForm {
  public:
    static constexpr int kSubstitutes = 3;

    /// `fonts` and the plan's settings decide how much paint the pages ask for.
    MissingPaintsForm(Workplace& place, const Exporter& fonts, PlanSettings plan)
        : place_(place), fonts_(fonts), plan_(std::move(plan)) {}

    /// Throws Error while there is no grid, FileError and FormatError for the shelf.
    void Form_Load();
    /// Counts from 0.
    void Missing_Click(int missing);
    /// Takes a substitute of the chosen paint, counted from 0, in its place: an edit that stays
    /// over every conversion and can be taken back as a touch-up. A painted picture is painted
    /// again.
    void Use_Click(int substitute);
    /// Takes back the exchanges made here, the last one first.
    void Undo_Click();
    void Done_Click();

    [[nodiscard]] const std::vector<MissingPaint>& Missing() const { return missing_; }
    [[nodiscard]] int Chosen() const { return chosen_; }
    [[nodiscard]] bool CanUndo() const { return exchanges_ > 0; }
    [[nodiscard]] int PaintsOfKit() const { return place_.State->PaintCount; }
    /// The kit's stipples, a pixel each.
    [[nodiscard]] const Surface& Picture() const { return picture_; }

  private:
    void Measure();
    void PaintAgain(bool painted);

    Workplace& place_;
    const Exporter& fonts_;
    PlanSettings plan_;
    Shelf shelf_;
    std::vector<MissingPaint> missing_;
    int chosen_ = -1;
    int exchanges_ = 0;
    Surface picture_;
};

}  // namespace vendrel
