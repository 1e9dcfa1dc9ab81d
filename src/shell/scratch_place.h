#pragma once

#include "shell/quiet_ui.h"
#include "shell/workplace.h"

namespace vendrel {

/// A copy of a workplace for trying something out: whatever a procedure does to it, the real work
/// state, pictures and menus stay as they are, and nobody sees it happen.
class ScratchPlace {
  public:
    explicit ScratchPlace(const Workplace& original)
        : State(*original.State),
          Frames(*original.Frames),
          MainMenu(*original.MainMenu),
          quiet_(original.Screen.Screen()),
          Place{State, Frames, MainMenu, quiet_, original.Folder} {}
    ScratchPlace(const ScratchPlace&) = delete;
    ScratchPlace& operator=(const ScratchPlace&) = delete;

    WorkState State;
    Surfaces Frames;
    Menu MainMenu;

  private:
    QuietUi quiet_;

  public:
    Workplace Place;
};

}  // namespace vendrel
