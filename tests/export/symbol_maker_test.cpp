#include "export/symbol_maker.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "export/gui_application.h"
#include "export/symbol_font.h"
#include "output/symbol_set.h"
#include "shell/recorder.h"
#include "support/list.h"

namespace vendrel {
namespace {

TEST(SymbolMaker, DrawsCapitalsOfOneHeight) {
    test::Bench bench;
    EXPECT_EQ(MakeSymbols(bench.Program).Note, "");
    const std::string once = bench.Files.Read("Data/Symbols.txt");
    EXPECT_EQ(MakeSymbols(bench.Program).Note, "");
    EXPECT_EQ(bench.Files.Read("Data/Symbols.txt"), once);
    SetupBMPSymbols(bench.State, bench.Program);
    for (int k = 1; k <= 33; ++k) {  // the digits and capitals
        const SymbolGlyph& glyph = bench.State.SymbolGlyphs[k];
        const auto byRow = [](GlyphPoint a, GlyphPoint b) { return a.Y < b.Y; };
        const auto [top, bottom] =
            std::minmax_element(glyph.Points.begin(), glyph.Points.end(), byRow);
        EXPECT_EQ(top->Y, -2) << At(kSymbolCharacters, k - 1);
        EXPECT_EQ(bottom->Y, 8) << At(kSymbolCharacters, k - 1);
    }
}

TEST(SymbolMaker, SaysWhenTheSymbolsWillDiffer) {
    const GuiApplication application;
    EXPECT_EQ(UseVersion(kSymbolFont), "");
    EXPECT_THAT(UseVersion({kSymbolFont.Family, kSymbolFont.File, "9.99"}),
                testing::HasSubstr("Liberation Mono 9.99 is not installed"));
}

}  // namespace
}  // namespace vendrel
