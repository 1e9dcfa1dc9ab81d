#pragma once

#include "shell/menu.h"
#include "shell/surfaces.h"
#include "shell/ui.h"
#include "shell/work_state.h"
#include "support/program_folder.h"

namespace vendrel {

/// The work state and its surroundings: what every procedure takes. References only; owns nothing.
struct Workplace {
    WorkState& State;
    Surfaces& Frames;
    Menu& MainMenu;
    Ui& Screen;
    const ProgramFolder& Folder;
};

}  // namespace vendrel
