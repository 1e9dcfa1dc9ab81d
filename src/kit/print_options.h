#pragma once

#include <CLI/CLI.hpp>

#include "kit/arguments.h"

namespace vendrel {

/// The options that say what is written of a kit and how it is printed.
void AddPrintOptions(CLI::App& app, KitOptions& kit);

}  // namespace vendrel
