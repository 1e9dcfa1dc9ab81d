#include <algorithm>

#include "convert/picture_name.h"
#include "kitfile/kit_file.h"
#include "kitfile/kit_paints.h"
#include "kitfile/object_reader.h"
#include "kitfile/packed_values.h"
#include "kitfile/read_edits.h"
#include "kitfile/stipple_middle.h"
#include "shelf/labels.h"
#include "shell/paint_id.h"
#include "shell/work_settings.h"
#include "support/counter.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/placeholders.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t kLargestFile = std::uint64_t{16} * 1024 * 1024;
constexpr int kDeepest = 16;  // objects and lists within one another

int LineAt(const std::string& text, std::size_t byte) {
    const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(byte, text.size()));
    return 1 + static_cast<int>(std::count(text.begin(), end, '\n'));
}

KitJson ParseJson(const std::string& text, const fs::path& file) {
    const auto refuseDeep = [&file](int depth, KitJson::parse_event_t, KitJson&) {
        if (depth > kDeepest) {
            throw FormatError(file, 0, "is no kit file. Restore it.");
        }
        return true;
    };
    try {
        return KitJson::parse(text, refuseDeep);
    } catch (const KitJson::parse_error& error) {
        throw FormatError(file, LineAt(text, error.byte),
                          "here it is no JSON text any more. Restore the file or correct it.");
    } catch (const KitJson::exception&) {
        throw FormatError(file, 0, "a number in it is too large. Restore the file or correct it.");
    }
}

void RequireFormat(ObjectReader& kit, const fs::path& file) {
    const int format = kit.Whole("format", {1, kMaxCounter});
    if (format > kKitFormat) {
        throw FormatError(file, 0,
                          "was made by a later version of Vendrel (kit format " +
                              std::to_string(format) + ", and this one reads up to " +
                              std::to_string(kKitFormat) + "). Open it with that version.");
    }
}

// A name without folders: the file must not lead anywhere else.
std::string ReadName(ObjectReader& object, const char* name) {
    std::string text = object.Words(name);
    const bool plain = !text.empty() && text != "." && text != ".." &&
                       std::ranges::none_of(text, [](char c) { return c == '/' || c == '\0'; });
    if (!plain) {
        object.Refuse(name, "must be a name without folders");
    }
    return text;
}

KitPhoto ReadPhoto(ObjectReader photo) {
    constexpr WholeRange kPixels{1, 1'000'000};
    KitPhoto read{ReadName(photo, "file"), photo.Words("pixelSum"), {}};
    read.Size = {photo.Whole("width", kPixels), photo.Whole("height", kPixels)};
    photo.KeepUnknown();
    return read;
}

KitCrop ReadCrop(ObjectReader crop) {
    constexpr WholeRange kPlaces{0, 1'000'000};
    KitCrop read{ReadName(crop, "of"), crop.Whole("quartersRight", {0, 3}), {}};
    read.Part = {crop.Whole("left", kPlaces), crop.Whole("top", kPlaces),
                 crop.Whole("width", kPlaces), crop.Whole("height", kPlaces)};
    crop.KeepUnknown();
    return read;
}

ScreenSize ReadBoard(ObjectReader board) {
    const ScreenSize read = ScreenSize::FromPixels(board.Whole("width", {1, kMaxCounter}),
                                                   board.Whole("height", {1, kMaxCounter}));
    board.KeepUnknown();
    return read;
}

// 0 stands for none.
double ReadUnlessZero(ObjectReader& object, const char* name, NumberRange range) {
    const double number = object.Number(name, {0, range.Most});
    if (number > 0 && number < range.Least) {
        return object.Number(name, range);
    }
    return number;
}

void ReadSettings(ObjectReader settings, KitFile& kit) {
    Settings& chosen = kit.Chosen;
    chosen.Level = settings.Choice("difficulty", kLevelWords);
    chosen.FinalPaints = settings.Whole("finalPaints", {0, 50});
    if (chosen.FinalPaints != 0 &&
        std::ranges::find(kFinalPaints, chosen.FinalPaints) == kFinalPaints.end()) {
        settings.Refuse("finalPaints", "must be 16, 32, 40, 50 or 0");
    }
    kit.FinalColors = settings.Whole("mostPaints", {0, kMaxCounter});
    chosen.Sample = settings.Choice("sample", kSampleWords);
    chosen.Match = settings.Choice("match", kMatchWords);
    chosen.Fit = settings.Choice("fit", kFitWords);
    chosen.Paintable = settings.Flag("paintable");
    chosen.Limits.SmallestMm2 = settings.Number("smallestMm2", {0, 10000});
    chosen.Limits.NarrowestMm = settings.Number("narrowestMm", {0, 100});
    chosen.Detail = settings.Whole("detail", {0, kMostDetail});
    chosen.CanvasCm = ReadUnlessZero(settings, "canvasCm", {1, kLargestCanvasCm});
    if (settings.Has("ownedFirst")) {
        ObjectReader first = settings.Object("ownedFirst");
        chosen.Buying = {true, first.Number("worth", {0, kLargestWorth}),
                         first.Whole("mostToBuy", {0, kMostToBuy})};
        first.KeepUnknown();
    }
    settings.KeepUnknown();
}

SizeMm ReadSize(ObjectReader& object, NumberRange range) {
    return {ReadUnlessZero(object, "widthMm", range), ReadUnlessZero(object, "heightMm", range)};
}

Paper ReadPaper(ObjectReader paper) {
    const Paper read{ReadSize(paper, {kSmallestPaperMm, kLargestPaperMm}), paper.Flag("inches")};
    paper.KeepUnknown();
    return read;
}

SizeMm ReadCanvas(ObjectReader canvas) {
    const SizeMm read = ReadSize(canvas, {kSmallestCanvasCm * 10, kLargestCanvasCm * 10});
    canvas.KeepUnknown();
    return read;
}

// One for each paint; two of them may be one paint.
OwnLabels ReadLabels(ObjectReader& print, const PaintList& paints) {
    const std::vector<std::string> labels = print.List("labels");
    const std::vector<std::string> newOnes = print.List("newLabels");
    if (labels.size() != paints.Entries().size()) {
        print.Refuse("labels", "must have one label for each paint");
    }
    OwnLabels read;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const bool alike = std::ranges::any_of(
            labels.begin(), labels.begin() + static_cast<std::ptrdiff_t>(i),
            [&](const std::string& other) { return AreLabelsAlike(other, labels[i]); });
        if (labels[i].empty() || LabelOf(labels[i]) != labels[i] || alike) {
            print.Refuse(
                "labels",
                "must have labels of one to three capitals or digits, no two of them alike");
        }
        const bool isNew = std::ranges::find(newOnes, labels[i]) != newOnes.end();
        read.emplace(IdOf(paints.Entries()[i]), OwnLabel{labels[i], isNew});
    }
    return read;
}

ShopFace ReadShop(ObjectReader shop) {
    ShopFace read;
    read.Order = shop.Words("order");
    if (read.Order.size() > kLongestOrder) {
        shop.Refuse("order", "must have 100 characters at most");
    }
    read.Address = shop.List("address");
    if (const std::string accent = shop.Words("accent"); !accent.empty()) {
        read.Accent = ColorFromHex(accent);
        if (!read.Accent) {
            shop.Refuse("accent", "must be a color as in #1F5FA8");
        }
    }
    read.Leaflet = shop.Words("leaflet");
    for (const std::string& field : shop.List("fields")) {
        const std::size_t equals = field.find('=');
        if (equals == field.npos || PlaceholderName(field.substr(0, equals)).empty()) {
            shop.Refuse("fields", "must have entries as in \"table=7\"");
        }
        read.Fields[PlaceholderName(field.substr(0, equals))] = field.substr(equals + 1);
    }
    shop.KeepUnknown();
    return read;
}

PlanSettings ReadPrint(ObjectReader print, const PaintList& paints) {
    PlanSettings plan;
    plan.Sheet = ReadPaper(print.Object("paper"));
    plan.CanvasCm = ReadUnlessZero(print, "canvasCm", {1, kLargestCanvasCm});
    plan.Canvas = ReadCanvas(print.Object("canvas"));
    plan.InchCanvas = print.Flag("inchCanvas");
    plan.BleedMm = print.Number("bleedMm", {0, kWidestBleedMm});
    plan.Symbols = print.Choice("symbols", kSymbolWords);
    plan.Lines = print.Choice("lines", kLineWords);
    plan.Gray = print.Whole("gray", {kLightestGray, kDarkestGray});
    plan.Use.Coats = print.Whole("coats", {1, 10});
    plan.Use.Cm2PerMl = print.Number("cm2PerMl", {1, 1000});
    plan.Use.PotMl = ReadUnlessZero(print, "potMl", {1, 10'000});
    plan.GroupBySet = print.Flag("groupBySet");
    plan.Maker = print.Words("maker");
    plan.Logo = print.Words("logo");
    if (plan.Symbols == SymbolStyle::Mine) {
        plan.Labels = ReadLabels(print, paints);
    }
    if (print.Has("shop")) {
        plan.Shop = ReadShop(print.Object("shop"));
    }
    print.KeepUnknown();
    return plan;
}

PaintSource ReadSource(ObjectReader source) {
    PaintSource read;
    if (source.Has("template")) {
        read.Template = ReadName(source, "template");
    } else {
        read.Sets = source.List("sets");
    }
    source.KeepUnknown();
    return read;
}

// The values of a grid, each within its range.
std::vector<int> ReadValues(ObjectReader& object, const char* name, std::size_t count,
                            WholeRange range) {
    std::string text;
    for (const std::string& line : object.List(name)) {
        text += line;
    }
    auto values = UnpackValues(text, count);
    if (!values || std::ranges::any_of(*values, [&range](int value) {
            return value < range.Least || value > range.Most;
        })) {
        object.Refuse(
            name, "does not hold the " + std::to_string(count) + " whole numbers that it should");
    }
    return *std::move(values);
}

std::size_t CellsOf(const Grid<StippleCell>& grid) {
    return static_cast<std::size_t>(grid.Across()) * static_cast<std::size_t>(grid.Down());
}

// Calls `take(cell, i)` for the stipples row by row.
template <class Take>
void ForCells(Grid<StippleCell>& grid, Take take) {
    std::size_t i = 0;
    for (int y = 1; y <= grid.Down(); ++y) {
        for (StippleCell& cell : grid.Row(y).From(1)) {
            take(cell, i++);
        }
    }
}

void ReadStipples(ObjectReader& object, Grid<StippleCell>& grid, int paints, int stippleSize) {
    const std::vector<int> indexes = ReadValues(object, "stipples", CellsOf(grid), {1, paints});
    const auto across = static_cast<std::size_t>(grid.Across());
    ForCells(grid, [&](StippleCell& cell, std::size_t i) {
        cell.ColorIndex = indexes[i];
        cell.X = MiddleOf(static_cast<int>(i % across) + 1, stippleSize);
        cell.Y = MiddleOf(static_cast<int>(i / across) + 1, stippleSize);
    });
}

// Of stipples that do not stand where this program places them.
void ReadPlaces(ObjectReader& object, Grid<StippleCell>& grid) {
    if (object.Has("places")) {
        const std::vector<int> places =
            ReadValues(object, "places", 2 * CellsOf(grid), {0, kMaxCounter});
        ForCells(grid, [&](StippleCell& cell, std::size_t i) {
            cell.X = places[2 * i];
            cell.Y = places[2 * i + 1];
        });
    }
}

void ReadProtected(ObjectReader& object, KitFile& kit) {
    if (object.Has("protected")) {
        const std::vector<int> values =
            ReadValues(object, "protected", CellsOf(kit.Stipples), {0, 1});
        kit.Protected = ValueGrid(kit.Stipples.Across() - 1, kit.Stipples.Down() - 1);
        std::ranges::copy(values, kit.Protected.All().begin());
    }
}

void ReadGrid(ObjectReader grid, KitFile& kit) {
    const int size = TraitsOf(kit.Chosen.Level).StippleSize;
    const WholeRange sides{1, kMaxCounter / (size * kit.Board.Twips.X)};
    kit.Stipples = Grid<StippleCell>(grid.Whole("across", sides), grid.Whole("down", sides));
    ReadStipples(grid, kit.Stipples, kit.Paints.Count(), size);
    ReadPlaces(grid, kit.Stipples);
    ReadProtected(grid, kit);
    kit.PaintableKit = grid.Flag("paintable");
    kit.SeenPerStipple = grid.Number("seenPerStipple", {0, 1000});
    grid.KeepUnknown();
}

// Left out where nothing was edited.
void ReadBase(ObjectReader& whole, KitFile& kit) {
    kit.Layer.BasePaints = kit.Paints;
    kit.Layer.Base = kit.Stipples;
    if (whole.Has("base")) {
        ObjectReader base = whole.Object("base");
        kit.Layer.BasePaints = ReadKitPaints(base, "paints");
        ReadStipples(base, kit.Layer.Base, kit.Layer.BasePaints.Count(),
                     TraitsOf(kit.Chosen.Level).StippleSize);
        base.KeepUnknown();
    }
}

std::vector<int> ReadOwned(ObjectReader& whole, int paints) {
    std::vector<int> owned;
    for (const KitJson& number : whole.Array("owned")) {
        const int paint = number.is_number_integer() ? number.get<int>() : 0;
        if (paint < 1 || paint > paints || (!owned.empty() && paint <= owned.back())) {
            whole.Refuse("owned", "must have numbers of the choice's paints in ascending order");
        }
        owned.push_back(paint);
    }
    return owned;
}

KitFile ReadWhole(ObjectReader& whole) {
    KitFile kit;
    kit.Program = whole.Words("program");
    kit.Title = whole.Words("title");
    if (!MayNameKit(kit.Title)) {
        whole.Refuse("title", "must be a name without slashes, dots and control characters");
    }
    kit.Photo = ReadPhoto(whole.Object("photo"));
    if (whole.Has("crop")) {
        kit.Crop = ReadCrop(whole.Object("crop"));
    }
    kit.Board = ReadBoard(whole.Object("board"));
    ReadSettings(whole.Object("settings"), kit);
    kit.Source = ReadSource(whole.Object("source"));
    kit.Choice = ReadKitPaints(whole, "choice");
    if (kit.Chosen.Buying.Asked) {
        kit.Owned = ReadOwned(whole, kit.Choice.Count());
    }
    kit.Paints = ReadKitPaints(whole, "paints");
    kit.Print = ReadPrint(whole.Object("print"), kit.Paints);
    kit.Layer.Edits = ReadEditLayer(whole.Object("edits"));
    ReadGrid(whole.Object("grid"), kit);
    ReadBase(whole, kit);
    whole.KeepUnknown();
    return kit;
}

}  // namespace

KitFile ParseKitFile(const std::string& text, const fs::path& file) {
    const KitJson json = ParseJson(text, file);
    KitText shared{file, {}};
    ObjectReader whole(shared, json, "");
    RequireFormat(whole, file);
    KitFile kit = ReadWhole(whole);
    kit.Unknown = std::move(shared.Unknown);
    return kit;
}

KitFile ReadKitFile(const fs::path& file) {
    if (OpenRegular(file).Size > kLargestFile) {
        throw FormatError(file, 0, "is too large for a kit file. Restore it.");
    }
    return ParseKitFile(ReadTextFile(file), file);
}

}  // namespace vendrel
