#pragma once

#include <optional>

#include "plan/plan_figures.h"
#include "shell/workplace.h"

namespace vendrel {

class Exporter;

/// The plan of a painting as its printing asks for it: every step is made when it is first needed
/// and kept for whatever is drawn next. The painting must not change meanwhile. Everything that
/// makes something throws as SketchPlan and LayOutSheets do, and Error for a missing font.
class PlannedKit {
  public:
    /// `fonts` measure the symbols; both must outlive it.
    PlannedKit(const Workplace& place, const Exporter& fonts, PlanSettings settings);

    /// Chooses anew; what still holds is kept.
    void Choose(const PlanSettings& wanted);

    [[nodiscard]] const Workplace& Place() const { return place_; }
    [[nodiscard]] const PlanSettings& Settings() const { return settings_; }
    /// What marks the paints.
    [[nodiscard]] PaintMarks Marks() const;
    [[nodiscard]] const PlanSketch& Sketch();
    [[nodiscard]] const PrintPlan& OnPages();
    /// The same for drawings without pages.
    [[nodiscard]] const PrintPlan& InOnePiece();
    /// What the paints are needed for, by the pages that would be printed.
    [[nodiscard]] std::vector<PaintNeed> Needs();
    /// With the symbols as they are printed.
    [[nodiscard]] PlanFigures Figures();
    /// The same, without the symbols unless the plan is laid out already.
    [[nodiscard]] PlanFigures FiguresSoFar();

  private:
    const Workplace& place_;
    const Exporter& fonts_;
    PlanSettings settings_;
    std::optional<PlanSketch> sketch_;
    std::optional<PrintPlan> onPages_;
    std::optional<PrintPlan> inOnePiece_;
};

}  // namespace vendrel
