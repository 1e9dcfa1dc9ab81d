#include "support/leftovers.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <system_error>

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kWaitingStart = ".vendrel-";
constexpr std::string_view kWaitingEnd = ".part";
constexpr std::string_view kLockEnd = ".vendrel-lock";

bool EndsInNumber(std::string_view name, std::string_view before) {
    const std::size_t digits = name.find_last_not_of("0123456789") + 1;
    return digits < name.size() && name.substr(0, digits).ends_with(before);
}

bool IsLocked(std::string_view name) {
    return (name.starts_with(kWaitingStart) && name.ends_with(kWaitingEnd)) ||
           (name.starts_with('.') && name.ends_with(kLockEnd));
}

// As earlier versions called them, without a lock.
bool IsUnlocked(std::string_view name) {
    return EndsInNumber(name, ".arriving-") ||
           (name.ends_with(kWaitingEnd) &&
            EndsInNumber(name.substr(0, name.size() - kWaitingEnd.size()), "."));
}

void RemoveUnlessHeld(const fs::path& file) {
    const int opened = open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (opened < 0) {
        return;
    }
    if (flock(opened, LOCK_EX | LOCK_NB) == 0) {
        unlink(file.c_str());
    }
    close(opened);
}

void RemoveIfOld(const fs::path& file) {
    std::error_code failure;
    const auto written = fs::last_write_time(file, failure);
    if (!failure && fs::file_time_type::clock::now() - written > std::chrono::days(1)) {
        fs::remove(file, failure);
    }
}

}  // namespace

std::string NewWaitingName() {
    std::random_device random;
    std::string name(kWaitingStart);
    name += std::to_string(random());
    name += '-';
    name += std::to_string(random());
    name += kWaitingEnd;
    return name;
}

std::string LockName(std::string_view file) {
    std::string name(".");
    name += file;
    name += kLockEnd;
    return name;
}

bool IsWaitingName(std::string_view name) {
    return IsLocked(name) || IsUnlocked(name);
}

void RemoveLeftovers(const fs::path& folder) {
    std::error_code failure;
    fs::directory_iterator entry(folder, failure);
    for (; !failure && entry != fs::directory_iterator(); entry.increment(failure)) {
        const std::string name = entry->path().filename().string();
        if (IsLocked(name)) {
            RemoveUnlessHeld(entry->path());
        } else if (IsUnlocked(name)) {
            RemoveIfOld(entry->path());
        }
    }
}

}  // namespace vendrel
