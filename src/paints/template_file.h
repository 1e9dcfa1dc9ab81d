#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/workplace.h"

namespace vendrel {

/// templates/<name>.csv under the program folder, existing or not.
[[nodiscard]] std::filesystem::path TemplatePath(const ProgramFolder& folder,
                                                 std::string_view name);

/// The paints of a template in file order. Throws FileError or FormatError.
[[nodiscard]] PaintList ReadTemplate(const std::filesystem::path& file);

/// Writes a template: the number of paints behind a blank, then a paint a line. Throws Error,
/// before anything is written, when a text holds a double quote, which the file could not give
/// back.
void WriteTemplate(const std::filesystem::path& file, const PaintList& paints);

/// Fills the palette from a template and lowers FinalColors to what the template has. False after
/// a message, with an empty palette, when the template has no paints. A template that cannot be
/// read throws and leaves the palette empty.
[[nodiscard]] bool LoadTemplateColors(Workplace& place, std::string_view name);

/// Names of the files in the templates folder without their last four characters (".csv"),
/// sorted; empty when there are none. Creates a missing folder.
[[nodiscard]] std::vector<std::string> ListTemplates(const ProgramFolder& folder);

}  // namespace vendrel
