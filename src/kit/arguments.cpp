#include "kit/arguments.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "convert/picture_name.h"
#include "kit/option_kinds.h"
#include "kit/print_options.h"
#include "kitfile/kit_places.h"
#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

constexpr std::string_view kHelp =
    R"(Vendrel turns a photograph into a paint-by-symbol kit.

  vendrel [--folder DIR] opens the window
  vendrel --documents    opens it in the folder Vendrel of your documents
  vendrel FILE           opens a kit or a photo in it
  vendrel kit PHOTO...   makes kits; "vendrel kit --help" lists the settings
  vendrel batch ORDERS   makes the kits of a list of orders or of a folder;
                         "vendrel batch --help" says how
  vendrel paints         lists paints, your own and a kit's missing ones, and
                         imports yours; "vendrel paints --help" says how
  vendrel shop KIT...    lists what kits ask you to buy; "vendrel shop --help"
  vendrel symbols [--folder DIR]
                         draws the symbols anew into Data/Symbols.txt
  vendrel --help         shows this text
  vendrel --version      shows the version

Try: vendrel kit PBNLady.bmp
)";

constexpr const char* kKitHead =
    R"(vendrel kit PHOTO... makes a paint-by-symbol kit of each photo.

PHOTO is a path to a photo or the name of one in Pictures. JPEG, PNG, WebP, TIFF
and GIF photos are kept in Pictures as .bmp (not in builds without windows).
A kit file, as in beach.kit, is made again byte for byte; with other settings it
becomes another kit, which needs a --title.
)";

constexpr const char* kKitFoot =
    R"(Without --sets and --template the paints are those of Data/paintlist.txt.
Pictures and pdf files go to Results, grids to "Saved Stipples"; the list of a
kit in Results has their SHA-256 sums.)";

constexpr const char* kPaintsHead =
    R"(vendrel paints lists all paints, with the labels of those that you own.
)";

constexpr const char* kShopHead =
    R"(vendrel shop KIT... lists the paints that kit files need beyond what you own.
)";

// What "vendrel kit --help" prints: the head, the options in two columns, the foot.
class KitHelp : public CLI::Formatter {
  public:
    KitHelp() { column_width(kDescriptionColumn); }

    std::string make_help(const CLI::App* app, std::string /*name*/,
                          CLI::AppFormatMode /*mode*/) const override {
        std::string text = app->get_description() + "\n";
        for (const CLI::Option* option :
             app->get_options([](const CLI::Option* o) { return !o->get_description().empty(); })) {
            text += make_option(option, false);
        }
        return text + "\n" + make_footer(app);
    }

  private:
    static constexpr std::size_t kDescriptionColumn = 29;
};

constexpr auto kLevels = [] {
    std::array<Choice<Difficulty>, kDifficulties.size()> levels{};
    std::ranges::transform(kDifficulties, levels.begin(), [](const DifficultyTraits& traits) {
        return Choice<Difficulty>{traits.Option, traits.Level};
    });
    return levels;
}();
constexpr auto kPaintCounts =
    std::to_array<Choice<int>>({{"16", 16}, {"32", 32}, {"40", 40}, {"50", 50}});
constexpr auto kSampleMethods =
    std::to_array<Choice<Sampling>>({{"average", Sampling::Average}, {"pixel", Sampling::Pixel}});
constexpr auto kMatchings =
    std::to_array<Choice<Matching>>({{"plain", Matching::Plain}, {"eye", Matching::ByEye}});
constexpr auto kFits = std::to_array<Choice<PhotoFit>>({{"keep", PhotoFit::Keep},
                                                        {"crop", PhotoFit::Crop},
                                                        {"top", PhotoFit::CropTop},
                                                        {"stretch", PhotoFit::Stretch}});
constexpr auto kCropParts =
    std::to_array<Choice<PhotoFit>>({{"center", PhotoFit::Crop}, {"top", PhotoFit::CropTop}});

// Some spell it so.
std::string_view American(std::string_view part) {
    return part == "centre" ? "center" : part;
}

[[nodiscard]] int ToInt(std::string_view text) {
    int number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failure == std::errc{} && end == text.data() + text.size() ? number : 0;
}

ScreenSize ToScreen(const std::string& option, std::string_view value) {
    constexpr int kLargest = 32767;
    const auto cross = std::min(value.find('x'), value.size());
    const int width = ToInt(value.substr(0, cross));
    const int height = cross < value.size() ? ToInt(value.substr(cross + 1)) : 0;
    if (std::min(width, height) < 1 || std::max(width, height) > kLargest) {
        RefuseValue(option, value, "WIDTHxHEIGHT in pixels, as in 1920x1080");
    }
    return ScreenSize::FromPixels(width, height);
}

void AddHelp(CLI::App& app) {
    app.set_help_flag();  // the library's own would look at wrong values first
    app.add_flag_callback("-h,--help", [] { throw CLI::CallForHelp(); })->trigger_on_parse();
}

constexpr Measure kWorths{"", 0, kLargestWorth, "a number from 0 to 20, as in 0.05"};
constexpr Measure kPaintsToBuy{"", 0, kMostToBuy, "a whole number from 0 to 50"};

// What is owned goes first, matched by eye.
template <typename Number>
void AddBuying(CLI::App& app, const OptionText& text, const Measure& measure, KitOptions& kit,
               Number& target) {
    AddValue(app, text,
             [&kit, &target, measure](const std::string& option, const std::string& value) {
                 target = static_cast<Number>(ToNumber(option, value, measure));
                 kit.Chosen.Buying.Asked = true;
                 kit.BuyingNamed = true;
                 kit.MatchByEye = true;
             });
}

void AddOwnedOptions(CLI::App& app, KitOptions& kit) {
    AddSwitch(app, {"--owned", "", "allows your own paints alone (see \"vendrel paints\")"},
              kit.OwnedOnly);
    AddBuying(
        app,
        {"--owned-first", "X",
         "allows them too, and others only where they lower the\nmean seen difference by more "
         "than X (0.05), by eye"},
        kWorths, kit, kit.Chosen.Buying.Worth);
    AddBuying(app, {"--buy-at-most", "N", "the same with at most N paints to buy"}, kPaintsToBuy,
              kit, kit.Chosen.Buying.MostToBuy);
}

void AddPaintOptions(CLI::App& app, KitOptions& kit) {
    AddText(app, {"--folder", "DIR", "works in DIR instead of the folder it is started in"},
            kit.Folder);
    AddChoice(app, {"--difficulty", "LEVEL", "easy (default), medium or difficult"}, kLevels,
              kit.Chosen.Level);
    AddChoice(app, {"--final-paints", "N", "16, 32, 40 or 50 (default) paints at most"},
              kPaintCounts, kit.Chosen.FinalPaints);
    AddChoice(app, {"--sample", "METHOD", "average (default) or pixel"}, kSampleMethods,
              kit.Chosen.Sample);
    AddValue(app, {"--sets", "NAME", "allows this paint set; may be repeated"},
             [&kit](const std::string&, const std::string& set) { kit.Sets.push_back(set); });
    AddText(app, {"--template", "NAME", "allows the paints of templates/NAME.csv"}, kit.Template);
    AddOwnedOptions(app, kit);
}

void AddPictureOptions(CLI::App& app, KitOptions& kit) {
    AddValue(app,
             {"--screen", "WIDTHxHEIGHT", "sizes the picture for this screen (default 1920x1080)"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Screen = ToScreen(option, value);
             });
    AddChoice(app,
              {"--fit", "WAY",
               "a photo that does not fit the sheet can keep (default)\n"
               "its shape, lose what is too much (crop round the center,\n"
               "or keep its top) or stretch"},
              kFits, kit.Chosen.Fit);
    AddValue(app,
             {"--crop", "[PART]",
              "another word for --fit crop; keeps the center (default)\n"
              "or the top"},
             [](const std::string&, const std::string&) {});  // always replaced by --fit
}

// An option that makes kits paintable; its value is a number that goes to `target`.
template <typename Number>
void AddLimit(CLI::App& app, const OptionText& text, const Measure& measure, KitOptions& kit,
              Number& target) {
    AddValue(app, text,
             [&kit, &target, measure](const std::string& option, const std::string& value) {
                 kit.Chosen.Paintable = true;
                 target = static_cast<Number>(ToNumber(option, value, measure));
             });
}

void AddPaintableOptions(CLI::App& app, KitOptions& kit) {
    app.add_flag_callback(
           "--paintable",
           [&kit] {
               kit.Chosen.Paintable = true;
               kit.MatchByEye = true;
           },
           "makes kits that a brush can paint: matched by eye, no\narea below the limits; the four "
           "options below and\n--canvas change what that means")
        ->disable_flag_override();
    AddValue(app, {"--match", "WAY", "matches paints plain (default) or by eye"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Match = Chosen(option, value, kMatchings);
             });
    AddLimit(app, {"--smallest", "MM2", "no area below this (25 square millimeters)"},
             {"mm2", 0, 10000, "square millimeters from 0 to 10000, as in 25"}, kit,
             kit.Chosen.Limits.SmallestMm2);
    AddLimit(app, {"--narrowest", "MM", "a disc this wide fits into every area (2 millimeters)"},
             {"mm", 0, 100, "millimeters from 0 to 100, as in 2"}, kit,
             kit.Chosen.Limits.NarrowestMm);
    AddLimit(app,
             {"--detail", "N",
              "0 to 100 (50): the more, the more small areas grow\n"
              "instead of joining a neighbor"},
             {"", 0, kMostDetail, "a whole number from 0 to 100"}, kit, kit.Chosen.Detail);
}

void AddRunOptions(CLI::App& app, KitOptions& kit) {
    AddSwitch(app,
              {"--save-kit", "", "keeps the kit as a file in Kits, to be opened or made again"},
              kit.SaveKit);
    AddText(app, {"--like", "KIT", "takes the settings of a kit file where nothing else is said"},
            kit.Like);
    AddText(app, {"--photo", "FILE", "is the photo of a kit file, where it is not in Pictures"},
            kit.KitPhoto);
    AddSwitch(app, {"--from-grid", "", "takes the saved grid instead of converting the photo"},
              kit.FromGrid);
    AddSwitch(app, {"--replace-grid", "", "writes over a saved grid that differs"},
              kit.ReplaceGrid);
    AddSwitch(app, {"--figures", "", "compares the painting with the photo"}, kit.Figures);
    AddSwitch(app, {"--json", "", "prints one JSON object per photo"}, kit.Json);
    app.add_flag_callback(
           "--no-compare", [&kit] { kit.Compared = false; },
           "leaves the comparison with the photo out of it")
        ->disable_flag_override();
    AddSwitch(app, {"--needs", "", "adds to it what every paint is needed for"}, kit.Needs);
    AddValue(app, {"--jobs", "N", "makes so many kits side by side (1)"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Jobs = static_cast<int>(
                     ToNumber(option, value, {"", 1, 256, "a whole number from 1 to 256"}));
             });
    AddSwitch(app, {"--quiet", "", "prints nothing but errors"}, kit.Quiet);
}

void AddKit(CLI::App& app, KitOptions& kit) {
    AddPaintOptions(app, kit);
    AddPictureOptions(app, kit);
    AddPaintableOptions(app, kit);
    AddPrintOptions(app, kit);
    AddRunOptions(app, kit);
    app.add_option("PHOTO", kit.Photos);
}

// The word for --fit that --crop stands for, so that the last of both counts. A part behind it
// belongs to it; any other word there is a photo.
std::string CropWord(std::string_view word, std::span<const std::string_view>& rest) {
    std::string_view part = word.substr(std::min(word.size(), word.find('=') + 1));
    if (word == "--crop") {
        part = kCropParts.front().Word;
        if (!rest.empty() && FindChoice(kCropParts, American(rest.front())) != nullptr) {
            part = rest.front();
            rest = rest.subspan(1);
        }
    }
    const PhotoFit fit = Chosen("--crop", American(part), kCropParts);
    return "--fit=" + std::string(std::ranges::find(kFits, fit, &Choice<PhotoFit>::Meaning)->Word);
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
    if (!kit.From || kit.CanvasNamed) {
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
    AddKit(app, kit);
    if (AsksForHelp(app, words, "vendrel kit --help")) {
        return {Command::KitHelp, {}, {}, false, {}};
    }
    if (kit.Photos.empty()) {
        throw UsageError("Name at least one photo, as in \"vendrel kit PBNLady.bmp\".");
    }
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

KitOptions OptionsLike(const KitOptions& given) {
    const KitFile kit = ReadKitFile(given.Like);
    KitOptions base;
    base.Chosen = kit.Chosen;
    base.Chosen.FinalPaints =
        kit.Chosen.FinalPaints == 0 ? kit.FinalColors : kit.Chosen.FinalPaints;
    base.Plan = kit.Print;
    base.Screen = kit.Board;
    if (given.Sets.empty() && !given.Template) {
        base.Sets = kit.Source.Sets;
        base.Template =
            kit.Source.Template.empty() ? std::nullopt : std::optional(kit.Source.Template);
    }
    const std::vector<std::string_view> words(given.Words.begin(), given.Words.end());
    KitOptions options = ParseKit(words, std::move(base)).Kit;
    options.Like.clear();
    return options;
}

std::string_view HelpText() {
    return kHelp;
}

std::string KitHelpText() {
    KitOptions kit;
    CLI::App app(kKitHead);
    app.set_help_flag();  // not listed
    app.footer(kKitFoot);
    app.formatter(std::make_shared<KitHelp>());
    AddKit(app, kit);
    return app.help();
}

std::string PaintsHelpText() {
    PaintsOptions paints;
    CLI::App app(kPaintsHead);
    app.set_help_flag();
    app.footer("Your paints are kept in Data/mypaints.csv, other catalogues in Data/catalogues.");
    app.formatter(std::make_shared<KitHelp>());
    AddPaintsOptions(app, paints);
    return app.help();
}

std::string ShopHelpText() {
    ShopOptions shop;
    CLI::App app(kShopHead);
    app.set_help_flag();
    app.footer("Paints of yours whose amount nobody measured are taken to be enough.");
    app.formatter(std::make_shared<KitHelp>());
    AddShopOptions(app, shop);
    return app.help();
}

}  // namespace vendrel
