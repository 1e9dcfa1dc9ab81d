#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/paint_choice.h"
#include "shell/work_settings.h"
#include "support/program_folder.h"

namespace vendrel {

// The named templates of the templates folder. Names are compared without regard to the case of
// ASCII letters, since kits travel between systems.

/// Throws Error with a sentence unless `name` can become a new template: not empty, not there
/// already, without characters that cannot stand in a file name or would leave the folder.
void CheckNewTemplateName(const ProgramFolder& folder, std::string_view name);

/// `name`, or "name 2", "name 3" … : the first that is not taken.
[[nodiscard]] std::string FreeTemplateName(const ProgramFolder& folder, std::string_view name);

/// Characters that cannot stand in a template's name become blanks.
[[nodiscard]] std::string CleanTemplateName(std::string_view name);

/// Give a template another name; the paint shop's choice follows. Throws Error or FileError.
void RenameTemplate(PaintChoice& choice, const ProgramFolder& folder, std::string_view from,
                    std::string_view to);

/// Deletes a template's file; a paint shop that used it goes back to paint sets.
void DeleteTemplate(PaintChoice& choice, WorkSettings& settings, const ProgramFolder& folder,
                    std::string_view name);

}  // namespace vendrel
