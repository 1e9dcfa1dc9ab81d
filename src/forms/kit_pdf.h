#pragma once

#include <optional>

#include "plan/exporter.h"
#include "plan/plan_sketch.h"
#include "shell/workplace.h"

namespace vendrel {

/// How large the kit is printed, and on what.
class KitPdfForm {
  public:
    KitPdfForm(Workplace& place, const Exporter& exporter) : place_(place), exporter_(exporter) {}

    /// Measures the painting. Throws Error when it cannot be printed.
    void Form_Load();
    void Paper_Click(Paper paper);
    /// Measures anew, as symbols are of different widths.
    void Symbols_Click(SymbolStyle style);
    /// Width of the canvas in centimetres; 0 to fill the pages that legible symbols need.
    void Canvas_Change(double centimetres);
    void Lines_Click(LineShape shape) { settings_.Lines = shape; }
    /// How dark lines and symbols are, kLightestGray to kDarkestGray.
    void Gray_Change(int gray) { settings_.Gray = gray; }
    /// Writes the PDF, closes, and offers to open its folder.
    void SaveButton_Click();
    void CancelButton_Click();

    [[nodiscard]] const PlanSettings& Settings() const { return settings_; }
    [[nodiscard]] bool HasSmoothLines() const {
        return vendrel::HasSmoothLines(settings_, place_.State);
    }
    /// Of the settings; nothing before the painting is measured.
    [[nodiscard]] const std::optional<PlanFigures>& Figures() const { return figures_; }
    /// The widest canvas that can be chosen, in centimeters.
    [[nodiscard]] double WidestCm() const;

  private:
    void Sketch();
    void Measure();

    Workplace& place_;
    const Exporter& exporter_;
    PlanSettings settings_;
    std::optional<PlanSketch> sketch_;
    std::optional<PlanFigures> figures_;
};

}  // namespace vendrel
