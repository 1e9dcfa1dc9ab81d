#include "kitfile/kit_file.h"

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <random>

#include "convert/bitmap_writer.h"
#include "kitfile/kit_photo.h"
#include "kitfile/kit_places.h"
#include "kitfile/packed_values.h"
#include "support/error.h"
#include "support/pictures.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

using testing::HasSubstr;
using Json = nlohmann::ordered_json;

PaintColor Paint(int red, const std::string& name) {
    return {red, 17, 255, "Craft \"Acrylics\"", "C-" + std::to_string(red), name};
}

Grid<StippleCell> Cells(const std::vector<std::vector<int>>& rows) {
    Grid<StippleCell> grid(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
    for (int y = 1; y <= grid.Down(); ++y) {
        for (int x = 1; x <= grid.Across(); ++x) {
            grid(x, y) = {rows[static_cast<unsigned>(y - 1)][static_cast<unsigned>(x - 1)],
                          1 + (x - 1) * 6 + 3, 1 + (y - 1) * 6 + 3, 0};
        }
    }
    return grid;
}

// A kit in which nothing is as it usually is.
KitFile OddKit() {
    KitFile kit;
    kit.Program = "Vendrel 1.0.0";
    kit.Title = "Am Strand";
    kit.Photo = {"strand crop.bmp", "ab12", {640, 480}};
    kit.Crop = KitCrop{"strand.jpg", 1, {10, 20, 640, 480}};
    kit.Board = ScreenSize::FromPixels(1366, 768);
    kit.Chosen = {.Level = Difficulty::Medium,
                  .FinalPaints = 32,
                  .Sample = Sampling::Pixel,
                  .Match = Matching::ByEye,
                  .Paintable = true,
                  .Limits = {9.5, 1.25},
                  .Detail = 70,
                  .CanvasCm = 40.3,
                  .Fit = PhotoFit::CropTop,
                  .Buying = {true, 0.125, 3}};
    kit.FinalColors = 2;
    kit.PaintableKit = true;
    kit.SeenPerStipple = 3.0625;
    kit.Print = {
        .Sheet = Paper::Legal,
        .CanvasCm = 60,
        .Canvas = {400, 500},
        .BleedMm = 20,
        .InchCanvas = true,
        .Symbols = SymbolStyle::Mine,
        .Labels = {{IdOf(Paint(1, "Sand")), {"A2", false}}, {IdOf(Paint(2, "Sea")), {"C", true}}},
        .Lines = LineShape::Steps,
        .Gray = 70,
        .Use = {3, 40.5, 59},
        .GroupBySet = true,
        .Maker = "Ann",
        .Logo = "/home/ann/logo.png",
        .Shop = {.Order = "A-7",
                 .Address = {"Ann", "1 Shore Rd"},
                 .Accent = Rgb(31, 95, 168),
                 .Leaflet = "hello.txt",
                 .Fields = {{"gift", "a=b"}, {"note", ""}}}};
    kit.Source = {{"Craft", "Oils"}, {}};
    kit.Choice = {Paint(1, "Sand"), Paint(2, "Sea"), Paint(3, "Sky")};
    kit.Owned = {1, 3};
    kit.Paints = {Paint(1, "Sand"), Paint(2, "Sea")};
    kit.Stipples = Cells({{1, 2, 2}, {1, 1, 2}});
    kit.Stipples(2, 1).X = 77;
    kit.Protected = ValueGrid(2, 1);
    kit.Protected(2, 1) = 1;
    kit.Layer.BasePaints = {Paint(3, "Sky")};
    kit.Layer.Base = Cells({{1, 1, 1}, {1, 1, 1}});
    kit.Layer.Edits = {3,
                       2,
                       {Paint(1, "Sand"), Paint(2, "Sea")},
                       {{{1, 1}, StippleWish::Paint, 1},
                        {{2, 1}, StippleWish::Paint, 1},
                        {{3, 1}, StippleWish::Neighbors, 0},
                        {{1, 2}, StippleWish::Paint, 2}},
                       {{Paint(3, "Sky"), Paint(2, "Sea")}},
                       {Paint(2, "Sea"), Paint(3, "Sky")}};
    return kit;
}

KitFile Parse(const std::string& text) {
    return ParseKitFile(text, "beach.kit");
}

TEST(KitFile, GivesBackAllThatWasWritten) {
    const KitFile kit = OddKit();
    const KitFile read = Parse(FormatKitFile(kit));
    EXPECT_EQ(read.Program, kit.Program);
    EXPECT_EQ(read.Title, kit.Title);
    EXPECT_EQ(read.Photo, kit.Photo);
    EXPECT_EQ(read.Crop, kit.Crop);
    EXPECT_EQ(read.Board.Width, kit.Board.Width);
    EXPECT_EQ(read.Board.Height, kit.Board.Height);
    EXPECT_EQ(read.Chosen, kit.Chosen);
    EXPECT_EQ(read.FinalColors, kit.FinalColors);
    EXPECT_EQ(read.Protected, kit.Protected);
    EXPECT_EQ(read.PaintableKit, kit.PaintableKit);
    EXPECT_EQ(read.SeenPerStipple, kit.SeenPerStipple);
    EXPECT_EQ(read.Print, kit.Print);
    EXPECT_EQ(read.Source, kit.Source);
    EXPECT_EQ(read.Choice, kit.Choice);
    EXPECT_EQ(read.Owned, kit.Owned);
    EXPECT_EQ(read.Paints, kit.Paints);
    EXPECT_EQ(read.Stipples, kit.Stipples);
    EXPECT_EQ(read.Layer.BasePaints, kit.Layer.BasePaints);
    EXPECT_EQ(read.Layer.Base, kit.Layer.Base);
    EXPECT_EQ(read.Layer.Edits, kit.Layer.Edits);

    KitFile plain = kit;
    plain.Crop = {};
    plain.Source = {{}, "Two"};
    plain.Protected = {};
    plain.Layer = {kit.Paints, kit.Stipples, {}};
    const std::string text = FormatKitFile(plain);
    EXPECT_THAT(text, testing::Not(HasSubstr("\"base\"")));
    const KitFile again = Parse(text);
    EXPECT_EQ(again.Source, plain.Source);
    EXPECT_FALSE(again.Crop);
    EXPECT_TRUE(again.Protected.All().empty());
    EXPECT_EQ(again.Layer.Base, plain.Stipples);
    EXPECT_EQ(FormatKitFile(again), text);
}

TEST(KitFile, HasAPaintALineAndARowOfEditsALine) {
    const std::string text = FormatKitFile(OddKit());
    EXPECT_THAT(text, HasSubstr(R"(
  "paints": [
    {"color": "#0111FF", "set": "Craft \"Acrylics\"", "name": "Sand", "code": "C-1"},
    {"color": "#0211FF", "set": "Craft \"Acrylics\"", "name": "Sea", "code": "C-2"}
  ],
)"));
    EXPECT_THAT(text, HasSubstr(R"(
    "painted": [
      {"row": 1, "runs": [[1, 2, 1]]},
      {"row": 2, "runs": [[1, 1, 2]]}
    ],
    "joined": [
      {"row": 1, "runs": [[3, 3, 0]]}
    ],
)"));
}

// Adds a member to every object; answers how many there are.
int AddToObjects(Json& json) {
    int added = 0;
    for (Json& value : json) {
        added += value.is_structured() ? AddToObjects(value) : 0;
    }
    if (json.is_object()) {
        json["ofLater"] = {{"deep", {1, 2.5, "three"}}};
    }
    return added + (json.is_object() ? 1 : 0);
}

TEST(KitFile, KeepsWhatOnlyOtherVersionsKnow) {
    Json json = Json::parse(FormatKitFile(OddKit()));
    ASSERT_GT(AddToObjects(json), 20);
    EXPECT_EQ(Json::parse(FormatKitFile(Parse(json.dump()))), json);
}

TEST(KitFile, RefusesWhatIsNoKit) {
    const std::string bomb = PackValues(std::vector<int>(100'000, 1)).front();
    struct Row {
        const char* Place;
        Json Value;  // null: taken away
        const char* Sentence;
    };
    const std::vector<Row> rows = {
        {"/format", 2, "later version of Vendrel (kit format 2"},
        {"/format", "1", "format must be a whole number"},
        {"/title", "../../etc/passwd", "title must be a name without slashes"},
        {"/photo/file", "../x.bmp", "photo.file must be a name without folders"},
        {"/photo", 7, "photo must be a JSON object"},
        {"/photo/width", 0, "photo.width must be a whole number from 1"},
        {"/crop/quartersRight", 4, "crop.quartersRight must be a whole number from 0 to 3"},
        {"/board/width", 1e300, "board.width must be a whole number"},
        {"/settings/finalPaints", 33, "settings.finalPaints must be 16, 32, 40, 50 or 0"},
        {"/settings/match", "ear", "settings.match must be one of plain, eye"},
        {"/settings/detail", 50.5, "settings.detail must be a whole number from 0 to 100"},
        {"/settings/paintable", 1, "settings.paintable must be true or false"},
        {"/print/canvas/widthMm", 99, "print.canvas.widthMm must be a number from 100 to 3000"},
        {"/source/sets", {1}, "source.sets must be a list of texts"},
        {"/paints/0/color", "#12345G", "must be a color such as"},
        {"/paints/1/set", nullptr, "a paint of paints.set is missing"},
        {"/choice", "none", "choice must be a list"},
        {"/edits/across", 100000, "edits.across must be a whole number from 0 to 546"},
        {"/edits/painted/1/row", 1, "edits.painted.row must be a whole number from 2 to 2"},
        {"/edits/painted/0/runs/0", {2, 1, 1}, "edits.painted must have runs"},
        {"/edits/painted/0/runs/0", {1, 4, 1}, "edits.painted must have runs"},
        {"/edits/painted/0/runs/0", {1, 2, 3}, "edits.painted must have runs"},
        {"/edits/joined/0/runs/0", {1, 1, 1}, "edits.joined must have no stipple that is painted"},
        {"/grid/across", 365, "grid.across must be a whole number from 1 to 364"},
        {"/grid/across", 0, "grid.across must be a whole number from 1 to 364"},
        {"/grid/down", 3, "grid.stipples does not hold the 9 whole numbers"},
        {"/grid/stipples", {bomb}, "grid.stipples does not hold the 6 whole numbers"},
        {"/grid/stipples", {"%%%%"}, "grid.stipples does not hold the 6 whole numbers"},
        {"/grid/stipples", PackValues(std::vector{1, 1, 1, 1, 1, 3}), "grid.stipples does not"},
        {"/grid/places", PackValues(std::vector<int>(12, -1)), "grid.places does not hold"},
        {"/base/stipples", PackValues(std::vector<int>(6, 2)), "base.stipples does not hold"},
        {"/grid", nullptr, "grid is missing"},
    };
    for (const Row& row : rows) {
        Json json = Json::parse(FormatKitFile(OddKit()));
        const Json::json_pointer place(row.Place);
        if (row.Value.is_null()) {
            json[place.parent_pointer()].erase(place.back());
        } else {
            json[place] = row.Value;
        }
        EXPECT_THROW(
            {
                try {
                    (void)Parse(json.dump());
                } catch (const FormatError& error) {
                    EXPECT_THAT(error.what(), HasSubstr("beach.kit: ")) << row.Place;
                    EXPECT_THAT(error.what(), HasSubstr(row.Sentence)) << row.Place;
                    throw;
                }
            },
            FormatError)
            << row.Place;
    }
    for (const auto& [text, sentence] : std::vector<std::pair<std::string, std::string>>{
             {"", "beach.kit, line 1: here it is no JSON"},
             {"{\n\"format\" 1}", "beach.kit, line 2: here it is no JSON"},
             {"[1]", "the whole text must be a JSON object"},
             {"{\"format\": 1e999}", "a number in it is too large"},
             {std::string(1'000'000, '['), "is no kit file"}}) {
        EXPECT_THAT([&] { (void)Parse(text); },
                    testing::ThrowsMessage<FormatError>(HasSubstr(sentence)));
    }
}

// One more way to damage a text: bytes changed, taken out, put in or brought from elsewhere.
void Damage(std::string& text, std::mt19937& random) {
    constexpr std::string_view kTelling = "0123456789-.e[]{}\",:\\#=A\n\xC3";
    const std::size_t at = random() % text.size();
    const std::size_t from = random() % text.size();
    switch (random() % 5) {
        case 0:
            text[at] = kTelling[random() % kTelling.size()];
            break;
        case 1:
            text[at] = static_cast<char>(random());
            break;
        case 2:
            text.erase(at, random() % 40);
            break;
        case 3:
            text.insert(at, text.substr(from, random() % 40));
            break;
        default:
            text.insert(at, 1 + random() % 9, text[from]);
    }
}

// A value somewhere in the tree takes the place of another: still JSON, and no kit or another.
void Transplant(Json& json, std::mt19937& random) {
    const Json flat = json.flatten();
    const auto pick = [&] { return std::next(flat.begin(), random() % flat.size()); };
    const Json::json_pointer from(pick().key());
    const Json::json_pointer to(pick().key());
    const Json value = json[random() % 2 == 0 ? from : from.parent_pointer()];
    if (!to.empty()) {
        json[random() % 2 == 0 || to.parent_pointer().empty() ? to : to.parent_pointer()] = value;
    }
}

TEST(KitFile, EndsInAKitOrASentenceWhateverTheBytes) {
    std::mt19937 random(19);
    const std::string whole = FormatKitFile(OddKit());
    int kits = 0;
    for (int i = 0; i < 3000; ++i) {
        std::string text = whole;
        if (i % 2 == 0) {
            Damage(text, random);
        } else {
            Json json = Json::parse(whole);
            Transplant(json, random);
            text = json.dump();
        }
        try {
            const KitFile kit = Parse(text);
            EXPECT_NO_THROW((void)Parse(FormatKitFile(kit)));
            ++kits;
        } catch (const FormatError& error) {
            EXPECT_THAT(error.what(), HasSubstr("beach.kit"));
        }
    }
    EXPECT_GT(kits, 50);  // damage that only a reader of names and numbers would see
}

TEST(KitPhoto, IsKnownByItsPixelsAndTakenFromElsewhereUnderAFreeName) {
    const test::TempFolder files;
    const ProgramFolder folder(files.Path());
    const NoPhotoDecoder none;
    const auto photo = [](int green) {
        return test::PictureOf(5, 3, [=](int x, int y) { return Rgb(10 * x, green, 10 * y); });
    };
    WriteBitmap(files.Write("Pictures/ball.bmp", ""), photo(7));
    const KitPhoto kit = KitPhotoOf(files / "Pictures/ball.bmp");
    EXPECT_EQ(kit.Sum, PixelSum(photo(7)));
    EXPECT_EQ(FindKitPhoto(folder, kit).Problem, "");

    WriteBitmap(files / "moved.bmp", photo(7));
    WriteBitmap(files / "ball.bmp", photo(7));
    WriteBitmap(files / "Pictures/ball.bmp", photo(8));
    EXPECT_THAT(FindKitPhoto(folder, kit).Problem, HasSubstr("is another one by now"));
    EXPECT_EQ(TakeKitPhoto(folder, none, kit, files / "ball.bmp").filename(), "ball 2.bmp");
    EXPECT_EQ(TakeKitPhoto(folder, none, kit, files / "moved.bmp").filename(), "moved.bmp");
    EXPECT_THROW((void)TakeKitPhoto(folder, none, kit, files / "Pictures/ball.bmp"), FileError);
    std::filesystem::remove(files / "Pictures/ball.bmp");
    EXPECT_THAT(FindKitPhoto(folder, kit).Problem, HasSubstr("is not there"));
}

TEST(KitPlaces, ListTheNewestKitsAndKnowTheirFolder) {
    const test::TempFolder files;
    const ProgramFolder folder(files.Path());
    EXPECT_TRUE(RecentKits(folder, 9).empty());
    for (const auto& [name, hours] : {std::pair{"old.kit", 3}, {"new.KIT", 1}, {"mid.kit", 2}}) {
        files.Write("Kits/" + std::string(name), "{}");
        std::filesystem::last_write_time(
            files / ("Kits/" + std::string(name)),
            std::filesystem::file_time_type::clock::now() - std::chrono::hours(hours));
    }
    files.Write("Kits/notes.txt", "");
    EXPECT_EQ(RecentKits(folder, 2), (std::vector{files / "Kits/new.KIT", files / "Kits/mid.kit"}));
    EXPECT_EQ(FolderOfKit(files / "Kits/old.kit"), "");
    files.Write("Pictures/ball.bmp", "");
    EXPECT_EQ(FolderOfKit(files / "Kits/old.kit"), files.Path());
    EXPECT_EQ(FolderOfKit(files / "old.kit"), "");
    EXPECT_EQ(KitPath(folder, "beach"), files / "Kits/beach.kit");
}

}  // namespace
}  // namespace vendrel
