#pragma once

#include <optional>

#include "plan/exporter.h"
#include "shell/workplace.h"

namespace vendrel {

/// What is chosen for a printed plan, and what it makes of the painting. Stays until the program
/// ends.
class PlanChoice {
  public:
    /// Measures the painting. Throws Error when it cannot be printed.
    void Measure(const Workplace& place, const Exporter& exporter);
    /// Of a kit that was not painted yet: whether it can be printed is seen when it is measured.
    void Restore(const PlanSettings& settings);
    /// Throws Error for what cannot be printed, and keeps what was chosen before.
    /// The labels of the shelf come with SymbolStyle::Mine.
    void Choose(const PlanSettings& chosen);

    [[nodiscard]] const PlanSettings& Settings() const { return settings_; }
    /// Of the settings; nothing before the painting is measured.
    [[nodiscard]] const std::optional<PlanFigures>& Figures() const { return figures_; }
    /// The widest canvas that can be chosen, in centimeters.
    [[nodiscard]] double WidestCm();
    /// The first page of the plan, so many pixels at its longer side; from then on the figures tell
    /// of the symbols too. Empty before the painting is measured. Throws Error, FileError for the
    /// logo.
    [[nodiscard]] Surface Preview(int longest);

  private:
    void TakeLabels(PlanSettings& settings) const;

    const Exporter* exporter_ = nullptr;
    const ProgramFolder* folder_ = nullptr;
    PlanSettings settings_;
    std::optional<PlannedKit> kit_;
    std::optional<PlanFigures> figures_;
};

}  // namespace vendrel
