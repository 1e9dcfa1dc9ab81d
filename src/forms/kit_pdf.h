#pragma once

#include "plan/exporter.h"
#include "shell/workplace.h"

namespace vendrel {

/// How large the kit is printed, and on what.
class KitPdfForm {
  public:
    KitPdfForm(Workplace& place, const Exporter& exporter) : place_(place), exporter_(exporter) {}

    void Paper_Click(Paper paper) { settings_.Sheet = paper; }
    /// Width of the canvas in centimetres; 0 to fill the pages that legible symbols need.
    void Canvas_Change(double centimetres) { settings_.CanvasCm = centimetres; }
    /// Writes the PDF, closes, and offers to open its folder.
    void SaveButton_Click();
    void CancelButton_Click();

    [[nodiscard]] const PlanSettings& Settings() const { return settings_; }

  private:
    Workplace& place_;
    const Exporter& exporter_;
    PlanSettings settings_;
};

}  // namespace vendrel
