#pragma once

#include "shell/menu.h"
#include "shell/part.h"
#include "shell/surfaces.h"
#include "shell/ui.h"
#include "shell/work_state.h"
#include "support/program_folder.h"

namespace vendrel {

/// The work state and its surroundings: what the steps of the workflow take. References only; owns
/// nothing. Through a `const Workplace&` all can be seen and the painter be told, but nothing be
/// changed.
struct Workplace {
    Part<WorkState> State;
    Part<Surfaces> Frames;
    Part<Menu> MainMenu;
    Ui& Screen;
    const ProgramFolder& Folder;
};

}  // namespace vendrel
