#include "forms/folder_lists.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <string_view>
#include <system_error>

#include "support/disk.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

std::string LowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

// As a painter reads a list: capitals do not matter, unless nothing else differs.
void SortNames(std::vector<std::string>& names) {
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        const std::string lowerA = LowerCase(a);
        const std::string lowerB = LowerCase(b);
        return lowerA == lowerB ? a < b : lowerA < lowerB;
    });
}

template <class Keep>
std::vector<std::string> NamesIn(const fs::path& folder, Keep keep) {
    std::vector<std::string> names;
    std::error_code failure;
    for (const fs::directory_entry& entry : EntriesOf(folder, failure)) {
        std::string name = entry.path().filename().string();
        if (!name.starts_with('.') && keep(entry)) {
            names.push_back(std::move(name));
        }
    }
    SortNames(names);
    return names;
}

bool IsFolder(const fs::directory_entry& entry) {
    std::error_code failure;
    return entry.is_directory(failure);
}

void AddMounted(std::vector<Drive>& drives, const fs::path& folder) {
    for (const std::string& name : NamesIn(folder, IsFolder)) {
        drives.push_back({name, folder / name});
    }
}

bool Holds(const fs::path& root, const fs::path& folder) {
    const auto [inRoot, inFolder] =
        std::mismatch(root.begin(), root.end(), folder.begin(), folder.end());
    return inRoot == root.end() || (inRoot->empty() && std::next(inRoot) == root.end());
}

}  // namespace

std::vector<Drive> ListDrives() {
    std::vector<Drive> drives{{"Computer", fs::path("/")}};
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') {
        drives.push_back({"Home", fs::path(home)});
    }
    if (const char* user = std::getenv("USER"); user != nullptr && *user != '\0') {
        AddMounted(drives, fs::path("/media") / user);
        AddMounted(drives, fs::path("/run/media") / user);
    }
    AddMounted(drives, "/mnt");
    return drives;
}

int DriveOf(const std::vector<Drive>& drives, const fs::path& folder) {
    int best = -1;
    std::size_t bestLength = 0;
    for (std::size_t i = 0; i < drives.size(); ++i) {
        const std::size_t length = drives[i].Root.native().size();
        if (length > bestLength && Holds(drives[i].Root, folder)) {
            best = static_cast<int>(i);
            bestLength = length;
        }
    }
    return best;
}

std::vector<std::string> ListFolders(const fs::path& folder) {
    std::vector<std::string> names = NamesIn(folder, IsFolder);
    if (folder.has_relative_path()) {
        names.insert(names.begin(), "..");
    }
    return names;
}

std::vector<std::string> ListPhotos(const fs::path& folder,
                                    const std::vector<std::string>& endings) {
    return NamesIn(folder, [&endings](const fs::directory_entry& entry) {
        std::error_code failure;
        const std::string ending = LowerCase(entry.path().extension().string());
        return (ending == ".bmp" ||
                (!ending.empty() &&
                 std::ranges::find(endings, ending.substr(1)) != endings.end())) &&
               entry.is_regular_file(failure);
    });
}

}  // namespace vendrel
