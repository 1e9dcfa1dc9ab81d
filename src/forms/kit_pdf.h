#pragma once

#include "forms/plan_choice.h"

namespace vendrel {

/// How large the kit is printed, and on what.
class KitPdfForm {
  public:
    /// `plan` is chosen once for all windows that print.
    KitPdfForm(Workplace& place, const Exporter& exporter, PlanChoice& plan)
        : place_(place), exporter_(exporter), plan_(plan) {}

    /// Measures the painting. Throws Error when it cannot be printed.
    void Form_Load();
    /// Writes the PDF, closes, and offers to open its folder.
    void SaveButton_Click();
    void CancelButton_Click();

    [[nodiscard]] PlanChoice& Plan() { return plan_; }

  private:
    Workplace& place_;
    const Exporter& exporter_;
    PlanChoice& plan_;
};

}  // namespace vendrel
