#pragma once

#include <string>
#include <vector>

#include "shell/records.h"

namespace vendrel {

/// What the paint shop keeps while it is closed: which paints the palette is restored from.
struct PaintChoice {
    bool PaintShopLoaded = false;
    bool MfgSelected = true;  // paint sets rather than a template
    std::vector<std::string> SelectedPaintsList;
    bool TemplateMode = false;
    bool TemplateLoaded = false;
    std::string SelectedTemplate;
    std::string LastTemplate;
    PaintList OwnedPaints;  // that go before others, see OwnedFirst
    int SwatchSize = 0;     // pixels
};

}  // namespace vendrel
