#pragma once

#include "shell/ui.h"

namespace vendrel {

/// The busy pointer as long as this lives, also when the work is broken off by an error.
class BusyPointer {
  public:
    explicit BusyPointer(Ui& ui) : ui_(ui) { ui_.SetPointer(Pointer::Busy); }
    ~BusyPointer() { ui_.SetPointer(Pointer::Normal); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

  private:
    Ui& ui_;
};

}  // namespace vendrel
