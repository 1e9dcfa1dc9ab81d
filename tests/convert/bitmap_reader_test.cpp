#include "convert/bitmap_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "convert/bmp_bytes.h"
#include "support/error.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

using test::BmpBytes;
using test::TempFolder;
using testing::HasSubstr;

constexpr Color kRed = Rgb(255, 0, 0);
constexpr Color kGreen = Rgb(0, 255, 0);
constexpr Color kBlue = Rgb(0, 0, 255);

Surface Picture(const std::vector<std::vector<Color>>& rows) {
    Surface picture(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
    for (int y = 0; y < picture.Height(); ++y) {
        std::ranges::copy(rows[static_cast<std::size_t>(y)], picture.Row(y).begin());
    }
    return picture;
}

// Three by two pixels; red green blue above white black green.
const Surface& Flag() {
    static const Surface flag = Picture({{kRed, kGreen, kBlue}, {kWhite, kBlack, kGreen}});
    return flag;
}

struct Kind {
    const char* Name;
    BmpBytes File;
};

std::vector<Kind> FlagInEveryKind() {
    const std::vector<std::uint32_t> colors = {0x000000, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF};
    const std::vector<std::uint32_t> sixteen = [&colors] {
        auto all = colors;
        all.resize(16);
        return all;
    }();
    const std::vector<int> words555 = {0xFF, 0x7F, 0,    0, 0xE0, 3, 0, 0,
                                       0,    0x7C, 0xE0, 3, 0x1F, 0, 0, 0};
    const std::vector<int> words565 = {0xFF, 0xFF, 0,    0, 0xE0, 7, 0, 0,
                                       0,    0xF8, 0xE0, 7, 0x1F, 0, 0, 0};
    const std::vector<int> longs = {255, 255, 255, 9, 0, 0,   0, 9, 0,   255, 0, 9,
                                    0,   0,   255, 9, 0, 255, 0, 9, 255, 0,   0, 9};
    const std::vector<int> turned = {9, 255, 255, 255, 9, 0, 0,   0, 9, 0, 255, 0,
                                     9, 255, 0,   0,   9, 0, 255, 0, 9, 0, 0,   255};
    const BmpBytes base{.Width = 3, .Height = 2};
    std::vector<Kind> kinds;
    const auto add = [&](const char* name, auto change) {
        kinds.push_back({name, base});
        change(kinds.back().File);
    };
    const std::vector<int> bytes24 = {255, 255, 255, 0, 0,   0, 0,   255, 0, 0, 0, 0,
                                      0,   0,   255, 0, 255, 0, 255, 0,   0, 0, 0, 0};
    add("24 bits", [&](BmpBytes& f) { f.Pixels = bytes24; });
    add("24 bits, last padding missing", [&](BmpBytes& f) {
        f.Pixels = bytes24;
        f.Pixels.resize(21);
    });
    add("24 bits, gap before the pixels", [&](BmpBytes& f) {
        f.Pixels = {7, 7};
        f.Pixels.insert(f.Pixels.end(), bytes24.begin(), bytes24.end());
        f.PixelOffset = 56;
    });
    add("24 bits, header of 124 bytes", [&](BmpBytes& f) {
        f.HeaderSize = 124;
        f.Pixels = bytes24;
    });
    add("4 bits", [&](BmpBytes& f) {
        f.Bits = 4;
        f.Palette = sixteen;
        f.Pixels = {0x40, 0x20, 0, 0, 0x12, 0x30, 0, 0};
    });
    add("8 bits, short palette", [&](BmpBytes& f) {
        f.Bits = 8;
        f.ColorsUsed = 5;
        f.Palette = colors;
        f.Pixels = {4, 0, 2, 0, 1, 2, 3, 0};
    });
    add("16 bits", [&](BmpBytes& f) {
        f.Bits = 16;
        f.Pixels = words555;
    });
    add("16 bits 565, masks behind the header", [&](BmpBytes& f) {
        f.Bits = 16;
        f.Compression = 3;
        f.Masks = {0xF800, 0x7E0, 0x1F};
        f.Pixels = words565;
    });
    add("32 bits", [&](BmpBytes& f) {
        f.Bits = 32;
        f.Pixels = longs;
    });
    add("32 bits, masks inside a header of 108 bytes", [&](BmpBytes& f) {
        f.Bits = 32;
        f.Compression = 6;
        f.HeaderSize = 108;
        f.Masks = {0xFF00, 0xFF0000, 0xFF000000, 0xFF};
        f.Pixels = turned;
    });
    add("8 bit runs, a skip, literals", [&](BmpBytes& f) {
        f.Bits = 8;
        f.Compression = 1;
        f.ColorsUsed = 5;
        f.Palette = colors;
        // white; skip one (black); green; end; three literals and a filler; end of picture
        f.Pixels = {1, 4, 0, 2, 1, 0, 1, 2, 0, 0, 0, 3, 1, 2, 3, 0, 0, 1};
    });
    add("4 bit runs, rounded up past the row", [&](BmpBytes& f) {
        f.Bits = 4;
        f.Compression = 2;
        f.Palette = sixteen;
        f.Pixels = {2, 0x40, 2, 0x20, 0, 0, 0, 3, 0x12, 0x30, 0, 0, 0, 1};
    });
    return kinds;
}

TEST(BitmapReader, ReadsEveryKindOfFile) {
    const TempFolder folder;
    for (const Kind& kind : FlagInEveryKind()) {
        const auto file = folder.Write("flag.bmp", kind.File.Make());
        EXPECT_EQ(ReadBitmap(file), Flag()) << kind.Name;
        EXPECT_EQ(ReadBitmapSize(file), (BitmapSize{3, 2})) << kind.Name;
    }
}

TEST(BitmapReader, ReadsOneBitAcrossBytes) {
    const TempFolder folder;
    const auto file = folder.Write(
        "line.bmp",
        BmpBytes{.Width = 9, .Bits = 1, .Palette = {0xFF, 0xFFFFFF}, .Pixels = {0x81, 0x80, 0, 0}}
            .Make());
    EXPECT_EQ(ReadBitmap(file),
              Picture({{kWhite, kBlue, kBlue, kBlue, kBlue, kBlue, kBlue, kWhite, kWhite}}));
}

TEST(BitmapReader, SpreadsNarrowAndWideChannelsOverTheWholeRange) {
    const TempFolder folder;
    const auto file = folder.Write("deep.bmp", BmpBytes{.Width = 2,
                                                        .Bits = 32,
                                                        .Compression = 3,
                                                        .Masks = {0x3FF00000, 0xFFC00, 0x3},
                                                        .Pixels = {1, 0, 0x08, 0x20,  // 2^9, 2^9
                                                                   3, 0xFC, 0xFF, 0x3F}}
                                                   .Make());
    EXPECT_EQ(ReadBitmap(file), Picture({{Rgb(128, 128, 85), kWhite}}));
}

TEST(BitmapReader, LeavesPixelsThatRunsSkipInTheFirstColour) {
    const TempFolder folder;
    BmpBytes file{.Width = 2, .Height = 3, .Bits = 8, .Compression = 1, .ColorsUsed = 2};
    file.Palette = {0xFF, 0xFF0000};
    file.Pixels = {0, 2, 1, 1, 1, 1, 0, 1};  // one right, one up, red, end of picture
    EXPECT_EQ(ReadBitmap(folder.Write("skip.bmp", file.Make())),
              Picture({{kBlue, kBlue}, {kBlue, kRed}, {kBlue, kBlue}}));
}

TEST(BitmapReader, RefusesWhatIsNoPictureItKnows) {
    const BmpBytes whole{.Pixels = {1, 2, 3, 0}};
    const BmpBytes indexed{.Bits = 8, .ColorsUsed = 1, .Palette = {0}, .Pixels = {0, 0, 0, 0}};
    const auto with = [](BmpBytes file, auto change) {
        change(file);
        return file.Make();
    };
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", "not a BMP"},
        {"\x89PNG", "not a BMP"},
        {whole.Make().substr(0, 40), "ends within its header"},
        {with(whole, [](auto& f) { f.HeaderSize = 12; }), "header of 12 bytes"},
        {with(whole, [](auto& f) { f.HeaderSize = 125; }), "header of 125 bytes"},
        {with(whole, [](auto& f) { f.Height = -1; }), "top down"},
        {with(whole, [](auto& f) { f.Width = 0; }), "0 x 1 pixels"},
        {with(whole, [](auto& f) { f.Width = -5; }), "-5 x 1 pixels"},
        {with(whole, [](auto& f) { f.Width = f.Height = 2147483647; }), "more than can be"},
        {with(whole, [](auto& f) { f.Width = f.Height = 16384; }), "the file ends before"},
        {with(whole, [](auto& f) { f.Pixels.resize(2); }), "the file ends before"},
        {with(whole, [](auto& f) { f.PixelOffset = 20; }), "start at byte 20"},
        {with(whole, [](auto& f) { f.PixelOffset = 1 << 30; }), "start at byte 1073741824"},
        {with(whole, [](auto& f) { f.Bits = 2; }), "2 bits, compression 0"},
        {with(whole, [](auto& f) { f.Compression = 4; }), "24 bits, compression 4"},
        {with(whole,
              [](auto& f) {
                  f.Bits = 16, f.Compression = 3, f.Masks = {5, 2, 8};
              }),
         "masks make no sense"},
        {with(whole,
              [](auto& f) {
                  f.Bits = 16, f.Compression = 3, f.Masks = {0x1F0000, 1, 2};
              }),
         "masks make no sense"},
        {with(whole,
              [](auto& f) {
                  f.Bits = 16, f.Compression = 3, f.Masks = {0, 0, 0};
              }),
         "masks are empty"},
        {with(indexed, [](auto& f) { f.ColorsUsed = 2; }), "palette of 2 colours"},
        {with(indexed, [](auto& f) { f.ColorsUsed = -1; }), "palette of 4294967295 colours"},
        {with(indexed, [](auto& f) { f.Pixels[0] = 1; }), "missing from its palette"},
        {with(indexed,
              [](auto& f) {
                  f.Compression = 1, f.Pixels = {1, 9, 0, 1};
              }),
         "missing from its palette"},
        {with(indexed,
              [](auto& f) {
                  f.Compression = 1, f.Pixels = {1, 0, 0};
              }),
         "ends in the middle"},
        {with(indexed, [](auto& f) { f.Compression = 1, f.Width = f.Height = 9999; }),
         "the file ends before"},
    };
    const TempFolder folder;
    for (const auto& [bytes, problem] : cases) {
        const auto file = folder.Write("bad.bmp", bytes);
        try {
            static_cast<void>(ReadBitmap(file));
            ADD_FAILURE() << "read although: " << problem;
        } catch (const Error& error) {
            EXPECT_THAT(error.what(), HasSubstr(file.string()));
            EXPECT_THAT(error.what(), HasSubstr(problem));
        }
    }
    EXPECT_THROW(static_cast<void>(ReadBitmap(folder / "absent.bmp")), FileError);
    EXPECT_THROW(static_cast<void>(ReadBitmap(folder.Path())), FileError);
}

TEST(BitmapReader, TellsTheHeadersSizeAsItStands) {
    const TempFolder folder;
    for (const BitmapSize size : {BitmapSize{0, 0}, BitmapSize{5, -7}, BitmapSize{70000, 1}}) {
        const BmpBytes file{.Width = size.Width, .Height = size.Height};
        EXPECT_EQ(ReadBitmapSize(folder.Write("x.bmp", file.Make())), size);
    }
}

TEST(BitmapReader, SurvivesAnyDamage) {
    const TempFolder folder;
    std::minstd_rand random(7);
    for (const Kind& kind : FlagInEveryKind()) {
        const std::string whole = kind.File.Make();
        for (std::size_t i = 0; i < 60; ++i) {
            std::string damaged = whole;
            damaged[random() % damaged.size()] = static_cast<char>(random());
            damaged[14 + random() % 40] = static_cast<char>(random());
            damaged.resize(i % 3 == 0 ? random() % damaged.size() : damaged.size());
            try {
                static_cast<void>(ReadBitmap(folder.Write("damaged.bmp", damaged)));
            } catch (const Error&) {  // refusing is as good as reading
            }
        }
    }
}

}  // namespace
}  // namespace vendrel
