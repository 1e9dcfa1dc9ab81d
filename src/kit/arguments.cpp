#include "kit/arguments.h"

#include <CLI/CLI.hpp>  // here alone: it takes seconds to compile
#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

constexpr std::string_view kHelp =
    R"(Vendrel turns a photograph into a paint-by-symbol kit.

  vendrel [--folder DIR] opens the window
  vendrel --documents    opens it in the folder Vendrel of your documents
  vendrel kit PHOTO...   makes kits; "vendrel kit --help" lists the settings
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
)";

constexpr const char* kKitFoot =
    R"(Without --sets and --template the paints are those of Data/paintlist.txt.
Pictures and pdf files go to Results, grids to "Saved Stipples"; the list of a
kit in Results has their SHA-256 sums.)";

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

template <typename Value>
struct Choice {
    std::string_view Word;
    Value Meaning;
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
constexpr auto kPapers =
    std::to_array<Choice<Paper>>({{"A4", Paper::A4}, {"Letter", Paper::Letter}, {"A3", Paper::A3}});
constexpr auto kCropParts =
    std::to_array<Choice<CropPart>>({{"center", CropPart::Centre}, {"top", CropPart::Top}});

[[noreturn]] void RefuseValue(std::string_view option, std::string_view value,
                              std::string_view choices) {
    throw UsageError(std::string(option) + " cannot be \"" + std::string(value) + "\"; choose " +
                     std::string(choices) + ".");
}

// "easy, medium or difficult"
template <typename Choices>
std::string Listed(const Choices& choices, std::string_view last) {
    std::string list;
    for (const auto& choice : choices) {
        list += list.empty() ? "" : &choice == &choices.back() ? last : ", ";
        list += choice.Word;
    }
    return list;
}

template <typename Choices>
const auto* FindChoice(const Choices& choices, std::string_view word) {
    const auto found = std::ranges::find_if(
        choices, [word](const auto& choice) { return SameIgnoringCase(choice.Word, word); });
    return found == choices.end() ? nullptr : &found->Meaning;
}

template <typename Choices>
auto Chosen(std::string_view option, std::string_view value, const Choices& choices) {
    const auto* const choice = FindChoice(choices, value);
    if (choice == nullptr) {
        RefuseValue(option, value, Listed(choices, " or "));
    }
    return *choice;
}

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

KitOutputs ToOutputs(const std::string& option, const std::string& value) {
    KitOutputs outputs{.Chosen = {}, .ByName = true};
    for (const std::string& name : CLI::detail::split(value, ',')) {
        const Output* const output = OutputNamed(ToLower(name));
        if (output == nullptr) {
            RefuseValue(option, name,
                        "from " + OutputWords(", ", IsOutput) + ", with commas between");
        }
        outputs.Chosen.Add(output->Id);
    }
    return outputs;
}

// "60cm" or "60.5", within what can be painted; "auto" is 0.
double ToCanvasCm(const std::string& option, std::string_view value) {
    if (value == "auto") {
        return 0;
    }
    const std::string_view number =
        value.ends_with("cm") ? value.substr(0, value.size() - 2) : value;
    double width = 0;
    const auto [end, failure] =
        std::from_chars(number.data(), number.data() + number.size(), width);
    if (failure != std::errc() || end != number.data() + number.size() ||
        !(width >= kSmallestCanvasCm && width <= kLargestCanvasCm)) {
        RefuseValue(option, value, "a width from 10cm to 300cm, or auto");
    }
    return width;
}

struct OptionText {
    std::string Name;
    std::string Value;  // as the help calls it
    std::string Does;   // nothing: left out of the help
};

// An option with one value, handed to `take` with the option's name; the last one given counts.
template <typename Take>
void AddValue(CLI::App& app, const OptionText& text, Take take) {
    const auto takeEach = [name = text.Name, take](const CLI::results_t& values) {
        for (const std::string& value : values) {
            if (value.empty()) {
                throw UsageError(name + " needs a value that is not empty.");
            }
            take(name, value);
        }
        return true;
    };
    app.add_option(text.Name, takeEach, text.Does)->option_text(text.Value)->take_all();
}

template <typename Choices, typename Value>
void AddChoice(CLI::App& app, const OptionText& text, const Choices& choices, Value& target) {
    AddValue(app, text, [&](const std::string& option, const std::string& value) {
        target = Chosen(option, value, choices);
    });
}

template <typename Text>
void AddText(CLI::App& app, const OptionText& text, Text& target) {
    AddValue(app, text,
             [&target](const std::string&, const std::string& value) { target = value; });
}

void AddSwitch(CLI::App& app, const OptionText& text, bool& target) {
    app.add_flag(text.Name, target, text.Does)->disable_flag_override();
}

void AddHelp(CLI::App& app) {
    app.set_help_flag();  // the library's own would look at wrong values first
    app.add_flag_callback("-h,--help", [] { throw CLI::CallForHelp(); })->trigger_on_parse();
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
}

void AddPictureOptions(CLI::App& app, KitOptions& kit) {
    AddValue(app,
             {"--screen", "WIDTHxHEIGHT", "sizes the picture for this screen (default 1920x1080)"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Screen = ToScreen(option, value);
             });
    AddValue(app,
             {"--crop", "[PART]",
              "instead of stretching the photo, cuts off what does not\n"
              "fit the sheet; keeps the center (default) or the top"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Crop = Chosen(option, American(value), kCropParts);
             });
}

void AddOutputOptions(CLI::App& app, KitOptions& kit) {
    AddValue(app,
             {"--outputs", "LIST",
              "of " + OutputWords(",", IsOutput) + "\n(" + OutputWords(",", IsByDefault) +
                  " unless given)"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Outputs = ToOutputs(option, value);
             });
    AddChoice(app, {"--paper", "SIZE", "prints the pdf on A4 (default), Letter or A3"}, kPapers,
              kit.Plan.Sheet);
    AddValue(app,
             {"--canvas", "WIDTHcm",
              "prints the pdf for a canvas this wide, as in 60cm;\n"
              "auto (default) fills the pages that legible\nsymbols need"},
             [&kit](const std::string& option, const std::string& value) {
                 kit.Plan.CanvasCm = ToCanvasCm(option, value);
             });
}

void AddRunOptions(CLI::App& app, KitOptions& kit) {
    AddSwitch(app, {"--from-grid", "", "takes the saved grid instead of converting the photo"},
              kit.FromGrid);
    AddSwitch(app, {"--replace-grid", "", "writes over a saved grid that differs"},
              kit.ReplaceGrid);
    AddSwitch(app, {"--json", "", "prints one JSON object per photo"}, kit.Json);
    AddSwitch(app, {"--quiet", "", "prints nothing but errors"}, kit.Quiet);
}

void AddKit(CLI::App& app, KitOptions& kit) {
    AddPaintOptions(app, kit);
    AddPictureOptions(app, kit);
    AddOutputOptions(app, kit);
    AddRunOptions(app, kit);
    app.add_option("PHOTO", kit.Photos);
}

// A part behind --crop belongs to it; any other word there is a photo.
std::string CropWord(std::span<const std::string_view>& rest) {
    std::string_view part = kCropParts.front().Word;
    if (!rest.empty() && FindChoice(kCropParts, American(rest.front())) != nullptr) {
        part = rest.front();
        rest = rest.subspan(1);
    }
    return "--crop=" + std::string(part);
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
        prepared.push_back(word == "--crop" ? CropWord(words) : std::string(word));
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

// Answers whether the words ask for help instead.
bool AsksForHelp(CLI::App& app, std::span<const std::string_view> words, const std::string& help) {
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
        if (word != "--") {
            RefuseWord(word, help);
        }
    }
    return false;
}

Arguments ParseKit(std::span<const std::string_view> words) {
    Arguments arguments{Command::Kit, {}, {}};
    KitOptions& kit = arguments.Kit;
    CLI::App app;
    AddKit(app, kit);
    if (AsksForHelp(app, words, "vendrel kit --help")) {
        return {Command::KitHelp, {}, {}};
    }
    if (kit.Photos.empty()) {
        throw UsageError("Name at least one photo, as in \"vendrel kit PBNLady.bmp\".");
    }
    if (kit.Template && !kit.Sets.empty()) {
        throw UsageError("Choose paints by --sets or by --template, not by both.");
    }
    return arguments;
}

// The commands whose one option is the folder.
Arguments ParseFolder(Command command, std::span<const std::string_view> words) {
    Arguments arguments{command, {}, "."};
    bool version = false;
    CLI::App app;
    AddText(app, {"--folder", "DIR", ""}, arguments.Folder);
    if (command == Command::Window) {
        AddSwitch(app, {"--version", "", ""}, version);
        AddSwitch(app, {"--documents", "", ""}, arguments.InDocuments);
    }
    if (AsksForHelp(app, words, "vendrel --help")) {
        return {Command::Help, {}, {}};
    }
    if (arguments.InDocuments && arguments.Folder != ".") {
        throw UsageError("Choose the folder by --folder or by --documents, not by both.");
    }
    return version ? Arguments{Command::Version, {}, {}} : arguments;
}

}  // namespace

Arguments ParseArguments(std::span<const std::string_view> words) {
    const std::string_view command = words.empty() ? "" : words.front();
    if (command == "kit") {
        return ParseKit(words.subspan(1));
    }
    if (command == "symbols") {
        return ParseFolder(Command::Symbols, words.subspan(1));
    }
    if (command == "help") {
        return {Command::Help, {}, {}};
    }
    return ParseFolder(Command::Window, words);
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

}  // namespace vendrel
