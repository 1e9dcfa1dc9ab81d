#include "kitset/settle.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "kitset/kit_list.h"
#include "kitset/kit_lock.h"
#include "kitset/outputs.h"
#include "kitset/sha256.h"
#include "support/disk.h"
#include "support/folders.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// A file of this kit that waits no more has taken its place already, or always stood there.
bool IsWhole(const KitPaths& paths, const KitList& list, const Output& output) {
    const ListedFile* const file = list.Find(output.Id);
    const fs::path waiting = paths.Waiting(output);
    if (IsFile(waiting)) {
        return file != nullptr && SumOfFile(waiting) == file->Sum;
    }
    return file == nullptr || file->Mark != list.Mark || SumOfFile(paths.File(output)) == file->Sum;
}

// The folder may be as new as the file, so the one above is synced as well.
std::error_code TakePlace(const KitPaths& paths, const Output& output) {
    const fs::path file = paths.File(output);
    std::error_code failure;
    fs::rename(paths.Waiting(output), file, failure);
    if (failure || output.Power == Lasting::Remade) {
        return failure;
    }
    return SyncFolders(file.parent_path(), FolderAbove(file.parent_path()));
}

// By this folder the next start knows that something waits: it goes last, and stays when one of the
// others could not be removed.
void RemoveEmptyFolder(const KitPaths& paths) {
    std::error_code ignored;
    const bool others = std::ranges::any_of(AllOutputs(), [&](const Output& output) {
        const fs::path folder = paths.Waiting(output).parent_path();
        return folder != paths.WaitingFolder() && fs::exists(folder, ignored);
    });
    if (!others) {
        fs::remove(paths.WaitingFolder(), ignored);
    }
}

std::optional<KitName> KitWaitingIn(const std::string& name) {
    const std::size_t gap = name.rfind(' ');
    if (!name.starts_with(kWaitingStart) || gap < kWaitingStart.size()) {
        return std::nullopt;
    }
    return KitName{name.substr(kWaitingStart.size(), gap - kWaitingStart.size()),
                   name.substr(gap + 1)};
}

}  // namespace

std::error_code TakePlaces(const KitPaths& paths) {
    std::error_code failure;
    for (const Output& output : AllOutputs()) {
        if (IsFile(paths.Waiting(output))) {
            failure = TakePlace(paths, output);
        }
        if (failure) {
            return failure;
        }
    }
    fs::rename(paths.WaitingList(), paths.List(), failure);
    return failure;
}

void ClearWaiting(const KitPaths& paths) {
    std::error_code ignored;
    for (const Output& output : AllOutputs()) {
        const fs::path folder = paths.Waiting(output).parent_path();
        if (folder != paths.WaitingFolder()) {
            fs::remove_all(folder, ignored);
        }
    }
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(paths.WaitingFolder(), ignored)) {
        files.push_back(entry.path());
    }
    for (const fs::path& file : files) {
        fs::remove_all(file, ignored);
    }
}

void RemoveWaiting(const KitPaths& paths) {
    ClearWaiting(paths);
    RemoveEmptyFolder(paths);
}

void SettleKit(const KitPaths& paths) {
    const std::optional<KitList> list = ReadKitList(paths.WaitingList());
    const bool whole = list && std::ranges::all_of(AllOutputs(), [&](const Output& output) {
                           return IsWhole(paths, *list, output);
                       });
    // What cannot take its place now may at the next start.
    if (!whole || !TakePlaces(paths)) {
        ClearWaiting(paths);
    }
}

void SettleKits(const ProgramFolder& folder) {
    std::vector<KitName> kits;
    std::error_code failure;
    fs::directory_iterator entry(folder.Path("Results"), failure);
    for (; !failure && entry != fs::directory_iterator(); entry.increment(failure)) {
        if (auto kit = KitWaitingIn(entry->path().filename().string())) {
            kits.push_back(std::move(*kit));
        }
    }
    for (KitName& kit : kits) {
        const KitPaths paths(folder, std::move(kit));
        if (const auto lock = KitLock::Try(paths.WaitingFolder())) {
            SettleKit(paths);
            RemoveEmptyFolder(paths);
        }
    }
}

}  // namespace vendrel
