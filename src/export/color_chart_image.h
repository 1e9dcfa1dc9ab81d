#pragma once

#include "shell/work_state.h"
#include "support/print_scale.h"
#include "support/target.h"

namespace vendrel {

/// 300 dots per inch.
inline constexpr PrintScale kChartScale = PrintScale::PerMeter(11811);

/// Saves the color chart as a picture of one printed page, with the symbols as the sheet shows
/// them. The same grid gives the same bytes. Needs a running QGuiApplication.
void WriteColorChart(const WorkState& state, const Target& target);

}  // namespace vendrel
