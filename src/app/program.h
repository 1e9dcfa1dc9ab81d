#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "convert/photo_decoder.h"
#include "output/symbol_set.h"
#include "plan/exporter.h"
#include "support/program_folder.h"

namespace vendrel {

/// What only the half with fonts and windows can do, by itself or for the other.
struct QtParts {
    const PhotoDecoder* Decoder = nullptr;
    std::filesystem::path Studio = {};  // its program
    std::function<MadeSymbols(const ProgramFolder&)> MakeSymbols = {};
    std::function<std::unique_ptr<Exporter>()> MakeExporter = {};
    std::function<std::filesystem::path()> Documents = {};
    /// With the kit or photo to open, whose path may be empty.
    std::function<int(const ProgramFolder& folder, const std::filesystem::path& file)> OpenWindow =
        {};
};

/// The folder that holds the running program's file.
[[nodiscard]] std::filesystem::path OwnFolder();

/// The words behind the program's name.
[[nodiscard]] std::vector<std::string_view> WordsOf(int argc, char** argv);

/// Runs a command line on this process's streams and answers the exit status.
[[nodiscard]] int RunProgram(std::span<const std::string_view> words, const QtParts& parts);

}  // namespace vendrel
