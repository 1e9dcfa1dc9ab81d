#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "output/output_id.h"
#include "output/result_files.h"
#include "support/program_folder.h"

namespace vendrel {

struct Output;

/// Where the files of a kit stand, and where they wait until all of them are written: in a hidden
/// folder of the kit beside each, so that taking their places is a renaming.
class KitPaths {
  public:
    /// Keeps a reference to the folder, and looks once which files are there in what letters.
    KitPaths(const ProgramFolder& folder, KitName kit);

    [[nodiscard]] const KitName& Kit() const { return kit_; }
    [[nodiscard]] const ProgramFolder& Folder() const { return folder_; }
    [[nodiscard]] const std::filesystem::path& File(const Output& output) const;
    [[nodiscard]] std::filesystem::path Waiting(const Output& output) const;
    /// "Results/<photo> <difficulty> Kit.json".
    [[nodiscard]] const std::filesystem::path& List() const { return list_; }
    [[nodiscard]] std::filesystem::path WaitingList() const;
    /// The waiting folder in Results, which is also what the writer of a kit holds.
    [[nodiscard]] std::filesystem::path WaitingFolder() const;

  private:
    [[nodiscard]] std::filesystem::path WaitingBeside(const std::filesystem::path& file) const;

    const ProgramFolder& folder_;
    KitName kit_;
    std::map<OutputId, std::filesystem::path> files_;
    std::filesystem::path list_;
};

/// What the names of waiting folders begin with; the kit's name follows.
inline constexpr std::string_view kWaitingStart = ".waiting ";

}  // namespace vendrel
