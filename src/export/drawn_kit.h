#pragma once

#include "export/pdf_pages.h"

namespace vendrel {

/// A painted kit laid out for its pages.
class DrawnKit {
  public:
    /// Throws as MakePrintPlan, Error for a missing font, FileError for a logo that is no picture.
    DrawnKit(const Workplace& place, const PlanSettings& settings);
    DrawnKit(const DrawnKit&) = delete;
    DrawnKit& operator=(const DrawnKit&) = delete;

    [[nodiscard]] const KitPages& Pages() const { return pages_; }

  private:
    PrintSymbols symbols_;
    PrintPlan plan_;
    KitPages pages_;
};

}  // namespace vendrel
