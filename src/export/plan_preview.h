#pragma once

#include "plan/plan_sketch.h"
#include "shell/workplace.h"
#include "support/surface.h"

namespace vendrel {

/// The first page of the plan, so many pixels at its longer side. Throws as WriteKitPdf.
[[nodiscard]] Surface PreviewPlan(const Workplace& place, const PlanSettings& settings,
                                  int longest);

}  // namespace vendrel
