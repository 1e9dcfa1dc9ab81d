#include "edits/lay_edits.h"

#include <gtest/gtest.h>

#include "edits/place_edits.h"

namespace vendrel {
namespace {

using Rows = std::vector<std::string>;

// Paints by letters; the later in the alphabet, the lighter.
PaintColor Letter(char letter) {
    const int level = 9 * (letter - 'A');
    return {level, level, level, "Set", "", std::string(1, letter), 0};
}

PaintList Letters(const std::string& letters) {
    PaintList paints;
    for (const char letter : letters) {
        paints.Add(Letter(letter));
    }
    return paints;
}

Grid<StippleCell> GridOfLetters(const Rows& rows, const PaintList& paints) {
    Grid<StippleCell> cells(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
    for (int y = 1; y <= cells.Down(); ++y) {
        for (int x = 1; x <= cells.Across(); ++x) {
            const std::string name(
                1, rows[static_cast<std::size_t>(y - 1)][static_cast<std::size_t>(x - 1)]);
            for (int p = 1; p <= paints.Count(); ++p) {
                cells(x, y).ColorIndex = paints[p].PaintName == name ? p : cells(x, y).ColorIndex;
            }
        }
    }
    return cells;
}

Rows LettersOf(const LaidEdits& laid) {
    Rows rows;
    for (int y = 1; y <= laid.Cells.Down(); ++y) {
        rows.emplace_back();
        for (int x = 1; x <= laid.Cells.Across(); ++x) {
            rows.back() += laid.Paints[laid.Cells(x, y).ColorIndex].PaintName;
        }
    }
    return rows;
}

std::string NamesOf(const PaintList& paints) {
    std::string names;
    for (const PaintColor& paint : paints) {
        names += paint.PaintName;
    }
    return names;
}

// Edits as letters over dots; a small letter is a wish for the neighbors' paint.
EditLayer Layer(const Rows& rows, const std::vector<std::string>& exchanges = {}) {
    EditLayer layer{static_cast<int>(rows[0].size()),
                    static_cast<int>(rows.size()),
                    Letters("ABCDEFGHIJKLMNOPQRSTUVWXYZ"),
                    {},
                    {}};
    for (int y = 1; y <= layer.Down; ++y) {
        for (int x = 1; x <= layer.Across; ++x) {
            const char letter =
                rows[static_cast<std::size_t>(y - 1)][static_cast<std::size_t>(x - 1)];
            const bool hand = letter < 'a';
            if (letter != '.') {
                layer.Cells.push_back({{x, y},
                                       hand ? StippleWish::Paint : StippleWish::Neighbors,
                                       letter - (hand ? 'A' : 'a') + 1});
            }
        }
    }
    for (const std::string& pair : exchanges) {
        layer.Exchanges.push_back({Letter(pair[0]), Letter(pair[1])});
    }
    return layer;
}

struct LayCase {
    const char* Name;
    std::string Palette;
    Rows Base;
    Rows Edits;
    std::vector<std::string> Exchanges;
    LayTerms Terms;
    Rows Laid;
    std::string LaidPalette;
    std::string Said;
    std::string Order = {};
};

TEST(LayEdits, LaysEachEditOnTheGridThatTheConversionGives) {
    const ExchangedPaints leave = ExchangedPaints::Leave;
    const LayCase cases[] = {
        {"paints of the palette",
         "AB",
         {"AAA", "BBB"},
         {"B..", "..A"},
         {},
         {},
         {"BAA", "BBA"},
         "AB",
         "All 2 edits kept"},
        {"a paint that is gone joins",
         "AB",
         {"AAA"},
         {".C."},
         {},
         {},
         {"ACA"},
         "ABC",
         "1 edit kept, 1 more paint for them"},
        {"without room the nearest stands in",
         "AZ",
         {"AZA"},
         {"Y.A"},
         {},
         {2},
         {"ZZA"},
         "AZ",
         "1 of 2 edits kept, 1 took Z instead of Y"},
        {"the one with most stipples has the room",
         "AZ",
         {"AAAAZ"},
         {"BYY.."},
         {},
         {3},
         {"AYYAZ"},
         "AZY",
         "2 of 3 edits kept, 1 more paint for them, 1 took A instead of B"},
        {"a paint without stipples makes room",
         "ABC",
         {"AAC"},
         {".Z."},
         {},
         {3},
         {"AZC"},
         "AZC",
         "1 edit kept"},
        {"exchanges do not follow each other",
         "ABC",
         {"ABC"},
         {"..."},
         {"AB", "BC"},
         {},
         {"BCC"},
         "ABC",
         "All 2 edits kept"},
        {"the one exchanged leaves when asked to",
         "ABC",
         {"ABC"},
         {"..."},
         {"AB"},
         {50, leave},
         {"BBC"},
         "BC",
         "1 edit kept"},
        {"an exchange brings its paint to the other's place",
         "AB",
         {"ABB"},
         {"..."},
         {"AZ", "YX"},
         {2},
         {"ZBB"},
         "ZB",
         "1 edit kept"},
        {"a stipple painted by hand stays what its base exchanges",
         "AB",
         {"AAB"},
         {"A.."},
         {"AZ"},
         {},
         {"AZB"},
         "ABZ",
         "All 2 edits kept, 1 more paint for them"},
        {"neighbors that have the paint, one by one",
         "AB",
         {"ABBBA"},
         {"..aa."},
         {},
         {},
         {"ABAAA"},
         "AB",
         "All 2 edits kept"},
        {"else what most neighbors have",
         "ABC",
         {"ABB", "ABB", "CCC"},
         {"...", ".z.", "..."},
         {},
         {},
         {"ABB", "ABB", "CCC"},
         "ABC",
         "1 edit kept"},
        {"a whole grid of wishes stays",
         "AB",
         {"AB"},
         {"ba"},
         {},
         {},
         {"AB"},
         "AB",
         "All 2 edits kept"},
        {"the order by hand", "ABC", {"ABC"}, {"..."}, {}, {}, {"ABC"}, "CAB", "", "CAB"},
        {"each in its place, a stranger between",
         "XABC",
         {"XABC"},
         {"...."},
         {},
         {},
         {"XABC"},
         "CBXA",
         "",
         "CBDA"},
        {"closed up for want of room", "XAC", {"XAC"}, {"..."}, {}, {}, {"XAC"}, "XCA", "", "EDCA"},
        {"what joins, in its place",
         "AB",
         {"ABA"},
         {"..D"},
         {},
         {},
         {"ABD"},
         "DBA",
         "1 edit kept, 1 more paint for them",
         "DBA"},
        {"the one exchanged stands for the other",
         "AB",
         {"AB"},
         {".."},
         {"AZ"},
         {},
         {"ZB"},
         "BZ",
         "1 edit kept",
         "BA"},
        {"a damaged file's two for one",
         "ABC",
         {"ABC"},
         {"Z.Y"},
         {"AZ", "AY"},
         {50, leave},
         {"ZBY"},
         "BZYC",
         "All 4 edits kept, 1 more paint for them",
         "BA"},
    };
    for (const LayCase& one : cases) {
        SCOPED_TRACE(one.Name);
        const PaintList paints = Letters(one.Palette);
        const Grid<StippleCell> base = GridOfLetters(one.Base, paints);
        EditLayer layer = Layer(one.Edits, one.Exchanges);
        layer.Order = Letters(one.Order);
        const LaidEdits laid = LayEdits({paints, base}, layer, one.Terms);
        EXPECT_EQ(LettersOf(laid), one.Laid);
        EXPECT_EQ(NamesOf(laid.Paints), one.LaidPalette);
        EXPECT_EQ(Sentence(laid.Report), one.Said);
    }
}

TEST(PlaceEdits, KeepsTheirPlaceInThePictureOnOtherGridsAndParts) {
    const Rows edits{"A...", ".B..", "...."};
    const auto placed = [&](const LayerPart& part, int across, int down) {
        const PaintList dot = Letters(".");
        const Grid<StippleCell> base =
            GridOfLetters(Rows(static_cast<std::size_t>(down),
                               std::string(static_cast<std::size_t>(across), '.')),
                          dot);
        return LettersOf(LayEdits({dot, base}, EditsOfPart(Layer(edits), part, across, down)));
    };
    EXPECT_EQ(placed({}, 8, 3), (Rows{"AA......", "..BB....", "........"}));
    EXPECT_EQ(placed({}, 4, 1), (Rows{".B.."})) << "no center lies in the edited corner";
    EXPECT_EQ(placed({0.25, 0, 0.5, 1}, 2, 3), (Rows{"..", "B.", ".."}));
    EXPECT_EQ(placed({0, 0, 1, 1, 1}, 3, 4), (Rows{"..A", ".B.", "...", "..."}));
    EXPECT_EQ(placed({0, 0, 1, 1, 2}, 4, 3), (Rows{"....", "..B.", "...A"}));
    EXPECT_EQ(placed({0, 0, 1, 1, 3}, 3, 4), (Rows{"...", "...", ".B.", "A.."}));
}

}  // namespace
}  // namespace vendrel
