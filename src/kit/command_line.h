#pragma once

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <ostream>
#include <span>
#include <string_view>

#include "convert/photo_decoder.h"
#include "output/symbol_set.h"
#include "plan/exporter.h"
#include "support/program_folder.h"

namespace vendrel {

/// What the command line gets from the program around it.
struct Surroundings {
    std::ostream& Out;
    std::ostream& Err;
    bool ErrIsTerminal = false;
    std::filesystem::path Shipped = {};  // holds the Data and Pictures that ship
    std::string_view Version = {};
    std::filesystem::path Program = {};  // to be run for a kit in a process of its own
    std::filesystem::path Studio = {};   // to join PDFs; empty where the build cannot
    /// Reads photos that are no plain bitmaps; null where the build cannot.
    const PhotoDecoder* Decoder = nullptr;
    /// Draws the symbols anew into a folder and names the file; empty where there are no fonts.
    std::function<MadeSymbols(const ProgramFolder&)> MakeSymbols = {};
    /// Makes what draws color charts and PDF files; empty where there are no fonts.
    std::function<std::unique_ptr<Exporter>()> MakeExporter = {};
    /// The program's folder among the painter's documents, there or not; empty where the window is.
    std::function<std::filesystem::path()> Documents = {};
    /// Opens the main window in a folder, with a kit or photo unless its path is empty, and gives
    /// the exit status; empty where there is none.
    std::function<int(const std::filesystem::path& folder, const std::filesystem::path& file)>
        OpenWindow = {};
    /// Set when the program should end: the work stops at the next stipple.
    const std::atomic<bool>* StopAsked = nullptr;
};

/// Throws Stop once the program should end.
void RequireGoingOn(const Surroundings& around);

/// Runs a command. Every failure ends here, as a sentence on Err. Answers the exit status as
/// RunCommandLine does, or what the command answers.
[[nodiscard]] int RunToTheEdge(const Surroundings& around, const std::function<int()>& command);

/// Does what the words behind the program's name say. Every failure ends here, as a sentence on
/// Err. Answers the exit status: 0 done, 1 a photo or data file failed, 2 wrong usage, 130 stopped.
[[nodiscard]] int RunCommandLine(std::span<const std::string_view> words,
                                 const Surroundings& around);

}  // namespace vendrel
