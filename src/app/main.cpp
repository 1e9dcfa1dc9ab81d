// The program that painters start. Loading the libraries for fonts and windows takes longer than
// painting a picture, so whatever needs them is handed on to vendrel-studio, and a plain kit never
// waits for them.

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "app/program.h"
#include "kit/arguments.h"
#include "support/error.h"
#include "support/letter_case.h"

namespace {

namespace fs = std::filesystem;
using vendrel::Arguments;
using vendrel::Command;

bool IsBitmapName(const std::string& photo) {
    return vendrel::SameIgnoringCase(fs::path(photo).extension().string(), ".bmp");
}

bool NeedsStudio(std::span<const std::string_view> words) {
    try {
        const Arguments arguments = vendrel::ParseArguments(words);
        return arguments.What == Command::Window || arguments.What == Command::Symbols ||
               !std::all_of(arguments.Kit.Photos.begin(), arguments.Kit.Photos.end(), IsBitmapName);
    } catch (const vendrel::UsageError&) {
        return false;  // wrong usage is explained faster
    }
}

// Returns only where there is no studio.
void BecomeStudio(char** argv) {
    const fs::path own = vendrel::OwnFolder();
    for (const fs::path& studio : {own / "vendrel-studio", own / VENDREL_STUDIO_WAY}) {
        execv(studio.c_str(), argv);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const auto words = vendrel::WordsOf(argc, argv);
    if (NeedsStudio(words)) {
        BecomeStudio(argv);
    }
    return vendrel::RunProgram(words, {});
}
