#include "support/program_folder.h"

#include <string>
#include <system_error>
#include <utility>

#include "support/letter_case.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// Of several spellings the alphabetically first, so that every run takes the same one.
fs::path FindPart(const fs::path& folder, const std::string& part) {
    std::error_code failure;
    if (fs::exists(folder / part, failure)) {
        return folder / part;
    }
    std::string best;
    for (const auto& entry : fs::directory_iterator(folder, failure)) {
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
    std::error_code unreadable;
    if (fs::exists(own, unreadable) || shipped_.empty()) {
        return own;
    }
    fs::path fallback = FindIgnoringCase(shipped_, relative);
    return fs::exists(fallback, unreadable) ? fallback : own;
}

bool ProgramFolder::Exists(std::string_view relative) const {
    std::error_code unreadable;
    return fs::exists(Path(relative), unreadable);
}

}  // namespace vendrel
