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

fs::path NumberedPath(const Workplace& place, int number) {
    return StippleFilePath(place).replace_extension(
        std::string(kMark) + (number == 1 ? "" : "-" + std::to_string(number)) +
        std::string(kEnding));
}

bool IsFile(const fs::path& path) {
    std::error_code unreadable;
    return fs::is_regular_file(path, unreadable);
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

fs::path RecoveryPath(const Workplace& place) {
    return place.State.Recovery ? place.State.Recovery->Path() : NumberedPath(place, 1);
}

bool RecoveryExists(const Workplace& place) {
    return IsFile(RecoveryPath(place));
}

fs::path HoldRecovery(const Workplace& place) {
    std::shared_ptr<const HeldFile>& held = place.State.Recovery;
    // The lock lies beside the file. What keeps the folder from being made, the writing tells.
    std::error_code toldLater;
    fs::create_directories(NumberedPath(place, 1).parent_path(), toldLater);
    for (int number = 1; !held; ++number) {
        const fs::path path = NumberedPath(place, number);
        if (!IsFile(path)) {
            held = HeldFile::Hold(path);
        }
    }
    return held->Path();
}

void WriteRecoveryOfGrid(const Workplace& place) {
    const WorkState& state = place.State;
    WriteStippleFile(HoldRecovery(place), {state.PaintColors, state.Stipples, state.CellsAcross,
                                           state.CellsDown, state.FinalColors});
}

void RemoveRecovery(const Workplace& place) {
    if (place.State.Recovery) {
        RemoveRecovery(place.State.Recovery->Path());
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
    const std::string here = NumberedPath(place, 1).stem().stem().string();
    std::vector<KeptWork> all;
    for (const auto& entry : EntriesOf(StippleFilePath(place).parent_path())) {
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
