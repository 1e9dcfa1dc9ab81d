#pragma once

#include "shell/records.h"
#include "support/grid.h"

namespace vendrel {

/// The numbers of the sheet made last, one per picture pixel.
struct SheetNumbers {
    int NumberWidth = 0;
    int NumberHeight = 0;
    Grid<NumberPixel> NumberGrid;
    Grid<NumberMark> NumberMarks;
};

}  // namespace vendrel
