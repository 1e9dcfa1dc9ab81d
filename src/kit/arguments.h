#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kit/shelf_options.h"
#include "kitfile/kit_file.h"
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

/// `vendrel kit`: photos or kits, and the settings that hold for all of them.
struct KitOptions {
    std::vector<std::string> Words;         // behind "kit", as they were given
    std::vector<std::string> SettingWords;  // all but the photos, as "--name=value" each
    std::vector<std::string> Photos;        // and kit files
    std::shared_ptr<const KitFile> From;    // the kit that is made again or changed
    std::filesystem::path KitPhoto;         // of a kit, in place of the one in Pictures
    std::filesystem::path Folder = ".";
    Settings Chosen;
    std::optional<Matching> Match;  // asked for by name
    bool MatchByEye = false;        // unless asked for otherwise
    std::vector<std::string> Sets;  // empty: the saved selection
    std::optional<std::string> Template;
    std::filesystem::path Like;  // a kit file whose settings hold where the words say nothing
    bool OwnedOnly = false;      // the paints of the shelf
    bool BuyingNamed = false;    // what is owned goes first, by the shelf as it is now
    std::string Title;           // names the files in place of the photo's name
    ScreenSize Screen = kDrawingBoard;
    KitOutputs Outputs;
    PlanSettings Plan;  // of the PDF; its canvas is that of the settings where they need one
    bool CanvasNamed = false;
    bool SaveKit = false;  // as a file to be opened or made again
    bool ReplaceGrid = false;
    bool FromGrid = false;
    int Jobs = 1;          // so many photos side by side
    bool Figures = false;  // compared with the photo, which takes a while
    bool Compared = true;  // the same with Json
    bool Json = false;
    bool Needs = false;  // of every paint, in the JSON
    bool Quiet = false;
};

enum class Command {
    Window,
    Kit,
    Paints,
    Shop,
    Symbols,
    Help,
    KitHelp,
    PaintsHelp,
    ShopHelp,
    Version
};

struct Arguments {
    Command What = Command::Window;
    KitOptions Kit;                      // for Command::Kit
    std::filesystem::path Folder = ".";  // for Command::Window and Command::Symbols
    bool InDocuments = false;            // for Command::Window: among the painter's documents
    std::filesystem::path File;          // for Command::Window: a kit or photo to open; or empty
    PaintsOptions Paints = {};           // for Command::Paints
    ShopOptions Shop = {};               // for Command::Shop
};

/// Reads the words behind the program's name. Throws UsageError with a sentence.
[[nodiscard]] Arguments ParseArguments(std::span<const std::string_view> words);

/// The same options over the settings of a kit file, which hold where the words say nothing else.
[[nodiscard]] KitOptions OptionsOver(const KitOptions& given, std::shared_ptr<const KitFile> kit);

/// The same over the settings of a kit that gives nothing else; the answer is like none.
[[nodiscard]] KitOptions OptionsLike(const KitOptions& given, const KitFile& kit);

}  // namespace vendrel
