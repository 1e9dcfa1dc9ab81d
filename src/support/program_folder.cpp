#include "support/program_folder.h"

#include <string>
#include <system_error>
#include <utility>

#include "support/disk.h"
#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// A folder that fails only now is not one without the file: the program would go on with other
// paints than the painter chose.
void RequireListed(const fs::path& folder, const std::error_code& failure) {
    if (failure == std::errc::io_error || failure == std::errc::too_many_files_open ||
        failure == std::errc::too_many_files_open_in_system ||
        failure == std::errc::not_enough_memory) {
        throw FileError(folder, "cannot be listed (" + failure.message() +
                                    "). Check the disk and close other programs, then try again.");
    }
}

// Of several spellings the alphabetically first, so that every run takes the same one.
fs::path FindPart(const fs::path& folder, const std::string& part) {
    std::error_code failure;
    if (fs::exists(folder / part, failure)) {
        return folder / part;
    }
    std::string best;
    const auto entries = EntriesOf(folder, failure);
    RequireListed(folder, failure);
    for (const auto& entry : entries) {
        const std::string name = entry.path().filename().string();
        if (SameIgnoringCase(name, part) && (best.empty() || name < best)) {
            best = name;
        }
    }
    return folder / (best.empty() ? part : best);
}

}  // namespace

fs::path FindIgnoringCase(const fs::path& folder, std::string_view relative) {
    fs::path found = folder;
    for (const fs::path& part : fs::path(relative)) {
        found = FindPart(found, part.string());
    }
    return found;
}

ProgramFolder::ProgramFolder(fs::path root, fs::path shipped)
    : root_(std::move(root)), shipped_(std::move(shipped)) {}

fs::path ProgramFolder::Path(std::string_view relative) const {
    return FindIgnoringCase(root_, relative);
}

fs::path ProgramFolder::DataFile(std::string_view relative) const {
    fs::path own = Path(relative);
    if (Stands(own) || shipped_.empty()) {
        return own;
    }
    fs::path fallback = FindIgnoringCase(shipped_, relative);
    return Stands(fallback) ? fallback : own;
}

bool ProgramFolder::Exists(std::string_view relative) const {
    return Stands(Path(relative));
}

}  // namespace vendrel
