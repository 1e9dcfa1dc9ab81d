#include "export/uncut_kit.h"

namespace vendrel {

UncutKit::UncutKit(const Workplace& place, const PlanSettings& settings)
    : Symbols(settings.Symbols, place.State->PaintCount),
      Plan(MakeUncutPlan(place.State, place.Frames->WorkFrame.Picture, settings,
                         Symbols.Aspects())) {}

}  // namespace vendrel
