#pragma once

#include <filesystem>

#include "shell/work_state.h"
#include "storage/stipple_file.h"

namespace vendrel {

/// Reads a stipple file into FoundColors and EditStipples as they are sized, with the file's own
/// CellsAcross, CellsDown and FinalColors. What does not fit ends the reading with a FormatError
/// and, as any broken line does, leaves everything read until then.
void ReadIntoSheet(StippleFileReader& reader, const std::filesystem::path& path, WorkState& state);

/// Replaces `path` whole or not at all with FoundColors and EditStipples. Throws FileError.
void WriteSheet(const std::filesystem::path& path, const WorkState& state);

}  // namespace vendrel
