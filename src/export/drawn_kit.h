#pragma once

#include "export/pdf_pages.h"
#include "plan/planned_kit.h"

namespace vendrel {

/// A painted kit laid out for its pages.
class DrawnKit {
  public:
    /// `kit` must outlive it. Throws as PlannedKit does, Error for a missing font, FileError for a
    /// logo that is no picture.
    explicit DrawnKit(PlannedKit& kit);
    DrawnKit(const DrawnKit&) = delete;
    DrawnKit& operator=(const DrawnKit&) = delete;

    [[nodiscard]] const KitPages& Pages() const { return pages_; }

  private:
    PaintMarks marks_;
    PrintSymbols symbols_;
    KitPages pages_;
};

}  // namespace vendrel
