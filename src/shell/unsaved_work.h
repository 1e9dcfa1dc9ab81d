#pragma once

#include <memory>

#include "support/held_file.h"

namespace vendrel {

/// What of the painter's own work a crash or another photo would lose.
struct UnsavedWork {
    bool HasUnsavedWork = false;               // touched up and accepted, but in no saved grid yet
    std::shared_ptr<const HeldFile> Recovery;  // keeps unsaved work, while this program has any
};

}  // namespace vendrel
