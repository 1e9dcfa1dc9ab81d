#include "convert/decoding_child.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <sstream>
#include <system_error>
#include <utility>

#include "convert/bitmap_input.h"
#include "convert/decoding_limits.h"
#include "support/error.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPixelBytes = sizeof(Color) * kMaxPhotoSide * kMaxPhotoSide;
constexpr int kPause = 50;  // milliseconds between two looks at whether to stop
constexpr int kPixels = 3;  // the child's descriptor

std::string Reason(int number) {
    return std::error_code(number, std::generic_category()).message();
}

// Away from the numbers that the child's own will take.
int KeepAside(int number) {
    constexpr int kBehindStandardOnes = 10;
    const int kept = fcntl(number, F_DUPFD_CLOEXEC, kBehindStandardOnes);
    close(number);
    return kept;
}

int OpenToRead(const fs::path& photo) {
    const BitmapInput missingAndFoldersAreRefused(photo);
    return KeepAside(open(photo.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
}

// Costs only what the picture fills of it.
int MakeSharedMemory() {
    const int memory = KeepAside(memfd_create("pixels", MFD_CLOEXEC));
    if (memory < 0 || ftruncate(memory, kPixelBytes) != 0) {
        const int reason = errno;
        close(memory);
        throw Error("There is no memory for the photo (" + Reason(reason) +
                    "). Close other programs and try again.");
    }
    return memory;
}

bool SameTime(const timespec& a, const timespec& b) {
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

// Signals and descriptors of the program are no matter of the child's. A group of its own keeps
// Ctrl+C from it: the program stops it in its own way.
class SpawnPlan {
  public:
    SpawnPlan(int photo, int answers, int pixels) {
        posix_spawn_file_actions_init(&Files);
        posix_spawn_file_actions_adddup2(&Files, photo, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&Files, answers, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&Files, pixels, kPixels);
        posix_spawn_file_actions_addclosefrom_np(&Files, kPixels + 1);
        posix_spawnattr_init(&Attributes);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&Attributes, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&Attributes, &signals);
        posix_spawnattr_setflags(
            &Attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }
    ~SpawnPlan() {
        posix_spawn_file_actions_destroy(&Files);
        posix_spawnattr_destroy(&Attributes);
    }
    SpawnPlan(const SpawnPlan&) = delete;
    SpawnPlan& operator=(const SpawnPlan&) = delete;

    posix_spawn_file_actions_t Files{};
    posix_spawnattr_t Attributes{};
};

// Pixels in shared memory, for as long as this lives.
class PixelView {
  public:
    explicit PixelView(int memory)
        : start_(mmap(nullptr, kPixelBytes, PROT_READ, MAP_SHARED, memory, 0)) {
        if (start_ == MAP_FAILED) {
            throw std::bad_alloc();
        }
    }
    ~PixelView() { munmap(start_, kPixelBytes); }
    PixelView(const PixelView&) = delete;
    PixelView& operator=(const PixelView&) = delete;

    [[nodiscard]] const Color* Pixels() const { return static_cast<const Color*>(start_); }

  private:
    void* start_;
};

}  // namespace

void Descriptor::Take(int number) {
    if (number_ >= 0) {
        close(number_);
    }
    number_ = number;
}

DecodingChild::DecodingChild(const fs::path& program, const fs::path& photo)
    : photo_(photo), pixels_(MakeSharedMemory()) {
    const Descriptor file(OpenToRead(photo));
    std::array<int, 2> pipe{-1, -1};
    if (file.Number() < 0 || fstat(file.Number(), &file_) != 0 ||
        pipe2(pipe.data(), O_CLOEXEC) != 0) {
        throw FileError(photo,
                        "cannot be read (" + Reason(errno) + "). Check that you may read it.");
    }
    answers_.Take(KeepAside(pipe[0]));
    const Descriptor theirEnd(KeepAside(pipe[1]));
    Start(program, file.Number(), theirEnd.Number());
}

DecodingChild::~DecodingChild() {
    End();
}

void DecodingChild::Start(const fs::path& program, int photo, int answers) {
    const SpawnPlan plan(photo, answers, pixels_.Number());
    std::string name = program.string();
    std::string word = "--decode";
    const std::array<char*, 3> words = {name.data(), word.data(), nullptr};
    const int failure =
        posix_spawn(&process_, name.c_str(), &plan.Files, &plan.Attributes, words.data(), environ);
    if (failure != 0) {
        process_ = 0;
        throw FileError(program, "cannot be started to read a photo (" + Reason(failure) +
                                     "). Install the program again.");
    }
}

bool DecodingChild::Reads(const fs::path& photo) const {
    struct stat now {};
    return photo == photo_ && stat(photo.c_str(), &now) == 0 && now.st_dev == file_.st_dev &&
           now.st_ino == file_.st_ino && now.st_size == file_.st_size &&
           SameTime(now.st_mtim, file_.st_mtim) && SameTime(now.st_ctim, file_.st_ctim);
}

BitmapSize DecodingChild::Size() {
    while (size_ == BitmapSize{}) {
        AwaitLine();
    }
    return size_;
}

Surface DecodingChild::Picture(const ReadProgress& progress) {
    while (picture_ == BitmapSize{}) {
        AwaitLine();
        if (progress) {
            progress(percent_);
        }
    }
    if (progress) {
        progress(100);
    }
    End();
    Surface surface(picture_.Width, picture_.Height);
    const PixelView view(pixels_.Number());
    const Color* row = view.Pixels();
    for (int y = 0; y < surface.Height(); ++y, row += surface.Width()) {
        std::copy_n(row, surface.Width(), surface.Row(y).begin());
    }
    return surface;
}

// Returns after a while even when there is none.
void DecodingChild::AwaitLine() {
    pollfd wait{.fd = answers_.Number(), .events = POLLIN, .revents = 0};
    if (poll(&wait, 1, kPause) <= 0) {
        return;
    }
    std::array<char, 4096> chunk{};
    const ssize_t count = read(answers_.Number(), chunk.data(), chunk.size());
    if (count == 0) {
        ExplainDeath();
    }
    unread_.append(chunk.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    for (std::size_t end = unread_.find('\n'); end != unread_.npos; end = unread_.find('\n')) {
        const std::string line = unread_.substr(0, end);
        unread_.erase(0, end + 1);
        Take(line);
    }
}

// A child that a photo has taken over may answer anything.
void DecodingChild::Take(std::string_view line) {
    constexpr std::string_view kRefused = "refused ";
    if (line.starts_with(kRefused)) {
        Refuse(std::string(line.substr(kRefused.size())));
    }
    std::istringstream words{std::string(line)};
    std::string kind;
    BitmapSize size;
    words >> kind >> size.Width;
    if (kind == "percent") {
        percent_ = std::clamp(size.Width, percent_, 100);
        return;
    }
    words >> size.Height;
    const int longest = std::max(size.Width, size.Height);
    if (!words || std::min(size.Width, size.Height) < 1) {
        return;
    }
    if (kind == "size") {
        size_ = size;
    } else if (kind == "picture" && longest <= kMaxPhotoSide) {
        picture_ = size;
    }
}

void DecodingChild::End() {
    if (process_ > 0) {
        kill(process_, SIGKILL);
        waitpid(std::exchange(process_, 0), nullptr, 0);
    }
}

void DecodingChild::Refuse(const std::string& problem) const {
    throw FormatError(photo_, 0, problem);
}

void DecodingChild::ExplainDeath() {
    int status = 0;
    waitpid(std::exchange(process_, 0), &status, 0);
    const int signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    if (signal == SIGXCPU) {
        Refuse("takes longer to read than " + std::to_string(kDecodingSeconds) +
               " seconds. Save it smaller, as JPEG.");
    }
    if (signal == SIGKILL) {
        Refuse("needs more memory than is free. Close other programs, or save it smaller.");
    }
    Refuse(
        "is damaged, so that the picture cannot be read. Copy the photo again from where it came "
        "from, or open it in a photo program and save it anew.");
}

}  // namespace vendrel
