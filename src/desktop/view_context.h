#pragma once

#include "desktop/edge.h"
#include "forms/main_form.h"
#include "shell/workplace.h"

namespace vendrel {

/// What every view mirrors and starts its work through.
struct ViewContext {
    Workplace& Place;
    MainForm& Form;
    Edge& Works;
};

}  // namespace vendrel
