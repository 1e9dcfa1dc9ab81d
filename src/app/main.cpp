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
#include "convert/foreign_photo.h"
#include "kit/arguments.h"
#include "kit/photo_lookup.h"
#include "support/error.h"

namespace {

namespace fs = std::filesystem;
using vendrel::Arguments;
using vendrel::Command;

// Some files are no bitmaps in spite of their name. Missing ones are explained faster.
bool NeedsDecoders(const vendrel::KitOptions& kit, const std::string& word) {
    try {
        return vendrel::NeedsDecoder(vendrel::FindPhoto(vendrel::ProgramFolder(kit.Folder), word));
    } catch (const vendrel::FileError&) {
        return false;
    }
}

bool NeedsStudio(std::span<const std::string_view> words) {
    try {
        const Arguments arguments = vendrel::ParseArguments(words);
        return arguments.What == Command::Window || arguments.What == Command::Symbols ||
               (arguments.What == Command::Kit && arguments.Kit.Outputs.Chosen.NeedsFonts()) ||
               std::ranges::any_of(arguments.Kit.Photos, [&arguments](const std::string& photo) {
                   return NeedsDecoders(arguments.Kit, photo);
               });
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
