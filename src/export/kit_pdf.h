#pragma once

#include "plan/planned_kit.h"
#include "support/target.h"

namespace vendrel {

/// Saves the whole kit for a printer: cover, color chart, page map and the plan, drawn in lines at
/// its real size. The same kit gives the same bytes. Throws Error and FileError. Needs a running
/// QGuiApplication.
void WriteKitPdf(PlannedKit& planned, const Target& target);

}  // namespace vendrel
