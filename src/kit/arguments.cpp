#include "kit/arguments.h"

#include <algorithm>
#include <utility>

#include "convert/picture_name.h"
#include "kit/kit_options.h"
#include "kit/option_kinds.h"
#include "kitfile/kit_places.h"
#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

void AddHelp(CLI::App& app) {
    app.set_help_flag();  // the library's own would look at wrong values first
    app.add_flag_callback("-h,--help", [] { throw CLI::CallForHelp(); })->trigger_on_parse();
}

// What the library would take for something else: "--json=" and "--folder=" without a value.
void CheckValueInside(const CLI::App& app, std::string_view word) {
    const auto equals = word.find('=');
    if (!word.starts_with("--") || equals == word.npos) {
        return;
    }
    const std::string name(word.substr(0, equals));
    const CLI::Option* const option = app.get_option_no_throw(name);
    if (option != nullptr && option->get_disable_flag_override()) {
        throw UsageError(name + " takes no value.");
    }
    if (option != nullptr && equals + 1 == word.size()) {
        throw UsageError(name + " needs a value that is not empty.");
    }
}

// The words as the library wants them: the last one first.
std::vector<std::string> Prepared(const CLI::App& app, std::span<const std::string_view> words) {
    std::vector<std::string> prepared;
    while (!words.empty() && words.front() != "--") {
        const std::string_view word = words.front();
        words = words.subspan(1);
        CheckValueInside(app, word);
        const bool crop = word == "--crop" || word.starts_with("--crop=");
        prepared.push_back(crop ? CropWord(word, words) : std::string(word));
    }
    prepared.insert(prepared.end(), words.begin(), words.end());
    std::ranges::reverse(prepared);
    return prepared;
}

bool TakesValue(const CLI::App& app, const std::string& word) {
    const CLI::Option* const option = app.get_option_no_throw(word);
    return option != nullptr && !option->get_disable_flag_override();
}

// What is said of the photos. A word behind an option that takes a value belongs to it.
std::vector<std::string> SettingsIn(const CLI::App& app, std::span<const std::string_view> words) {
    std::vector<std::string> settings;
    while (!words.empty() && words.front() != "--") {
        const std::string_view word = words.front();
        words = words.subspan(1);
        if (word == "--crop" || word.starts_with("--crop=")) {
            settings.push_back(CropWord(word, words));
        } else if (word.starts_with("--")) {
            settings.emplace_back(word);
            if (TakesValue(app, settings.back()) && !words.empty()) {
                settings.back() += "=" + std::string(words.front());
                words = words.subspan(1);
            }
        }
    }
    return settings;
}

[[noreturn]] void RefuseWord(const std::string& word, const std::string& help) {
    if (word.starts_with('-')) {
        throw UsageError("There is no option " + word.substr(0, word.find('=')) + ". \"" + help +
                         "\" lists them.");
    }
    throw UsageError("\"" + word + "\" is nothing that Vendrel does. \"" + help +
                     "\" lists what it does.");
}

bool MayBeFile(const std::string& word) {
    return !word.starts_with('-') && word.find_first_of("./") != word.npos;
}

// Answers whether the words ask for help instead; the one file they may name goes to `file`.
bool AsksForHelp(CLI::App& app, std::span<const std::string_view> words, const std::string& help,
                 std::filesystem::path* file = nullptr) {
    AddHelp(app);
    app.allow_extras();
    try {
        app.parse(Prepared(app, words));
    } catch (const CLI::CallForHelp&) {
        return true;
    } catch (const CLI::ArgumentMismatch&) {
        throw UsageError(std::string(words.back()) + " needs a value behind it.");
    } catch (const CLI::ParseError& error) {
        throw UsageError(error.what());
    }
    for (const std::string& word : app.remaining()) {
        if (file != nullptr && file->empty() && MayBeFile(word)) {
            *file = word;
        } else if (word != "--") {
            RefuseWord(word, help);
        }
    }
    return false;
}

// What holds whatever the order of the options.
void SettleKit(KitOptions& kit) {
    kit.Chosen.Match = kit.Match.value_or(kit.MatchByEye ? Matching::ByEye : kit.Chosen.Match);
    const bool plain = kit.Chosen.Match == Matching::Plain && !kit.Chosen.Paintable;
    const bool hasCanvas = (kit.From || !kit.Like.empty()) && !kit.CanvasNamed;
    if (!hasCanvas || (!plain && !kit.Plan.HasCanvas())) {
        kit.Plan.CanvasCm = plain || kit.Chosen.CanvasCm > 0 ? kit.Chosen.CanvasCm : kUsualCanvasCm;
    }
    if (kit.Plan.BleedMm > 0 && !kit.Plan.Sheet.IsCanvas()) {
        throw UsageError("--bleed goes around a canvas printed in one piece. Add --paper canvas.");
    }
    if (!kit.Title.empty() && kit.Photos.size() > 1) {
        throw UsageError("--title names one kit. Name one photo with it.");
    }
    if (!kit.Title.empty() && !MayNameKit(kit.Title)) {
        throw UsageError("--title cannot be \"" + kit.Title +
                         "\"; choose a name without slashes, dots and control characters.");
    }
}

// What holds for kit files and photos.
void SettleKitFiles(const KitOptions& kit) {
    const auto isKit = [](const std::string& word) { return IsKitName(word); };
    if (!kit.KitPhoto.empty() && (kit.Photos.size() > 1 || !isKit(kit.Photos.front()))) {
        throw UsageError("--photo names the photo of one kit file. Name one with it.");
    }
    if (kit.FromGrid && std::ranges::any_of(kit.Photos, isKit)) {
        throw UsageError("--from-grid is for photos; a kit file has its own grid.");
    }
}

void SettleOwned(const KitOptions& kit) {
    if (kit.OwnedOnly && (kit.Template || !kit.Sets.empty() || kit.BuyingNamed)) {
        throw UsageError(
            "--owned allows your own paints alone. Leave out --sets, --template, --owned-first and "
            "--buy-at-most.");
    }
    if (kit.Chosen.Buying.Asked && kit.Chosen.Match == Matching::Plain) {
        throw UsageError("What is owned goes first by eye alone. Leave out --match plain.");
    }
}

Arguments ParseKit(std::span<const std::string_view> words, KitOptions base = {}) {
    Arguments arguments{Command::Kit, std::move(base), {}, false, {}};
    KitOptions& kit = arguments.Kit;
    kit.Words.assign(words.begin(), words.end());
    CLI::App app;
    AddKitOptions(app, kit);
    if (AsksForHelp(app, words, "vendrel kit --help")) {
        return {Command::KitHelp, {}, {}, false, {}};
    }
    if (kit.Photos.empty()) {
        throw UsageError("Name at least one photo, as in \"vendrel kit PBNLady.bmp\".");
    }
    kit.SettingWords = SettingsIn(app, words);
    SettleKit(kit);
    SettleKitFiles(kit);
    if (kit.Template && !kit.Sets.empty()) {
        throw UsageError("Choose paints by --sets or by --template, not by both.");
    }
    SettleOwned(kit);
    return arguments;
}

// The commands whose one option is the folder.
Arguments ParseFolder(Command command, std::span<const std::string_view> words) {
    Arguments arguments{command, {}, ".", false, {}};
    bool version = false;
    CLI::App app;
    AddText(app, {"--folder", "DIR", ""}, arguments.Folder);
    if (command == Command::Window) {
        AddSwitch(app, {"--version", "", ""}, version);
        AddSwitch(app, {"--documents", "", ""}, arguments.InDocuments);
    }
    std::filesystem::path* const file = command == Command::Window ? &arguments.File : nullptr;
    if (AsksForHelp(app, words, "vendrel --help", file)) {
        return {Command::Help, {}, {}, false, {}};
    }
    if (arguments.InDocuments && arguments.Folder != ".") {
        throw UsageError("Choose the folder by --folder or by --documents, not by both.");
    }
    return version ? Arguments{Command::Version, {}, {}, false, {}} : arguments;
}

Arguments ParsePaints(std::span<const std::string_view> words) {
    Arguments arguments{Command::Paints, {}, {}, false, {}};
    CLI::App app;
    AddPaintsOptions(app, arguments.Paints);
    if (AsksForHelp(app, words, "vendrel paints --help")) {
        return {Command::PaintsHelp, {}, {}, false, {}};
    }
    RequireOneTask(arguments.Paints);
    return arguments;
}

Arguments ParseShop(std::span<const std::string_view> words) {
    Arguments arguments{Command::Shop, {}, {}, false, {}};
    CLI::App app;
    AddShopOptions(app, arguments.Shop);
    if (AsksForHelp(app, words, "vendrel shop --help")) {
        return {Command::ShopHelp, {}, {}, false, {}};
    }
    RequireOneTask(arguments.Shop);
    return arguments;
}

}  // namespace

Arguments ParseArguments(std::span<const std::string_view> words) {
    const std::string_view command = words.empty() ? "" : words.front();
    if (command == "kit") {
        return ParseKit(words.subspan(1));
    }
    if (command == "paints") {
        return ParsePaints(words.subspan(1));
    }
    if (command == "shop") {
        return ParseShop(words.subspan(1));
    }
    if (command == "symbols") {
        return ParseFolder(Command::Symbols, words.subspan(1));
    }
    if (command == "help") {
        return {Command::Help, {}, {}, false, {}};
    }
    return ParseFolder(Command::Window, words);
}

KitOptions OptionsOver(const KitOptions& given, std::shared_ptr<const KitFile> kit) {
    KitOptions base;
    base.From = std::move(kit);
    base.Chosen = base.From->Chosen;
    base.Plan = base.From->Print;
    base.Screen = base.From->Board;
    const std::vector<std::string_view> words(given.Words.begin(), given.Words.end());
    return ParseKit(words, std::move(base)).Kit;
}

KitOptions OptionsLike(const KitOptions& given, const KitFile& kit) {
    KitOptions base;
    base.Chosen = kit.Chosen;
    base.Chosen.FinalPaints =
        kit.Chosen.FinalPaints == 0 ? kit.FinalColors : kit.Chosen.FinalPaints;
    base.Plan = kit.Print;
    base.Screen = kit.Board;
    if (given.Sets.empty() && !given.Template && !given.OwnedOnly) {
        base.Sets = kit.Source.Sets;
        base.Template =
            kit.Source.Template.empty() ? std::nullopt : std::optional(kit.Source.Template);
    }
    const std::vector<std::string_view> words(given.Words.begin(), given.Words.end());
    KitOptions options = ParseKit(words, std::move(base)).Kit;
    options.Like.clear();
    return options;
}

}  // namespace vendrel
