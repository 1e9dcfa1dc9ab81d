#pragma once

#include <filesystem>
#include <string_view>

#include "storage/stipple_file.h"
#include "touchup/edit_sheet.h"

namespace vendrel {

/// That a stipple file has all the stipples it announces and that the sheet has room for them and
/// for the paints. Throws FormatError with line and counts; nothing is touched.
void RequireFit(std::string_view text, const std::filesystem::path& path, const EditSheet& sheet);
/// Reads a stipple file that fits into the sheet; it takes the sizes the file announces, and
/// FinalColors. A broken line ends the reading with a FormatError and leaves everything read until
/// then.
void ReadIntoSheet(StippleFileReader& reader, EditSheet& sheet);

/// Replaces `path` whole or not at all with FoundColors and EditStipples, and with the edits that
/// made them where there are any. Throws FileError.
void WriteSheet(const std::filesystem::path& path, const EditSheet& sheet, int finalColors,
                const EditLayer* edits = nullptr);

}  // namespace vendrel
