#include "app/decode_command.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <new>
#include <span>
#include <string>

#include "convert/decoding_limits.h"
#include "export/photo_reader.h"
#include "support/error.h"

namespace vendrel {
namespace {

constexpr int kPixels = 3;
constexpr rlim_t kFiles = 24;  // a decoder's own libraries
constexpr std::size_t kMaxFileBytes = std::size_t{1} << 30;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kMeasuredByTools = true;  // which take terabytes of addresses themselves
#else
constexpr bool kMeasuredByTools = false;
#endif

void Limit(__rlimit_resource what, rlim_t most) {
    const rlimit limit{most, most};
    setrlimit(what, &limit);
}

void LimitThisProcess() {
    Limit(RLIMIT_CORE, 0);
    Limit(RLIMIT_FSIZE, 0);
    Limit(RLIMIT_NOFILE, kFiles);
    const rlimit seconds{kDecodingSeconds, kDecodingSeconds + 1};  // a signal, then the end
    setrlimit(RLIMIT_CPU, &seconds);
    if (!kMeasuredByTools) {
        Limit(RLIMIT_DATA, kDecodingMegabytes << 20);
        // What decoders print beside the program's own sentences.
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        dup2(nowhere, STDERR_FILENO);
    }
}

void Say(const std::string& line) {
    std::fputs((line + "\n").c_str(), stdout);
    std::fflush(stdout);
}

void SayOutOfMemory() {
    static constexpr char kLine[] =
        "refused needs more memory to be read than a photo may take. Save it smaller, as JPEG.\n";
    const ssize_t ignored = write(STDOUT_FILENO, kLine, sizeof kLine - 1);
    _exit(ignored > 0 ? EXIT_FAILURE : EXIT_FAILURE + 1);
}

std::string Sides(BitmapSize size) {
    return std::to_string(size.Width) + " " + std::to_string(size.Height);
}

// Not read into memory: what a decoder does not ask for need not be held.
PhotoBytes MapPhoto() {
    struct stat file {};
    if (fstat(STDIN_FILENO, &file) != 0 || !S_ISREG(file.st_mode) || file.st_size == 0) {
        return {};
    }
    const auto size = static_cast<std::size_t>(file.st_size);
    if (size > kMaxFileBytes) {
        throw Error("is larger than 1 GB. Save the photo as JPEG.");
    }
    const void* const start = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, STDIN_FILENO, 0);
    if (start == MAP_FAILED) {
        throw Error("cannot be read. Check the disk and copy it again.");
    }
    return {static_cast<const std::uint8_t*>(start), size};
}

// All pages at once: taken one by one as they are painted on, they cost as much as the painting.
std::span<Color> MapPixels(BitmapSize size) {
    const std::size_t count =
        static_cast<std::size_t>(size.Width) * static_cast<std::size_t>(size.Height);
    void* const start = mmap(nullptr, count * sizeof(Color), PROT_READ | PROT_WRITE,
                             MAP_SHARED | MAP_POPULATE, kPixels, 0);
    if (start == MAP_FAILED) {
        throw std::bad_alloc();
    }
    return {static_cast<Color*>(start), count};
}

void ReadPhoto() {
    PhotoReader reader(MapPhoto());
    Say("size " + Sides(reader.Size()));
    reader.Read(MapPixels(reader.PictureSize()),
                [](int percent) { Say("percent " + std::to_string(percent)); });
    Say("picture " + Sides(reader.PictureSize()));
}

}  // namespace

// Left at once: tidying up what the system takes back anyhow would keep the painter waiting.
int RunDecodeCommand() {
    LimitThisProcess();
    std::set_new_handler(SayOutOfMemory);
    try {
        ReadPhoto();
    } catch (const Error& error) {
        Say("refused " + std::string(error.what()));
        _exit(EXIT_FAILURE);
    } catch (const std::bad_alloc&) {
        SayOutOfMemory();
    }
    _exit(EXIT_SUCCESS);
}

}  // namespace vendrel
