#include "kit/arguments.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

constexpr std::string_view kHelp =
    R"(Vendrel turns a photograph into a paint-by-symbol kit.

  vendrel [--folder DIR] opens the window
  vendrel kit PHOTO...   makes kits; "vendrel kit --help" lists the settings
  vendrel symbols [--folder DIR]
                         draws the symbols anew into Data/Symbols.txt
  vendrel --help         shows this text
  vendrel --version      shows the version

Try: vendrel kit PBNLady.bmp
)";

constexpr std::string_view kKitHelp =
    R"(vendrel kit PHOTO... makes a paint-by-symbol kit of each photo.

PHOTO is a path to a photo or the name of one in Pictures. JPEG, PNG, WebP, TIFF
and GIF photos are kept in Pictures as .bmp (not in builds without windows).

  --folder DIR               works in DIR instead of the folder it is started in
  --difficulty LEVEL         easy (default), medium or difficult
  --final-paints N           16, 32, 40 or 50 (default) paints at most
  --sample METHOD            average (default) or pixel
  --sets NAME                allows this paint set; may be repeated
  --template NAME            allows the paints of templates/NAME.csv
  --screen WIDTHxHEIGHT      sizes the picture for this screen (default 1920x1080)
  --crop [PART]              instead of stretching the photo, cuts off what does not
                             fit the sheet; keeps the centre (default) or the top
  --outputs LIST             of @OUTPUTS@
                             (@DEFAULT@ unless given)
  --paper SIZE               prints the pdf on A4 (default), Letter or A3
  --canvas WIDTHcm           prints the pdf for a canvas this wide, as in 60cm;
                             auto (default) fills the pages that legible
                             symbols need
  --from-grid                takes the saved grid instead of converting the photo
  --replace-grid             writes over a saved grid that differs
  --json                     prints one JSON object per photo
  --quiet                    prints nothing but errors

Without --sets and --template the paints are those of Data/paintlist.txt.
Pictures and pdf files go to Results, grids to "Saved Stipples"; the list of a
kit in Results has their SHA-256 sums.
)";

// The words of a command line, taken one by one. "--name=value" and "--name value" are the same.
class Words {
  public:
    explicit Words(std::span<const std::string_view> words) : words_(words) {}

    bool Next() {
        if (at_ == words_.size()) {
            return false;
        }
        word_ = words_[at_++];
        value_.reset();
        const bool isOption = !onlyPhotos_ && word_.starts_with("--");
        if (const auto equals = word_.find('='); isOption && equals != word_.npos) {
            value_ = word_.substr(equals + 1);
            word_ = word_.substr(0, equals);
        }
        if (isOption && word_ == "--") {
            onlyPhotos_ = true;
            return Next();
        }
        return true;
    }
    [[nodiscard]] std::string_view Word() const { return word_; }
    [[nodiscard]] bool IsOption() const {
        return !onlyPhotos_ && word_.size() > 1 && word_.front() == '-';
    }
    /// Takes the next word when it is this one: a value that may be left out.
    bool TakeIfNext(std::string_view word) {
        const bool isNext = at_ < words_.size() && words_[at_] == word;
        at_ += isNext ? 1 : 0;
        return isNext;
    }
    [[nodiscard]] bool HasOwnValue() const { return value_.has_value(); }
    /// The value of the option just taken.
    [[nodiscard]] std::string_view Value() {
        if (!value_) {
            if (at_ == words_.size()) {
                throw UsageError(std::string(word_) + " needs a value behind it.");
            }
            value_ = words_[at_++];
        }
        if (value_->empty()) {
            throw UsageError(std::string(word_) + " needs a value that is not empty.");
        }
        return *value_;
    }

  private:
    std::span<const std::string_view> words_;
    std::size_t at_ = 0;
    std::string_view word_;
    std::optional<std::string_view> value_;
    bool onlyPhotos_ = false;
};

[[noreturn]] void RefuseValue(std::string_view option, std::string_view value,
                              std::string_view choices) {
    throw UsageError(std::string(option) + " cannot be \"" + std::string(value) + "\"; choose " +
                     std::string(choices) + ".");
}

[[nodiscard]] std::optional<int> ToInt(std::string_view text) {
    int number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc{} || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return number;
}

MenuId ToDifficulty(std::string_view value) {
    if (value == "easy") {
        return MenuId::EasySet;
    }
    if (value == "medium") {
        return MenuId::MediumSet;
    }
    if (value == "difficult") {
        return MenuId::HardSet;
    }
    RefuseValue("--difficulty", value, "easy, medium or difficult");
}

int ToFinalPaints(std::string_view value) {
    const int paints = ToInt(value).value_or(0);
    if (paints != 16 && paints != 32 && paints != 40 && paints != 50) {
        RefuseValue("--final-paints", value, "16, 32, 40 or 50");
    }
    return paints;
}

bool ToSamplePixel(std::string_view value) {
    if (value != "average" && value != "pixel") {
        RefuseValue("--sample", value, "average or pixel");
    }
    return value == "pixel";
}

ScreenSize ToScreen(std::string_view value) {
    constexpr int kLargest = 32767;
    const auto cross = std::min(value.find('x'), value.size());
    const int width = ToInt(value.substr(0, cross)).value_or(0);
    const int height = cross < value.size() ? ToInt(value.substr(cross + 1)).value_or(0) : 0;
    if (std::min(width, height) < 1 || std::max(width, height) > kLargest) {
        RefuseValue("--screen", value, "WIDTHxHEIGHT in pixels, as in 1920x1080");
    }
    return ScreenSize::FromPixels(width, height);
}

KitOutputs ToOutputs(std::string_view value) {
    KitOutputs outputs{.Chosen = {}, .ByName = true};
    while (!value.empty()) {
        const auto comma = std::min(value.find(','), value.size());
        const std::string_view name = value.substr(0, comma);
        const Output* const output = OutputNamed(name);
        if (output == nullptr) {
            RefuseValue("--outputs", name,
                        "from " + OutputWords(", ", IsOutput) + ", with commas between");
        }
        outputs.Chosen.Add(output->Id);
        value.remove_prefix(std::min(comma + 1, value.size()));
    }
    return outputs;
}

Paper ToPaper(std::string_view value) {
    for (const auto& [name, paper] :
         {std::pair{"A4", Paper::A4}, {"Letter", Paper::Letter}, {"A3", Paper::A3}}) {
        if (SameIgnoringCase(value, name)) {
            return paper;
        }
    }
    RefuseValue("--paper", value, "A4, Letter or A3");
}

// "60cm" or "60.5", within what can be painted; "auto" is 0.
double ToCanvasCm(std::string_view value) {
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
        RefuseValue("--canvas", value, "a width from 10cm to 300cm, or auto");
    }
    return width;
}

CropPart ToCropPart(Words& words) {
    if (!words.HasOwnValue()) {
        if (words.TakeIfNext("top")) {
            return CropPart::Top;
        }
        words.TakeIfNext("centre");
        return CropPart::Centre;
    }
    if (words.Value() != "centre" && words.Value() != "top") {
        RefuseValue("--crop", words.Value(), "centre or top");
    }
    return words.Value() == "top" ? CropPart::Top : CropPart::Centre;
}

// Options that take no value; answers whether this was one.
bool TakeSwitch(Words& words, KitOptions& kit) {
    bool* const target = words.Word() == "--json"           ? &kit.Json
                         : words.Word() == "--quiet"        ? &kit.Quiet
                         : words.Word() == "--from-grid"    ? &kit.FromGrid
                         : words.Word() == "--replace-grid" ? &kit.ReplaceGrid
                                                            : nullptr;
    if (target == nullptr) {
        return false;
    }
    if (words.HasOwnValue()) {
        throw UsageError(std::string(words.Word()) + " takes no value.");
    }
    *target = true;
    return true;
}

[[noreturn]] void RefuseOption(std::string_view option, std::string_view help) {
    throw UsageError("There is no option " + std::string(option) + ". \"" + std::string(help) +
                     "\" lists them.");
}

void TakeKitOption(Words& words, KitOptions& kit) {
    const std::string_view option = words.Word();
    if (TakeSwitch(words, kit)) {
        return;
    }
    if (option == "--folder") {
        kit.Folder = words.Value();
    } else if (option == "--difficulty") {
        kit.Difficulty = ToDifficulty(words.Value());
    } else if (option == "--final-paints") {
        kit.FinalPaints = ToFinalPaints(words.Value());
    } else if (option == "--sample") {
        kit.SamplePixel = ToSamplePixel(words.Value());
    } else if (option == "--sets") {
        kit.Sets.emplace_back(words.Value());
    } else if (option == "--template") {
        kit.Template = words.Value();
    } else if (option == "--crop") {
        kit.Crop = ToCropPart(words);
    } else if (option == "--screen") {
        kit.Screen = ToScreen(words.Value());
    } else if (option == "--outputs") {
        kit.Outputs = ToOutputs(words.Value());
    } else if (option == "--paper") {
        kit.Plan.Sheet = ToPaper(words.Value());
    } else if (option == "--canvas") {
        kit.Plan.CanvasCm = ToCanvasCm(words.Value());
    } else {
        RefuseOption(option, "vendrel kit --help");
    }
}

Arguments ParseKit(Words& words) {
    Arguments arguments{Command::Kit, {}, {}};
    KitOptions& kit = arguments.Kit;
    while (words.Next()) {
        if (!words.IsOption()) {
            kit.Photos.emplace_back(words.Word());
        } else if (words.Word() == "--help" || words.Word() == "-h") {
            return {Command::KitHelp, {}, {}};
        } else {
            TakeKitOption(words, kit);
        }
    }
    if (kit.Photos.empty()) {
        throw UsageError("Name at least one photo, as in \"vendrel kit PBNLady.bmp\".");
    }
    if (kit.Template && !kit.Sets.empty()) {
        throw UsageError("Choose paints by --sets or by --template, not by both.");
    }
    return arguments;
}

// The commands whose one option is the folder; the words begin at the option.
Arguments ParseFolder(Command command, Words& words) {
    Arguments arguments{command, {}, "."};
    do {
        if (words.Word() == "--help" || words.Word() == "-h") {
            return {Command::Help, {}, {}};
        }
        if (words.Word() != "--folder") {
            RefuseOption(words.Word(), "vendrel --help");
        }
        arguments.Folder = words.Value();
    } while (words.Next());
    return arguments;
}

}  // namespace

Arguments ParseArguments(std::span<const std::string_view> given) {
    Words words(given);
    if (!words.Next()) {
        return {};
    }
    const std::string_view command = words.Word();
    if (command == "kit") {
        return ParseKit(words);
    }
    if (command == "symbols") {
        return words.Next() ? ParseFolder(Command::Symbols, words)
                            : Arguments{Command::Symbols, {}, "."};
    }
    if (command == "--folder") {
        return ParseFolder(Command::Window, words);
    }
    if (command == "--help" || command == "-h" || command == "help") {
        return {Command::Help, {}, {}};
    }
    if (command == "--version") {
        return {Command::Version, {}, {}};
    }
    throw UsageError("\"" + std::string(command) +
                     "\" is nothing that Vendrel does. \"vendrel --help\" lists what it does.");
}

std::string_view HelpText() {
    return kHelp;
}

std::string KitHelpText() {
    std::string text(kKitHelp);
    for (const auto& [name, words] : {std::pair{"@OUTPUTS@", OutputWords(",", IsOutput)},
                                      {"@DEFAULT@", OutputWords(",", IsByDefault)}}) {
        text.replace(text.find(name), std::string_view(name).size(), words);
    }
    return text;
}

}  // namespace vendrel
