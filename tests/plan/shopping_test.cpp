#include "plan/shopping.h"

#include <gmock/gmock.h>

#include "plan/paint_marks.h"
#include "plan/sticker_sheet.h"
#include "shelf/nearest_owned.h"
#include "shelf/painted.h"

namespace vendrel {
namespace {

const PaintColor kRed{200, 10, 20, "Oils", "PR108", "Cadmium Red", 0};
const PaintColor kBlue{20, 30, 200, "Craft", "78", "Blue Sky", 0};
const PaintColor kGreen{20, 160, 60, "Oils", "PG7", "Phthalo", 0};

Shelf TwoPaints() {
    Shelf shelf;
    AddToShelf(shelf, kRed).MlLeft = 5;
    AddToShelf(shelf, kBlue);
    return shelf;
}

TEST(Shopping, AddsUpKitsAndTakesOffWhatIsLeft) {
    const std::vector<KitNeeds> kits = {
        {"a", {kRed, kBlue}, {{.Paint = 1, .Ml = 4}, {.Paint = 2, .Ml = 40}}, {.PotMl = 20}},
        {"b", {kGreen, kRed}, {{.Paint = 1, .Ml = 20}, {.Paint = 2, .Ml = 20}}, {}}};
    const std::vector<ShoppingItem> items = ListShopping(TwoPaints(), kits);
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0].Paint, kRed);  // sets stay together
    EXPECT_EQ(items[1].Paint, kGreen);
    EXPECT_THAT(items[0].Kits, testing::ElementsAre("a", "b"));
    EXPECT_NEAR(items[0].BuyMl, 24 * 1.15 - 5, 1e-9);
    EXPECT_EQ(items[0].Pots, 2);
    EXPECT_EQ(items[1].Pots, 2);
    EXPECT_EQ(items[2].BuyMl, 0);  // nobody knows how much is left
    EXPECT_THAT(ShoppingCsv(items),
                testing::EndsWith("Oils,Phthalo,PG7,#14A03C,20.0,0.0,23.0,2,b\r\n"));
}

TEST(Shopping, GivesBackExactlyWhatPaintingTook) {
    Shelf shelf = TwoPaints();
    const Shelf before = shelf;
    EXPECT_EQ(TakePainted(shelf, "a", {{IdOf(kRed), 3.333}, {IdOf(kBlue), 9}, {IdOf(kGreen), 1}}),
              1);
    EXPECT_EQ(TakePainted(shelf, "b", {{IdOf(kRed), 9}}), 1);
    EXPECT_FALSE(shelf.Paints[0].IsLeft());
    EXPECT_EQ(NearestOwned(shelf, ColorOf(kRed), 3).size(), 1U);
    EXPECT_EQ(UndoPainted(shelf, "a"), 1);
    EXPECT_EQ(UndoPainted(shelf, "b"), 1);
    EXPECT_EQ(shelf, before);
    EXPECT_ANY_THROW(UndoPainted(shelf, "b"));
}

TEST(PaintMarks, KeepTheLabelsOfTheShelfAndFindFreeOnesForOthers) {
    const auto labels = LabelsFor(LabelsOnShelf(TwoPaints()), {kGreen, kBlue, kRed});
    EXPECT_THAT(labels, testing::ElementsAre(OwnLabel{"E", true}, OwnLabel{"C", false},
                                             OwnLabel{"A", false}));
}

TEST(Stickers, LieOnTheirSheets) {
    for (const StickerSheet& sheet : StickerSheets()) {
        const auto places = PlaceStickers(sheet, sheet.Count(), 1);
        EXPECT_EQ(places.back().Page, 1) << sheet.Name;
        const PlanRect& last = places[places.size() - 2].Box;
        EXPECT_LE(last.Right, sheet.Paper.Width - sheet.Left + 0.5) << sheet.Name;
        EXPECT_LE(last.Bottom, sheet.Paper.Height - sheet.Top + 0.5) << sheet.Name;
    }
    EXPECT_EQ(StickerGrid({210, 297}, {20, 20}, 5).Count(), 10 * 14);
    EXPECT_ANY_THROW((void)StickerGrid({210, 297}, {205, 20}, 5));
}

}  // namespace
}  // namespace vendrel
