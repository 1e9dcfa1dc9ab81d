#pragma once

#include "shell/workplace.h"

namespace vendrel {

// Fill the corner pixels that the round brush left black: with the paint of the two neighbours
// flanking the corner where they agree, else with the cell's own. A neighbour in the last column
// or the last row counts as absent.

void SmartClean8(const Workplace& place);
void SmartClean6(const Workplace& place);
void SmartClean4(const Workplace& place);

}  // namespace vendrel
