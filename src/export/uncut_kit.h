#pragma once

#include "export/print_symbols.h"
#include "plan/plan_layout.h"
#include "shell/workplace.h"

namespace vendrel {

/// A painted kit laid out on a canvas in one piece, for drawings that have no pages.
struct UncutKit {
    /// Throws as MakeUncutPlan, and Error for a missing font.
    UncutKit(const Workplace& place, const PlanSettings& settings);

    PrintSymbols Symbols;
    PrintPlan Plan;
};

}  // namespace vendrel
