#pragma once

#include "kit/arguments.h"
#include "shell/workplace.h"

namespace vendrel {

/// Brings a fresh workplace to where the settings of a window would be before the photo is
/// chosen. Sets and template hold for this run only: nothing is saved. Throws UsageError for a set
/// that the catalogue does not have, and Error for a template that cannot be used.
void ApplySettings(Workplace& place, const KitOptions& options);

}  // namespace vendrel
