#pragma once

#include <filesystem>
#include <string>

#include "output/result_files.h"
#include "support/program_folder.h"

namespace vendrel {

struct Output;

/// Where the files of a kit stand, and where they wait until all of them are written: in a hidden
/// folder of the kit beside each, so that taking their places is a renaming.
class KitPaths {
  public:
    /// Keeps a reference to the folder.
    KitPaths(const ProgramFolder& folder, KitName kit) : folder_(folder), kit_(std::move(kit)) {}

    [[nodiscard]] const KitName& Kit() const { return kit_; }
    [[nodiscard]] const ProgramFolder& Folder() const { return folder_; }
    [[nodiscard]] std::filesystem::path File(const Output& output) const;
    [[nodiscard]] std::filesystem::path Waiting(const Output& output) const;
    /// "Results/<photo> <difficulty> Kit.json".
    [[nodiscard]] std::filesystem::path List() const;
    [[nodiscard]] std::filesystem::path WaitingList() const;
    /// The waiting folder in Results, which is also what the writer of a kit holds.
    [[nodiscard]] std::filesystem::path WaitingFolder() const;

  private:
    [[nodiscard]] std::filesystem::path WaitingBeside(const std::filesystem::path& file) const;

    const ProgramFolder& folder_;
    KitName kit_;
};

/// What the names of waiting folders begin with; the kit's name follows.
inline constexpr std::string_view kWaitingStart = ".waiting ";

}  // namespace vendrel
