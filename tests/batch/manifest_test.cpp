#include "batch/manifest.h"

#include <gtest/gtest.h>

#include "batch/batch_run.h"
#include "batch/merge_manifests.h"
#include "batch/paint_totals.h"
#include "batch/report_page.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

ManifestEntry Entry(const std::string& order, bool done, const std::string& inputs) {
    ManifestEntry entry{.Order = order, .Done = done, .Inputs = inputs, .Photo = "a.jpg"};
    if (done) {
        entry.Files = {{"grid", "Orders/" + order + "/a.stp", 3, "sum"}};
        entry.Figures = R"({"stretchPercent":3.2,"figures":{"belowLimits":1}})";
    } else {
        entry.Sentence = "is no \"photo\"";
    }
    return entry;
}

TEST(Manifest, GoesOnBehindALineThatAKillLeftTorn) {
    test::TempFolder files;
    files.Write("batch.jsonl", FormatEntry(Entry("1", false, "a")) + "\n" +
                                   FormatEntry(Entry("2", true, "b")).substr(0, 40));
    ManifestWriter(files.Path() / "batch.jsonl").Add(Entry("1", true, "c"));
    const Manifest known = ReadManifest(files.Path() / "batch.jsonl");
    ASSERT_EQ(known.size(), 1U);
    EXPECT_TRUE(known.at("1").Done);
    EXPECT_EQ(FormatEntry(known.at("1")), FormatEntry(Entry("1", true, "c")));
}

TEST(Manifest, SaysWhatAnOrderNeeds) {
    test::TempFolder files;
    const ManifestEntry made = Entry("1", true, "now");
    const ManifestEntry failed = Entry("1", false, "now");
    EXPECT_EQ(NeedOf(nullptr, "now", files.Path()), OrderNeed::Making);
    EXPECT_EQ(NeedOf(&made, "now", files.Path()), OrderNeed::Making) << "its file is missing";
    files.Write("Orders/1/a.stp", "abc");
    EXPECT_EQ(NeedOf(&made, "now", files.Path()), OrderNeed::Nothing);
    EXPECT_EQ(NeedOf(&made, "then", files.Path()), OrderNeed::Anew);
    files.Write("Orders/1/Kits/a.kit", "by hand");
    EXPECT_EQ(NeedOf(&made, "then", files.Path()), OrderNeed::TouchedUp);
    files.Write("Orders/1/a.stp", "abcd");
    EXPECT_EQ(NeedOf(&made, "now", files.Path()), OrderNeed::Nothing) << "its results too";
    EXPECT_EQ(NeedOf(&failed, "now", files.Path()), OrderNeed::Failed);
    EXPECT_EQ(NeedOf(&failed, "then", files.Path()), OrderNeed::Making);
}

TEST(Manifest, OfShardsIsOneAndPrefersWhatWasMade) {
    test::TempFolder files;
    files.Write("batch-1-of-2.jsonl", FormatEntry(Entry("1", true, "a")) + "\n");
    files.Write("batch-2-of-2.jsonl", FormatEntry(Entry("2", true, "a")) + "\n" +
                                          FormatEntry(Entry("1", false, "a")) + "\n");
    const Manifest merged = MergeManifests(files.Path());
    EXPECT_EQ(merged.size(), 2U);
    EXPECT_TRUE(merged.at("1").Done);
}

TEST(PaintTotals, AddUpWhatOrdersSaid) {
    const auto said = [](const std::string& order, const char* ml) {
        ManifestEntry entry = Entry(order, true, "");
        entry.Figures =
            R"({"needs":{"potMl":20,"paints":[{"set":"S","name":"Red, deep","code":"1",)"
            R"("color":"#C08060","cm2":60,"ml":)" +
            std::string(ml) + "}]}}";
        return entry;
    };
    const ManifestEntry one = said("1", "10");
    const ManifestEntry two = said("2", "8.5");
    const ManifestEntry failed = Entry("3", false, "");
    EXPECT_EQ(FormatTotals(TotalPaints({{nullptr, &one}, {nullptr, &two}, {nullptr, &failed}}, {})),
              "\xEF\xBB\xBFset,name,code,color,cm2,ml,left ml,buy ml,pots,orders\r\n"
              "S,\"Red, deep\",1,#C08060,120.0,18.5,0.0,21.3,2,1; 2\r\n");
}

TEST(Report, WarnsOfWhatAPainterWouldSee) {
    EXPECT_EQ(WarningsOf(Entry("1", true, "").Figures),
              (std::vector<std::string>{"1 area is too small or too narrow for a brush",
                                        "stretched by 3 %"}));
}

}  // namespace
}  // namespace vendrel
