#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/paintable_preview.h"

namespace vendrel {

/// Makes the kit in hand paintable: tries settings on a copy until accepted, and marks parts where
/// the limits are a third.
class MakePaintable {
  public:
    static constexpr double kMostSmallestMm2 = 400;
    static constexpr double kMostNarrowestMm = 20;
    static constexpr int kLargestBrush = 15;

    explicit MakePaintable(Workplace& place) : place_(place) {}

    /// Throws Error while there is no grid to make paintable.
    void Form_Load();

    // Each shows at once what it changes.
    void Match_Click(Matching match);
    void FinalPaints_Click(int finalPaints);
    void Smallest_Change(double mm2);
    void Narrowest_Change(double mm);
    void Detail_Change(int detail);
    void Canvas_Change(double centimeters);
    void Outlines_Click(bool only);

    // The protecting brush. Cells count from 0, those between two that it passes over belong to its
    // way; a stroke is undone as a whole.
    void Brush_Change(int stipples);
    void Stroke_Begin(bool protects);
    void Stroke_Over(CellPos cell);
    void Stroke_End();
    void Undo_Click();
    void Redo_Click();
    void ProtectNothing_Click();

    /// Puts what is shown into the kit and closes, after asking when touched-up work would go; a
    /// painted kit is painted anew.
    void OkButton_Click();
    void CancelButton_Click();

    [[nodiscard]] const Settings& Wish() const { return wish_; }
    [[nodiscard]] int Brush() const { return brush_; }
    [[nodiscard]] bool OutlinesOnly() const { return outlinesOnly_; }
    [[nodiscard]] bool CanUndo() const { return !undo_.empty(); }
    [[nodiscard]] bool CanRedo() const { return !redo_.empty(); }
    /// Per stipple from 0, other than 0 where it is protected.
    [[nodiscard]] const ValueGrid& Protected() const { return protected_; }
    [[nodiscard]] int StippleSize() const { return place_.State->StippleSize; }
    /// All of one size.
    [[nodiscard]] const Surface& Photo() const { return preview_->Photo(); }
    /// Painted, whether the kit in hand is or not.
    [[nodiscard]] const Surface& Before() const { return before_; }
    [[nodiscard]] const Surface& After() const { return after_; }
    /// The figures of what is shown, a line each.
    [[nodiscard]] std::vector<std::string> FigureLines() const;

  private:
    void Show();
    void Dab(CellPos cell);
    [[nodiscard]] Surface Outlines() const;

    Workplace& place_;
    Settings wish_;
    std::unique_ptr<PaintablePreview> preview_;
    int areasBefore_ = 0;
    Surface before_;
    Surface after_;
    ValueGrid protected_;
    ValueGrid strokeStart_;
    std::vector<ValueGrid> undo_;
    std::vector<ValueGrid> redo_;
    std::optional<CellPos> lastCell_;  // of the stroke
    int brush_ = 5;
    bool protects_ = true;
    bool stroking_ = false;
    bool outlinesOnly_ = false;
};

}  // namespace vendrel
