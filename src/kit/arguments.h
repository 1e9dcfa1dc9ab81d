#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "convert/crop.h"
#include "kitset/outputs.h"
#include "plan/plan_layout.h"
#include "shell/settings.h"
#include "support/twips.h"

namespace vendrel {

/// What a kit consists of.
struct KitOutputs {
    OutputChoice Chosen{IsByDefault};
    bool ByName = false;  // asked for by name, so that each is missed when it cannot be made
};

/// `vendrel kit`: photos and the settings that hold for all of them.
struct KitOptions {
    std::vector<std::string> Photos;
    std::filesystem::path Folder = ".";
    Settings Chosen;
    std::vector<std::string> Sets;  // empty: the saved selection
    std::optional<std::string> Template;
    CropPart Crop = CropPart::Whole;
    ScreenSize Screen = kDrawingBoard;
    KitOutputs Outputs;
    PlanSettings Plan;  // of the PDF
    bool ReplaceGrid = false;
    bool FromGrid = false;
    bool Json = false;
    bool Quiet = false;
};

enum class Command { Window, Kit, Symbols, Help, KitHelp, Version };

struct Arguments {
    Command What = Command::Window;
    KitOptions Kit;                      // for Command::Kit
    std::filesystem::path Folder = ".";  // for Command::Window and Command::Symbols
    bool InDocuments = false;            // for Command::Window: among the painter's documents
};

/// Reads the words behind the program's name. Throws UsageError with a sentence.
[[nodiscard]] Arguments ParseArguments(std::span<const std::string_view> words);

[[nodiscard]] std::string_view HelpText();
[[nodiscard]] std::string KitHelpText();

}  // namespace vendrel
