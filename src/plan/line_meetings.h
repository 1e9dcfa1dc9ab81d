#pragma once

#include <utility>
#include <vector>

#include "plan/line_index.h"

namespace vendrel {

/// The chains, two at a time, that have more in common than the junctions at their ends; a chain
/// with itself where it crosses or touches itself. Points are taken to stand on 64ths of a pixel,
/// which makes the answer exact. Some are named several times.
[[nodiscard]] std::vector<std::pair<int, int>> FindMeetings(const PlanLines& lines,
                                                            const LineIndex& index);

}  // namespace vendrel
