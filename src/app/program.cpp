#include "app/program.h"

#include <unistd.h>

#include <atomic>
#include <csignal>
#include <iostream>
#include <system_error>

#include "batch/batch_command.h"
#include "kit/command_line.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

std::atomic<bool> stopAsked = false;
static_assert(std::atomic<bool>::is_always_lock_free);

// Half-written files are taken away while the work unwinds; a second signal ends at once.
void AskToStop(int signal) {
    stopAsked = true;
    std::signal(signal, SIG_DFL);
}

fs::path OwnProgram() {
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored);
}

// Where Data and Pictures lie: beside an installed program, else in the tree it was built from.
fs::path ShippedFolder() {
    std::error_code ignored;
    for (const char* way : {"../share/vendrel", "../../share/vendrel"}) {
        fs::path installed = (OwnFolder() / way).lexically_normal();
        if (fs::exists(installed / "Data", ignored)) {
            return installed;
        }
    }
    return (OwnFolder() / VENDREL_SOURCE_WAY).lexically_normal();
}

}  // namespace

fs::path OwnFolder() {
    return OwnProgram().parent_path();
}

std::vector<std::string_view> WordsOf(int argc, char** argv) {
    return argc > 0 ? std::vector<std::string_view>(argv + 1, argv + argc)
                    : std::vector<std::string_view>();
}

int RunProgram(std::span<const std::string_view> words, const QtParts& parts) {
    // A file beyond the allowed size is a failed write, which the painter gets told of.
    std::signal(SIGXFSZ, SIG_IGN);
    const bool batch = !words.empty() && words.front() == "batch";
    if (batch || (!words.empty() && words.front() == "kit")) {
        std::signal(SIGINT, AskToStop);
        std::signal(SIGTERM, AskToStop);
        // What nohup has switched off stays off.
        if (std::signal(SIGHUP, AskToStop) == SIG_IGN) {
            std::signal(SIGHUP, SIG_IGN);
        }
    }
    const fs::path shipped = ShippedFolder();
    Surroundings around{
        .Out = std::cout,
        .Err = std::cerr,
        .ErrIsTerminal = isatty(STDERR_FILENO) != 0,
        .Shipped = shipped,
        .Version = VENDREL_VERSION,
        .Program = OwnProgram(),  // either half makes kits
        .Studio = parts.Studio,
        .Decoder = parts.Decoder,
        .MakeSymbols = parts.MakeSymbols,
        .MakeExporter = parts.MakeExporter,
        .Documents = parts.Documents,
        .OpenWindow = {},
        .StopAsked = &stopAsked,
    };
    if (parts.OpenWindow) {
        around.OpenWindow = [&](const fs::path& folder, const fs::path& file) {
            return parts.OpenWindow(ProgramFolder(folder, shipped), file);
        };
    }
    return batch ? RunBatch(words.subspan(1), around) : RunCommandLine(words, around);
}

}  // namespace vendrel
