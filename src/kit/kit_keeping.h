#pragma once

#include <filesystem>
#include <string>

#include "kit/arguments.h"
#include "kit/kit_photos.h"
#include "kit/kit_report.h"
#include "shell/kit_edits.h"
#include "shell/workplace.h"
#include "support/program_folder.h"

namespace vendrel {

/// The kit file a painter means: a path, or the name of one in Kits. Throws FileError when there is
/// none.
[[nodiscard]] std::filesystem::path FindKit(const ProgramFolder& folder, const std::string& word);

/// Whether the options ask for another grid than the kit has that they were read over.
[[nodiscard]] bool ChangesGrid(const KitOptions& options);

/// Throws Error when what is to be made of a kit file needs a title and has none.
void RequireOwnTitle(const KitOptions& options);

/// Whether a kit file is to be written: when asked for, and for what becomes another kit.
[[nodiscard]] bool KeepsKit(const KitOptions& options);

/// Writes the kit's file, unless it is there with the same kit. Throws Error rather than write over
/// another kit, its file or its pictures.
void KeepKit(const Workplace& place, const KitOptions& options, const TakenPhoto& taken,
             KitReport& report);

}  // namespace vendrel
