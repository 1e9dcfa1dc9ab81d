#include "output/symbol_set.h"

#include <gmock/gmock.h>

#include <array>

#include "shell/recorder.h"
#include "support/error.h"

namespace vendrel {
namespace {

using testing::HasSubstr;

// Every symbol one pixel, at (symbol, 2 * symbol) of the canvas; symbol 50 is empty.
std::string OnePixelSymbols() {
    std::string text;
    for (int k = 1; k < kSymbolCount; ++k) {
        text += " 1\r\n" + std::to_string(k) + "," + std::to_string(2 * k) + "\r\n";
    }
    return text + " 0\r\n";
}

// A canvas four pixels square that prints a character as one pixel of ink and one softened one.
class TinyCanvas : public Canvas {
  public:
    int Width() const override { return 4; }
    int Height() const override { return 4; }
    void Clear(Color background) override { picture_ = Surface(4, 4, background); }
    void SetFont(std::string_view name, int points) override {
        Font = std::string(name) + " " + std::to_string(points);
    }
    void Print(char character, Color ink) override {
        picture_.Set(character % 4, 1, ink);
        picture_.Set(0, 3, ink + 1);
        if (character == '1') {
            picture_.Set(0, 0, ink);
        }
        Printed += character;
    }
    Color Get(int x, int y) const override { return picture_.Get(x, y); }

    std::string Font;
    std::string Printed;

  private:
    Surface picture_;
};

TEST(SymbolSet, TiesSymbolsToTheirCharacters) {
    test::Bench bench;
    bench.Files.Write("data/symbols.txt", OnePixelSymbols());
    SetupBMPSymbols(bench.State, bench.Program);
    const auto& codes = bench.State.SymbolCodes;
    for (const auto& [symbol, character] : {std::pair{1, '1'}, {23, 'N'}, {24, '0'}, {50, 'z'}}) {
        EXPECT_EQ(codes[symbol], character);
    }
    for (const char never : std::string("OQVbhijlopqv")) {
        EXPECT_THAT(codes.Entries(), testing::Not(testing::Contains(never)));
    }
}

TEST(SymbolSet, StampsWithTheShiftAndCutsAtTheSheet) {
    test::Bench bench;
    bench.Files.Write("Data/Symbols.txt", OnePixelSymbols());
    SetupBMPSymbols(bench.State, bench.Program);
    std::array<std::uint8_t, 24 * 12> bits{};
    const DibView sheet(bits.data(), 8, 12, 24);
    const auto stamp = [&](int symbol, CellPos at) {
        Number2CDIB(sheet, InkOf(bench.State, symbol), 4, kWhite, at);
    };
    stamp(2, {1, 2});  // canvas (2, 4): on the corner itself
    EXPECT_EQ(sheet.Get(4, 8), kWhite);
    stamp(1, {1, 2});  // canvas (1, 2): left of and above the corner
    EXPECT_EQ(sheet.Get(3, 6), kWhite);
    bits = {};
    for (const int symbol : {1, 50, 0}) {
        stamp(symbol, {0, 0});
    }
    EXPECT_THAT(bits, testing::Each(0));
    EXPECT_THROW(stamp(51, {0, 0}), Error);
    EXPECT_THROW(stamp(-1, {0, 0}), Error);
    EXPECT_THROW(stamp(1, {0, 8193}), OverflowError);
}

TEST(SymbolSet, NamesFileAndLineOfBrokenGlyphs) {
    for (const auto& [text, problem] :
         {std::pair{"1\r\n3,x\r\n", "line 2: a symbol pixel's row"},
          {"1\r\n-32767,3\r\n", "line 2: a symbol pixel's column lies too far out"},
          {"-1\r\n", "line 1: a symbol's pixel count"},
          {"3\r\n1,1\r\n2,2\r\n", "line 4: the file ends"},
          {"", "the file ends"}}) {
        test::Bench bench;
        bench.Files.Write("Data/Symbols.txt", text);
        EXPECT_THAT([&] { SetupBMPSymbols(bench.State, bench.Program); },
                    testing::ThrowsMessage<FormatError>(
                        testing::AllOf(HasSubstr("Symbols.txt"), HasSubstr(problem))));
    }
    test::Bench empty;
    EXPECT_THROW(SetupBMPSymbols(empty.State, empty.Program), FileError);
}

TEST(SymbolSet, MakesAFileOfCanvasPositionsRowByRow) {
    test::Bench bench;
    TinyCanvas canvas;
    MakeSymbolFile(bench.State, bench.State.SymbolColor, bench.Files / "Data/Symbols.txt", canvas);
    EXPECT_EQ(canvas.Printed, kSymbolCharacters);
    EXPECT_EQ(canvas.Font, "Courier New 12");
    const std::string text = bench.Files.Read("Data/Symbols.txt");
    EXPECT_THAT(text, testing::StartsWith(" 2\r\n0,0\r\n1,1\r\n 1\r\n2,1\r\n 1\r\n3,1\r\n"));
    SetupBMPSymbols(bench.State, bench.Program);
    EXPECT_EQ(bench.State.SymbolGlyphs[1].Points[2], (GlyphPoint{-1, -3}));
}

TEST(SymbolSet, ShipsFiftyDifferentLegibleSymbols) {
    test::Bench bench(VENDREL_SOURCE_DIR);
    SetupBMPSymbols(bench.State, bench.Program);
    const auto& glyphs = bench.State.SymbolGlyphs;
    for (int k = 1; k <= kSymbolCount; ++k) {
        EXPECT_GE(glyphs[k].PointCount(), 14) << k;
        for (int other = 1; other < k; ++other) {
            EXPECT_NE(glyphs[k].Points, glyphs[other].Points) << k << " and " << other;
        }
        for (const GlyphPoint& p : glyphs[k].Points) {
            EXPECT_TRUE(p.X >= -2 && p.X <= 7 && p.Y >= -3 && p.Y <= 11) << k;
        }
    }
}

}  // namespace
}  // namespace vendrel
