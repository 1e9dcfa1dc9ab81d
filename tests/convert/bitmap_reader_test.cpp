#include "convert/bitmap_reader.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

#include "convert/bmp_bytes.h"
#include "support/error.h"
#include "support/pictures.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

using test::BmpBytes;
using test::PictureOf;
using test::TempFolder;
using testing::AllOf;
using testing::HasSubstr;
using testing::ThrowsMessage;

constexpr Color kRed = Rgb(255, 0, 0);
constexpr Color kGreen = Rgb(0, 255, 0);
constexpr Color kBlue = Rgb(0, 0, 255);

struct Kind {
    const char* Name;
    BmpBytes File;
};

// Three by two pixels in every kind of file: red green blue above white black green.
std::vector<Kind> FlagInEveryKind() {
    const std::vector<std::uint32_t> colors = {0x000000, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF};
    auto sixteen = colors;
    sixteen.resize(16);
    const std::vector<int> bytes24 = {255, 255, 255, 0, 0,   0, 0,   255, 0, 0, 0, 0,
                                      0,   0,   255, 0, 255, 0, 255, 0,   0, 0, 0, 0};
    const std::vector<int> unpadded(bytes24.begin(), bytes24.end() - 3);
    auto behindGap = bytes24;
    behindGap.insert(behindGap.begin(), {7, 7});
    const std::vector<int> words555 = {0xFF, 0x7F, 0,    0, 0xE0, 3, 0, 0,
                                       0,    0x7C, 0xE0, 3, 0x1F, 0, 0, 0};
    const std::vector<int> words565 = {0xFF, 0xFF, 0,    0, 0xE0, 7, 0, 0,
                                       0,    0xF8, 0xE0, 7, 0x1F, 0, 0, 0};
    const std::vector<int> longs = {255, 255, 255, 9, 0, 0,   0, 9, 0,   255, 0, 9,
                                    0,   0,   255, 9, 0, 255, 0, 9, 255, 0,   0, 9};
    const std::vector<int> turned = {9, 255, 255, 255, 9, 0, 0,   0, 9, 0, 255, 0,
                                     9, 255, 0,   0,   9, 0, 255, 0, 9, 0, 0,   255};
    // White; skip one (black); green; end; three literals and a filler; end of picture.
    const std::vector<int> runs8 = {1, 4, 0, 2, 1, 0, 1, 2, 0, 0, 0, 3, 1, 2, 3, 0, 0, 1};
    const std::vector<int> runs4 = {2, 0x40, 2, 0x20, 0, 0, 0, 3, 0x12, 0x30, 0, 0, 0, 1};
    const std::vector<std::uint32_t> reversed = {0xFF00, 0xFF0000, 0xFF000000, 0xFF};
    std::vector<Kind> kinds = {
        {"24 bits", {.Pixels = bytes24}},
        {"24 bits, last padding missing", {.Pixels = unpadded}},
        {"24 bits, gap before the pixels", {.PixelOffset = 56, .Pixels = behindGap}},
        {"24 bits, header of 124 bytes", {.HeaderSize = 124, .Pixels = bytes24}},
        {"4 bits", {.Bits = 4, .Palette = sixteen, .Pixels = {0x40, 0x20, 0, 0, 0x12, 0x30, 0, 0}}},
        {"8 bits, short palette",
         {.Bits = 8, .ColorsUsed = 5, .Palette = colors, .Pixels = {4, 0, 2, 0, 1, 2, 3, 0}}},
        {"16 bits", {.Bits = 16, .Pixels = words555}},
        {"16 bits 565, masks behind the header",
         {.Bits = 16, .Compression = 3, .Masks = {0xF800, 0x7E0, 0x1F}, .Pixels = words565}},
        {"32 bits", {.Bits = 32, .Pixels = longs}},
        {"32 bits, masks inside a header of 108 bytes",
         {.Bits = 32, .Compression = 6, .HeaderSize = 108, .Masks = reversed, .Pixels = turned}},
        {"8 bit runs, a skip, literals",
         {.Bits = 8, .Compression = 1, .ColorsUsed = 5, .Palette = colors, .Pixels = runs8}},
        {"24 bits, short header of old programs", {.HeaderSize = 12, .Pixels = bytes24}},
        {"8 bits, short header and palette",
         {.Bits = 8, .HeaderSize = 12, .Palette = colors, .Pixels = {4, 0, 2, 0, 1, 2, 3, 0}}},
        {"8 bit runs to the last row's end and no further",
         {.Bits = 8,
          .Compression = 1,
          .ColorsUsed = 5,
          .Palette = colors,
          .Pixels = {1, 4, 1, 0, 0, 2, 0, 0, 1, 2, 0, 0, 0, 3, 1, 2, 3, 0, 0, 0}}},
        {"4 bit runs, rounded up past the row",
         {.Bits = 4, .Compression = 2, .Palette = sixteen, .Pixels = runs4}},
    };
    for (Kind& kind : kinds) {
        kind.File.Width = 3;
        kind.File.Height = 2;
    }
    return kinds;
}

class BitmapReader : public testing::Test {
  protected:
    std::filesystem::path Write(const BmpBytes& file) {
        return folder_.Write("x.bmp", file.Make());
    }
    TempFolder folder_;
};

TEST_F(BitmapReader, ReadsEveryKindOfFile) {
    for (const Kind& kind : FlagInEveryKind()) {
        const auto file = Write(kind.File);
        EXPECT_EQ(ReadBitmap(file), PictureOf({{kRed, kGreen, kBlue}, {kWhite, kBlack, kGreen}}))
            << kind.Name;
        EXPECT_EQ(ReadBitmapSize(file), (BitmapSize{3, 2})) << kind.Name;
    }
}

TEST_F(BitmapReader, ReadsOneBitAcrossBytes) {
    const auto file =
        Write({.Width = 9, .Bits = 1, .Palette = {0xFF, 0xFFFFFF}, .Pixels = {0x81, 0x80, 0, 0}});
    EXPECT_EQ(ReadBitmap(file),
              PictureOf({{kWhite, kBlue, kBlue, kBlue, kBlue, kBlue, kBlue, kWhite, kWhite}}));
}

TEST_F(BitmapReader, SpreadsNarrowAndWideChannelsOverTheWholeRange) {
    BmpBytes file{.Width = 2, .Bits = 32, .Compression = 3};
    file.Masks = {0x3FF00000, 0xFFC00, 0x3};
    file.Pixels = {1, 0, 0x08, 0x20, 3, 0xFC, 0xFF, 0x3F};  // red and green 2^9, blue 1; white
    EXPECT_EQ(ReadBitmap(Write(file)), PictureOf({{Rgb(128, 128, 85), kWhite}}));
}

TEST_F(BitmapReader, LeavesPixelsThatRunsSkipInTheFirstColour) {
    BmpBytes file{.Width = 2, .Height = 3, .Bits = 8, .Compression = 1, .ColorsUsed = 2};
    file.Palette = {0xFF, 0xFF0000};
    file.Pixels = {0, 2, 1, 1, 1, 1, 0, 1};  // one right, one up, red, end of picture
    EXPECT_EQ(ReadBitmap(Write(file)), PictureOf({{kBlue, kBlue}, {kBlue, kRed}, {kBlue, kBlue}}));
}

TEST_F(BitmapReader, RefusesWhatIsNoPictureItKnows) {
    const auto indexed = [](int colorsUsed, int compression, std::vector<int> pixels) {
        BmpBytes file{.Bits = 8, .Compression = compression, .ColorsUsed = colorsUsed};
        file.Palette = {0};
        file.Pixels = std::move(pixels);
        return file;
    };
    const std::pair<BmpBytes, const char*> lies[] = {
        {{.HeaderSize = 16}, "header of 16 bytes"},
        {{.Bits = 8, .HeaderSize = 12, .Palette = {0}, .Pixels = {1, 0, 0, 0}},
         "missing from its palette"},
        {{.HeaderSize = 125}, "header of 125 bytes"},
        {{.Height = -1}, "top down"},
        {{.Width = 0}, "0 x 1 pixels"},
        {{.Width = -5}, "-5 x 1 pixels"},
        {{.Width = 2147483647, .Height = 2147483647}, "more than can be"},
        {{.Width = 16384, .Height = 16384}, "the file ends before"},
        {{.Pixels = {1, 2}}, "the file ends before"},
        {{.PixelOffset = 20}, "start at byte 20"},
        {{.PixelOffset = 1 << 30}, "start at byte 1073741824"},
        {{.Bits = 2}, "2 bits, compression 0"},
        {{.Compression = 4}, "24 bits, compression 4"},
        {{.Bits = 16, .Compression = 3, .Masks = {5, 2, 8}}, "masks make no sense"},
        {{.Bits = 16, .Compression = 3, .Masks = {0x1F0000, 1, 2}}, "masks make no sense"},
        {{.Bits = 16, .Compression = 3, .Masks = {0, 0, 0}}, "masks are empty"},
        {indexed(2, 0, {0, 0, 0, 0}), "palette of 2 colors"},
        {indexed(-1, 0, {0, 0, 0, 0}), "palette of 4294967295 colors"},
        {indexed(1, 0, {1, 0, 0, 0}), "missing from its palette"},
        {indexed(1, 1, {1, 9, 0, 1}), "missing from its palette"},
        {indexed(1, 1, {1, 0, 0}), "ends in the middle"},
        {indexed(1, 1, {2, 0, 0, 1}), "past the end of a row"},
        {indexed(1, 1, {0, 3, 0, 0, 0, 0, 0, 1}), "past the end of a row"},
        {indexed(1, 1, {1, 0, 1, 0, 0, 1}), "past the end of a row"},
        {indexed(1, 1, {0, 2, 2, 0, 0, 1}), "outside the picture"},
        {indexed(1, 1, {0, 2, 0, 2, 0, 1}), "outside the picture"},
        {{.Bits = 4, .Compression = 2, .ColorsUsed = 1, .Palette = {0}, .Pixels = {3, 0, 0, 1}},
         "past the end of a row"},
        {{.Width = 9999, .Height = 9999, .Bits = 8, .Compression = 1, .ColorsUsed = 1},
         "the file ends before"},
    };
    std::vector<std::pair<std::string, const char*>> cases = {
        {"", "not a BMP"},
        {"\x89PNG", "not a BMP"},
        {BmpBytes().Make().substr(0, 40), "ends within its header"},
    };
    for (const auto& [file, problem] : lies) {
        cases.emplace_back(file.Make(), problem);
    }
    for (const auto& [bytes, problem] : cases) {
        const auto file = folder_.Write("bad.bmp", bytes);
        EXPECT_THAT([&] { (void)ReadBitmap(file); },
                    ThrowsMessage<Error>(AllOf(HasSubstr("bad.bmp"), HasSubstr(problem))));
    }
    EXPECT_THROW((void)ReadBitmap(folder_ / "absent.bmp"), FileError);
    EXPECT_THROW((void)ReadBitmap(folder_.Path()), FileError);
}

TEST_F(BitmapReader, KnowsWhereAFileDescribesColorsOfItsOwn) {
    for (const auto& [size, space, gamma, own] : {std::tuple{124, 0x4D424544U, 0U, true},
                                                  {124, 0x4C494E4BU, 0U, true},
                                                  {124, 0x73524742U, 9U, false},
                                                  {108, 0x57696E20U, 9U, false},
                                                  {108, 0U, 9U, true},
                                                  {108, 0U, 0U, false},
                                                  {40, 0U, 0U, false}}) {
        BmpBytes file{.HeaderSize = size};
        file.Masks = {0, 0, 0, 0, space};  // what follows the first 40 bytes
        file.Masks.resize(size == 40 ? 0 : 17, gamma);
        EXPECT_EQ(BitmapFile(Write(file)).HasOwnColors(), own) << size << " " << space;
    }
}

TEST_F(BitmapReader, TellsTheHeadersSizeAsItStands) {
    for (const BitmapSize size : {BitmapSize{0, 0}, BitmapSize{5, -7}, BitmapSize{70000, 1}}) {
        EXPECT_EQ(ReadBitmapSize(Write({.Width = size.Width, .Height = size.Height})), size);
    }
}

TEST_F(BitmapReader, SurvivesAnyDamage) {
    std::minstd_rand random(7);
    int refused = 0;
    for (const Kind& kind : FlagInEveryKind()) {
        const std::string whole = kind.File.Make();
        for (std::size_t i = 0; i < 60; ++i) {
            std::string damaged = whole;
            damaged[random() % damaged.size()] = static_cast<char>(random());
            damaged[14 + random() % std::min<std::size_t>(40, damaged.size() - 14)] =
                static_cast<char>(random());
            damaged.resize(i % 3 == 0 ? random() % damaged.size() : damaged.size());
            try {
                (void)ReadBitmap(folder_.Write("damaged.bmp", damaged));
            } catch (const Error&) {  // refusing is as good as reading
                ++refused;
            }
        }
    }
    EXPECT_GT(refused, 100);
}

}  // namespace
}  // namespace vendrel
