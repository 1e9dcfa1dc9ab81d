#include "kitfile/kit_places.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "support/disk.h"
#include "support/leftovers.h"
#include "support/letter_case.h"

namespace vendrel {

namespace fs = std::filesystem;

fs::path KitPath(const ProgramFolder& folder, std::string_view title) {
    return folder.Path("Kits/" + std::string(title) + ".kit");
}

bool IsKitName(const fs::path& file) {
    return SameIgnoringCase(file.extension().string(), ".kit");
}

std::vector<fs::path> RecentKits(const ProgramFolder& folder, std::size_t most) {
    std::vector<std::pair<fs::file_time_type, fs::path>> kits;
    std::error_code unreadable;
    for (const auto& entry : EntriesOf(folder.Path("Kits"), unreadable)) {
        std::error_code failure;
        const auto time = entry.last_write_time(failure);
        if (!failure && IsKitName(entry.path()) &&
            !IsWaitingName(entry.path().filename().string()) && IsFile(entry.path())) {
            kits.emplace_back(time, entry.path());
        }
    }
    std::ranges::sort(kits, std::greater());
    kits.resize(std::min(kits.size(), most));
    std::vector<fs::path> files;
    for (auto& [time, file] : kits) {
        files.push_back(std::move(file));
    }
    return files;
}

fs::path FolderOfKit(const fs::path& kit) {
    const fs::path kits = FullPath(kit).parent_path();
    const bool belongs = SameIgnoringCase(kits.filename().string(), "Kits") &&
                         ProgramFolder(kits.parent_path()).Exists("Pictures");
    return belongs ? kits.parent_path() : fs::path();
}

}  // namespace vendrel
