#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "kitset/kit_paths.h"
#include "output/output_id.h"

namespace vendrel {

/// A file of a kit as it was written.
struct ListedFile {
    OutputId Output;
    std::string Sum;   // SHA-256, as sha256sum prints it
    std::string Mark;  // of the kit it was made of
};

/// What of a kit stands in Results, and what belongs together.
struct KitList {
    std::string Mark;  // of the kit written last
    std::vector<ListedFile> Files;

    [[nodiscard]] const ListedFile* Find(OutputId output) const;
};

/// The list as JSON, one file a line.
[[nodiscard]] std::string FormatKitList(const KitList& list, const KitPaths& paths);

/// Nothing when there is no such file or it holds no list; outputs that this version does not know
/// are left out.
[[nodiscard]] std::optional<KitList> ReadKitList(const std::filesystem::path& file);

}  // namespace vendrel
