#pragma once

#include <optional>

#include "plan/exporter.h"
#include "plan/plan_sketch.h"
#include "shell/workplace.h"

namespace vendrel {

/// Paper and canvas of a printed plan while they are chosen, and what they make of the painting.
class PlanChoice {
  public:
    /// Measures the painting. Throws Error when it cannot be printed.
    void Measure(const Workplace& place, const Exporter& exporter);
    void Paper_Click(Paper paper);
    /// Width of the canvas in centimeters; 0 to fill the pages that legible symbols need.
    void Canvas_Change(double centimeters);

    [[nodiscard]] const PlanSettings& Settings() const { return settings_; }
    /// Of the settings; nothing before the painting is measured.
    [[nodiscard]] const std::optional<PlanFigures>& Figures() const { return figures_; }
    /// The widest canvas that can be chosen, in centimeters.
    [[nodiscard]] double WidestCm() const;

  private:
    void Follow();

    PlanSettings settings_;
    std::optional<PlanSketch> sketch_;
    std::optional<PlanFigures> figures_;
};

}  // namespace vendrel
