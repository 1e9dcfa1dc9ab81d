#pragma once

#include <span>
#include <vector>

#include "convert/seen_stipples.h"
#include "eye/palette_by_eye.h"
#include "shell/records.h"

namespace vendrel {

/// Stipples with the paints that suit the eye.
struct EyeMatch {
    PaintList Palette;
    std::vector<int> Paints;  // per stipple, from 1
    int Considered = 0;       // how many of the allowed paints are nearest to some stipple
    SeenStipples Seen;        // with that palette
};

/// Chooses at most `count` of the allowed paints for stipples of those colors, and gives each
/// stipple the one that differs least from it.
[[nodiscard]] EyeMatch MatchByEye(std::span<const Color> stipples, const PaintList& allowed,
                                  int count, const BuyTerms& terms = {});

}  // namespace vendrel
