#include "kitset/kit_set.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <system_error>
#include <thread>
#include <utility>

#include "kitset/settle.h"
#include "kitset/sha256.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/folders.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto kLongestWait = 10s;
constexpr auto kLook = 20ms;

KitLock WaitForLock(Ui& screen, const KitPaths& paths) {
    auto lock = KitLock::Try(paths.WaitingFolder());
    if (!lock) {
        screen.SetCaption("Waiting for another Vendrel that writes " + paths.Kit().Text());
    }
    const auto start = std::chrono::steady_clock::now();
    while (!lock) {
        screen.Yield();
        if (std::chrono::steady_clock::now() - start > kLongestWait) {
            throw FileError(paths.List(),
                            "another Vendrel is still writing this kit. Wait until it is done, "
                            "then try again.");
        }
        std::this_thread::sleep_for(kLook);
        lock = KitLock::Try(paths.WaitingFolder());
    }
    return std::move(*lock);
}

std::string InWords(const fs::path& file) {
    return file.lexically_normal().string();
}

// A file that must outlast a power cut is brought to the disk before its sum is listed. Answers no
// sum when that fails.
std::string SyncedSum(const fs::path& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const bool synced = file >= 0 && fsync(file) == 0;
    if (file >= 0) {
        close(file);
    }
    return synced && !SyncFolder(path.parent_path()) ? SumOfFile(path) : std::string();
}

// Nothing may fail any more once the files begin to take their places.
void RequireFree(const fs::path& file) {
    std::error_code unreadable;
    if (fs::is_directory(file, unreadable)) {
        throw FileError(file, "a folder of that name is in the way. Move or rename it.");
    }
}

}  // namespace

KitSet::KitSet(const ProgramFolder& folder, const KitName& kit, Ui& screen, std::string mark)
    : paths_(folder, kit), mark_(std::move(mark)), lock_(WaitForLock(screen, paths_)) {
    SettleKit(paths_);
}

KitSet::~KitSet() {
    sums_.clear();  // waits for those that are still read
    if (waiting_) {
        RemoveWaiting(paths_);
    }
}

Target KitSet::Waiting(const Output& output) {
    Target target(paths_.Waiting(output), &running_[output.Id]);
    target.Place = paths_.File(output);
    std::error_code failure;
    fs::create_directories(target.File.parent_path(), failure);
    if (failure) {
        throw FileError(target.Place, "its folder cannot be created (" + failure.message() + "). " +
                                          AdviceOn(failure, "Check that you may write there."));
    }
    return target;
}

void KitSet::Written(const Output& output) {
    own_.push_back(output.Id);
    if (RunningSum& running = running_[output.Id]; running.Saw()) {
        sums_[output.Id] =
            std::async(std::launch::deferred, [&running] { return running.Finish(); });
        return;
    }
    sums_[output.Id] =
        std::async(std::launch::async, output.Power == Lasting::Synced ? SyncedSum : SumOfFile,
                   paths_.Waiting(output));
}

void KitSet::Kept(const Output& output) {
    own_.push_back(output.Id);
    sums_[output.Id] = std::async(std::launch::async, SumOfFile, paths_.File(output));
}

std::vector<std::string> KitSet::Commit() {
    std::vector<std::string> notes;
    const KitList list = MergedList(notes);
    for (const OutputId id : own_) {
        RequireFree(paths_.File(OutputOf(id)));
    }
    Target target(paths_.WaitingList());
    target.Place = paths_.List();
    WriteWholeFile(target, FormatKitList(list, paths_), Lasting::Synced);
    waiting_ = false;
    if (const std::error_code failure = TakePlaces(paths_)) {
        throw FileError(paths_.List(), "cannot be replaced (" + failure.message() +
                                           "). The next start goes on with this kit. " +
                                           AdviceOn(failure, "Check that you may write there."));
    }
    RemoveWaiting(paths_);
    return notes;
}

KitList KitSet::MergedList(std::vector<std::string>& notes) {
    const KitList old = ReadKitList(paths_.List()).value_or(KitList{});
    for (const Output& output : AllOutputs()) {
        const fs::path& file = paths_.File(output);
        if (!sums_.contains(output.Id) && IsFile(file)) {
            sums_[output.Id] = std::async(std::launch::async, SumOfFile, file);
        }
    }
    KitList list{mark_, {}};
    for (const Output& output : AllOutputs()) {
        if (std::ranges::find(own_, output.Id) != own_.end()) {
            list.Files.push_back({output.Id, OwnSum(output), mark_});
        } else if (sums_.contains(output.Id)) {
            TakeOver(output, old, list, notes);
        }
    }
    return list;
}

std::string KitSet::OwnSum(const Output& output) {
    std::string sum = sums_[output.Id].get();
    if (sum.empty()) {
        throw FileError(paths_.File(output),
                        "was written but cannot be read again. The kit was left as it was; check "
                        "the disk.");
    }
    return sum;
}

// A file that this run did not write stays listed while it is as it was written. The saved grid is
// the painter's own to change, and nobody lays it beside a sheet.
void KitSet::TakeOver(const Output& output, const KitList& old, KitList& list,
                      std::vector<std::string>& notes) {
    const fs::path path = paths_.File(output);
    const std::string sum = sums_[output.Id].get();
    if (sum.empty()) {
        return;
    }
    const ListedFile* const file = old.Find(output.Id);
    const bool asWritten = file != nullptr && file->Sum == sum;
    if (asWritten) {
        list.Files.push_back(*file);
    }
    if (output.Id == OutputId::Grid || (asWritten && file->Mark == mark_)) {
        return;
    }
    notes.push_back(InWords(path) +
                    (asWritten ? " is of another kit (" + file->Mark + ", this one is " + mark_ +
                                     "), so its symbols may mean other paints. "
                     : file != nullptr
                         ? " was changed after it was written and may not belong to this kit. "
                         : " is in no list and may not belong to this kit. ") +
                    "Make it again or remove it.");
}

}  // namespace vendrel
