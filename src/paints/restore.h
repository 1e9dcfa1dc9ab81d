#pragma once

#include "shell/menu.h"
#include "shell/workplace.h"

namespace vendrel {

/// The number of final paints for a palette of `n`: as many as the menu asks for (0 with nothing
/// checked), but never more than there are.
[[nodiscard]] int SetMaxFinalColors(const Settings& chosen, int n);

/// Rebuilds the palette from the paint shop's choice: the selected paint sets or the selected
/// template, and what is owned where that goes first. Throws when the template cannot be read.
void RestorePaintColors(Workplace& place);

}  // namespace vendrel
