#pragma once

#include "plan/planned_kit.h"
#include "support/target.h"

namespace vendrel {

/// Writes the paints of the kit as a table for spreadsheets (CSV in UTF-8, numbers with a decimal
/// point, the sums in the last row), whole or not at all; they are those of the printed pages with
/// the same settings. Throws Error, FileError.
void WriteShoppingList(PlannedKit& kit, const Target& target);

}  // namespace vendrel
