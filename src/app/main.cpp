// The program that painters start. Loading the libraries for fonts and windows takes longer than
// painting a picture, so whatever needs them is handed on to vendrel-studio, and a plain kit never
// waits for them. Photos that are no bitmaps are read by a vendrel-studio beside it.

#include <unistd.h>

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

#include "app/program.h"
#include "convert/child_decoder.h"
#include "kit/arguments.h"
#include "support/error.h"

namespace {

namespace fs = std::filesystem;
using vendrel::Arguments;
using vendrel::Command;

bool NeedsStudio(std::span<const std::string_view> words) {
    try {
        const Arguments arguments = vendrel::ParseArguments(words);
        return arguments.What == Command::Window || arguments.What == Command::Symbols ||
               (arguments.What == Command::Kit && arguments.Kit.Outputs.Chosen.NeedsFonts()) ||
               (arguments.What == Command::Paints &&
                (!arguments.Paints.Missing.empty() || !arguments.Paints.Stickers.empty())) ||
               (arguments.What == Command::Shop && !arguments.Shop.Undo);
    } catch (const vendrel::UsageError&) {
        return false;  // wrong usage is explained faster
    }
}

// None in a build without fonts and windows.
std::optional<fs::path> FindStudio() {
    const fs::path own = vendrel::OwnFolder();
    for (const fs::path& studio : {own / "vendrel-studio", own / VENDREL_STUDIO_WAY}) {
        if (access(studio.c_str(), X_OK) == 0) {
            return studio;
        }
    }
    return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
    const auto words = vendrel::WordsOf(argc, argv);
    const std::optional<fs::path> studio = FindStudio();
    if (!studio) {
        return vendrel::RunProgram(words, {});
    }
    if (NeedsStudio(words)) {
        execv(studio->c_str(), argv);
    }
    const vendrel::ChildDecoder decoder(*studio);
    return vendrel::RunProgram(words, {.Decoder = &decoder, .Studio = *studio});
}
