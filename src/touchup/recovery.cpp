#include "touchup/recovery.h"

#include <algorithm>
#include <system_error>

#include "storage/stipple_file.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/folders.h"
#include "support/leftovers.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds kRecoveryPause{5};
constexpr std::string_view kMark = ".recovery";
constexpr std::string_view kEnding = ".stp";

fs::path NumberedPath(fs::path grid, int number) {
    return grid.replace_extension(std::string(kMark) +
                                  (number == 1 ? "" : "-" + std::to_string(number)) +
                                  std::string(kEnding));
}

// "Lady-Easy.recovery-2.stp": a photo's name holds no dot, but may hold a dash.
std::optional<KeptWork> KeptIn(const fs::path& file) {
    const std::string name = file.filename().string();
    const std::size_t mark = name.rfind(kMark);
    const std::size_t dash = name.rfind('-', mark);
    std::error_code unreadable;
    const fs::file_time_type at = fs::last_write_time(file, unreadable);
    if (mark == std::string::npos || dash == std::string::npos || !name.ends_with(kEnding) ||
        unreadable || IsWaitingName(name) || !IsFile(file)) {
        return std::nullopt;
    }
    return KeptWork{file, name.substr(0, dash), name.substr(dash + 1, mark - dash - 1), at};
}

}  // namespace

fs::path RecoveryPath(const UnsavedWork& unsaved, const fs::path& grid) {
    return unsaved.Recovery ? unsaved.Recovery->Path() : NumberedPath(grid, 1);
}

fs::path HoldRecovery(UnsavedWork& unsaved, const fs::path& grid) {
    std::shared_ptr<const HeldFile>& held = unsaved.Recovery;
    // The lock lies beside the file. What keeps the folder from being made, the writing tells.
    std::error_code toldLater;
    fs::create_directories(NumberedPath(grid, 1).parent_path(), toldLater);
    for (int number = 1; !held; ++number) {
        const fs::path path = NumberedPath(grid, number);
        if (!IsFile(path)) {
            held = HeldFile::Hold(path);
        }
    }
    return held->Path();
}

bool IsRecoveryOf(const fs::path& recovery, const fs::path& grid) {
    const std::optional<KeptWork> work = KeptIn(recovery);
    return work && work->Photo + "-" + work->Difficulty == grid.stem().string();
}

void WriteRecoveryOfGrid(Workplace& place) {
    WorkState& state = place.State;
    const fs::path file = HoldRecovery(state, StippleFilePath(place.Folder, state, state));
    WriteStippleFile(file, {state.PaintColors, state.Stipples, state.CellsAcross, state.CellsDown,
                            state.FinalColors, state.Converted ? &state.Edits : nullptr});
}

void RemoveRecovery(const UnsavedWork& unsaved) {
    if (unsaved.Recovery) {
        RemoveRecovery(unsaved.Recovery->Path());
    }
}

// Offered again after a power cut, it would take the painter back behind the saved grid.
void RemoveRecovery(const fs::path& recovery) {
    std::error_code failure;
    if (fs::remove(recovery, failure)) {
        failure = SyncFolder(recovery.parent_path());
    }
    if (failure) {
        throw FileError(recovery, "the recovery file cannot be removed (" + failure.message() +
                                      "). Delete it yourself, or it will be offered again.");
    }
}

std::vector<KeptWork> ListKeptWork(const Workplace& place) {
    const fs::path grid = StippleFilePath(place.Folder, place.State, place.State);
    const std::string here = grid.stem().string();
    std::vector<KeptWork> all;
    for (const auto& entry : EntriesOf(grid.parent_path())) {
        std::optional<KeptWork> work = KeptIn(entry.path());
        if (work && HeldFile::Hold(work->File)) {
            work->Fits = work->Photo + "-" + work->Difficulty == here;
            all.push_back(std::move(*work));
        }
    }
    std::ranges::sort(all, [](const KeptWork& a, const KeptWork& b) {
        return std::tie(b.At, a.File) < std::tie(a.At, b.File);
    });
    return all;
}

std::shared_ptr<const HeldFile> HoldKept(const KeptWork& work) {
    auto held = HeldFile::Hold(work.File);
    if (!held) {
        throw Error("Another Vendrel has taken up this work on " + work.Photo +
                    ". Go on there, or close it first.");
    }
    return held;
}

void ThrowAway(const KeptWork& work) {
    const auto held = HoldKept(work);
    RemoveRecovery(work.File);
}

bool RecoveryTimer::Tick(EditTime now) {
    if (!pending_ || (lastTry_ && now - *lastTry_ < kRecoveryPause)) {
        return false;
    }
    lastTry_ = now;
    return true;
}

}  // namespace vendrel
