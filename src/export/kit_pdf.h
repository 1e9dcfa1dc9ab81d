#pragma once

#include <filesystem>

#include "plan/plan_layout.h"
#include "shell/workplace.h"

namespace vendrel {

/// Saves the whole kit for a printer as "<photo> <difficulty> Kit.pdf": cover, color chart, page
/// map and the plan, drawn in lines at its real size. The same kit gives the same bytes. Throws
/// Error and FileError. Needs a running QGuiApplication.
std::filesystem::path WriteKitPdf(const Workplace& place, const PlanSettings& settings);

}  // namespace vendrel
