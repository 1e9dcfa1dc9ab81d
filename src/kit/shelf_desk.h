#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "kit/command_line.h"
#include "kit/terminal_ui.h"
#include "kitfile/kit_file.h"
#include "plan/shopping.h"
#include "shelf/shelf_file.h"
#include "shell/workplace.h"

namespace vendrel {

/// What the commands about paints work with: the catalogue and the shelf of a folder.
class ShelfDesk {
  public:
    /// Reads both. Warnings about them go to the standard error. Throws FileError, FormatError.
    ShelfDesk(const std::filesystem::path& folder, const Surroundings& around);

    [[nodiscard]] const ProgramFolder& Folder() const { return folder_; }
    [[nodiscard]] const PaintList& Catalogue() const { return state_.MasterColors; }
    /// With the catalogue's colors.
    [[nodiscard]] const Shelf& Owned() const { return shelf_; }
    /// As ChangeShelf.
    void Change(const std::function<void(Shelf&)>& change);

    /// What a kit file needs: a path, or the name of one in Kits. Throws Error.
    [[nodiscard]] KitNeeds NeedsOf(const std::string& kit);
    /// Throws Error in a build without fonts.
    [[nodiscard]] const Exporter& Fonts();

  private:
    const Surroundings& around_;
    ProgramFolder folder_;
    TerminalUi ui_;
    WorkState state_;
    Surfaces frames_;
    Menu menu_;
    Shelf shelf_;
    std::unique_ptr<Exporter> exporter_;
};

/// "Oils: Hansa Yellow [PY3]", without what a paint does not have.
[[nodiscard]] std::string TitleOf(const PaintColor& paint);
[[nodiscard]] std::string TitleOf(const ShelfPaint& paint);

}  // namespace vendrel
