#include "shell/work_settings.h"

#include <algorithm>

#include "support/rounding.h"

namespace vendrel {
namespace {

const DifficultyTraits* TraitsOfSize(int size) {
    const auto* const traits =
        std::ranges::find(kDifficulties, size, &DifficultyTraits::StippleSize);
    return traits == kDifficulties.end() ? nullptr : traits;
}

}  // namespace

void SizeStipples(WorkSettings& settings, int size) {
    settings.StippleSize = size;
    settings.HalfStipple = RoundHalfEven(size / 2.0);
    SetStippleCheck(settings);
    if (const DifficultyTraits* const traits = TraitsOfSize(size)) {
        settings.Chosen.Level = traits->Level;
    }
}

void SetStippleCheck(WorkSettings& settings) {
    if (const DifficultyTraits* const traits = TraitsOfSize(settings.StippleSize)) {
        settings.StippleCheck = traits->StippleCheck;
    }
}

}  // namespace vendrel
