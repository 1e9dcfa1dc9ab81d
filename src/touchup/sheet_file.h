#pragma once

#include <filesystem>

#include "storage/stipple_file.h"
#include "touchup/edit_sheet.h"

namespace vendrel {

/// Reads a stipple file into the sheet, whose paints and stipples are sized as they are; it takes
/// the sizes the file announces, and FinalColors. What does not fit ends the reading with a
/// FormatError and, as any broken line does, leaves everything read until then.
void ReadIntoSheet(StippleFileReader& reader, const std::filesystem::path& path, EditSheet& sheet);

/// Replaces `path` whole or not at all with FoundColors and EditStipples. Throws FileError.
void WriteSheet(const std::filesystem::path& path, const EditSheet& sheet, int finalColors);

}  // namespace vendrel
