#include <gmock/gmock.h>

#include "batch/batch_options.h"
#include "batch/kit_names.h"
#include "batch/read_orders.h"
#include "support/error.h"

namespace vendrel {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

TEST(Orders, AreReadHoweverASpreadsheetWritesThem) {
    const OrderList list = ParseOrders(
        "Note;PHOTO;Final-Paints;Sets;Paintable;Customer\r\n"
        "\"two;\r\nlines\";a.jpg;16;Craft|Fine;yes;Rose\r\n\r\n;b.jpg;;;no;\r\n;sub/b.jpg\r\n",
        "orders.csv");
    ASSERT_TRUE(list.Faults.empty());
    EXPECT_THAT(list.Unused, ElementsAre("Customer"));
    ASSERT_EQ(list.Orders.size(), 3U);
    EXPECT_EQ(list.Orders[0].Id, "a");
    EXPECT_EQ(list.Orders[0].Fields[0].second, "two;\r\nlines");
    EXPECT_THAT(list.Orders[0].Words,
                ElementsAre("--final-paints=16", "--sets=Craft", "--sets=Fine", "--paintable"));
    EXPECT_EQ(list.Orders[1].Line, 5);
    EXPECT_EQ(list.Orders[2].Id, "b-2");
}

TEST(Orders, RowsThatCannotBeMadeAreNamedByLineAndColumn) {
    const OrderList list = ParseOrders(
        "order,photo,paintable\n7,a.jpg,perhaps\n7,b.jpg\n../8,c.jpg\nX,\nx,d.jpg\n9,e.jpg,no,25\n",
        "orders.csv");
    std::string faults;
    for (const OrderFault& fault : list.Faults) {
        faults += std::to_string(fault.Line) + fault.Column + " ";
    }
    EXPECT_EQ(faults, "2paintable 3order 4order 5photo 6order 7 ");
    for (const char* text : {"", "order,title\n1,x\n", "photo\n", "photo\n\"a"}) {
        EXPECT_THROW((void)ParseOrders(text, "orders.csv"), FormatError) << text;
    }
}

TEST(Orders, NameTheirKitsAndFillInTheirLeaflets) {
    const OrderList list = ParseOrders(
        "order,photo,title,Gift-For,canvas,leaflet\n7,a.jpg,Sea,\"Ann, 8\",30cm,hi.txt\n8,b.jpg\n",
        "orders.csv");
    const Order& sea = list.Orders.at(0);
    EXPECT_EQ(KitNameOf(sea, "{order} {TITLE} {gift_for} {difficulty}", "easy"),
              "7 Sea Ann, 8 easy");
    EXPECT_EQ(KitNameOf(list.Orders.at(1), "{title} {gift for}", "easy"), "b");
    EXPECT_THROW((void)KitNameOf(sea, "{customer}", "easy"), UsageError);
    const auto words = WordsWithOrder(WordsOver({}, sea), sea);
    for (const char* word : {"--order=7", "--leaflet=hi.txt", "--field=Gift-For=Ann, 8",
                             "--field=title=Sea", "--canvas=30cm"}) {
        EXPECT_THAT(words, Contains(word));
    }
    EXPECT_THAT(words, Not(Contains("--field=canvas=30cm")));
    EXPECT_THAT(WordsWithOrder({}, list.Orders.at(1)), ElementsAre("--order=8"));
    Order named = sea;
    NameKit(named, "7 Sea");
    EXPECT_THAT(named.Words, Not(Contains("--title=Sea")));
    EXPECT_THAT(named.Words, Contains("--title=7 Sea"));
}

TEST(Orders, ARowGoesBeforeTheSettingsOfAll) {
    Order order{.Id = "1",
                .Photo = "a.jpg",
                .Words = {"--template=mine"},
                .Fields = {{"template", "mine"}, {"Paintable", "no"}, {"x", ""}}};
    EXPECT_THAT(WordsOver({"--sets=A", "--paintable", "--sets=B", "--gray=40"}, order),
                ElementsAre("--gray=40", "--template=mine"));
}

BatchOptions Parsed(const std::vector<std::string_view>& words) {
    return ParseBatch(words);
}

TEST(BatchOptions, LeaveTheKitsTheirOwn) {
    const BatchOptions options =
        Parsed({"--difficulty", "medium", "o.csv", "--jobs=3", "--shard", "2/4", "--folder", "shop",
                "--retry-failed", "--quiet", "--leaflet", "hi.txt"});
    EXPECT_EQ(options.Orders, "o.csv");
    EXPECT_EQ(options.Folder, "shop");
    EXPECT_EQ(options.Jobs, 3);
    EXPECT_TRUE(options.RetryFailed);
    EXPECT_THAT(options.Words, ElementsAre("--difficulty=medium", "--leaflet=hi.txt"));
    EXPECT_TRUE(options.Part->Has(1) && options.Part->Has(5) && !options.Part->Has(2));
    EXPECT_EQ(Parsed({"--merge"}).Task, BatchTask::Merge);
    const std::vector<std::vector<std::string_view>> wrong = {{},
                                                              {"a.csv", "b.csv"},
                                                              {"a.csv", "--jobs", "0"},
                                                              {"a.csv", "--shard", "3/2"},
                                                              {"a.csv", "--shard"},
                                                              {"a.csv", "--names="},
                                                              {"a.csv", "--order", "7"},
                                                              {"a.csv", "--title", "x"},
                                                              {"a.csv", "--from-grid"},
                                                              {"a.csv", "--dry-run", "--verify"},
                                                              {"a.csv", "--difficulty", "hard"}};
    for (const auto& words : wrong) {
        EXPECT_THROW((void)Parsed(words), UsageError);
    }
}

}  // namespace
}  // namespace vendrel
