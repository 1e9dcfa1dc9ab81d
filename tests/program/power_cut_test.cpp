#include <gmock/gmock.h>

#include "cleanup/paint_bench.h"
#include "intake/keep_picture.h"
#include "paints/paint_list.h"
#include "paints/template_file.h"
#include "paints/template_library.h"
#include "program/studio.h"
#include "support/fragile_disk.h"
#include "touchup/touch_up.h"

namespace vendrel::test {
namespace {

TEST(PowerCut, LeavesWhatWasSaved) {
    PaintBench bench(8, {"12", "12"}, 2);
    const ProgramFolder folder(bench.Files / "studio");
    bench.State.PaintSets = {{.Name = "Set", .Selected = true}};
    const Surface photo(5, 3, Rgb(200, 10, 10));
    const FragileDisk disk(bench.Files.Path());
    WriteTemplate(TemplatePath(folder, "Sea"), bench.State.PaintColors);
    RenameTemplate(bench.State, folder, "Sea", "Beach");
    SavePaintList(bench.State, folder);
    KeepPicture(folder, "aunt", photo);
    for (const char* saved : {"templates/Beach.csv", "data/paintlist.txt", "Pictures/aunt.bmp"}) {
        const std::string bytes = bench.Files.Read(std::string("studio/") + saved);
        EXPECT_NE(bytes, "") << saved;
        EXPECT_TRUE(disk.AfterCut(bench.Files / "studio" / saved) == bytes) << saved;
    }
    EXPECT_EQ(disk.AfterCut(bench.Files / "studio/templates/Sea.csv"), "");
}

TEST(PowerCut, LeavesTheGridOfAKitAndThePhotoTakenIn) {
    Studio studio;
    studio.AddPhoto("ball.bmp");
    const FragileDisk disk(studio.Files.Path());
    ASSERT_EQ(studio.Kit({studio.Path("ball.bmp"), "--outputs", "grid"}), 0) << studio.Err;
    for (const char* file : {"Saved Stipples/ball-Easy.stp", "Pictures/ball.bmp"}) {
        EXPECT_TRUE(disk.AfterCut(studio.Files / file) == studio.Files.Read(file)) << file;
    }
}

TEST(PowerCut, LeavesTouchedUpWorkInTheRecoveryOrTheGridAtEveryMoment) {
    PaintBench bench(8, {"12", "12"}, 2);
    const auto grid = bench.Files / "Saved Stipples/Lady-Easy.stp";
    const auto recovery = bench.Files / "Saved Stipples/Lady-Easy.recovery.stp";
    FragileDisk disk(bench.Files.Path());
    TouchUp editor(bench.Place);
    editor.Fill({1, 1}, 2);
    editor.KeepRecoveryNow();
    const std::string work = bench.Files.Read("Saved Stipples/Lady-Easy.recovery.stp");
    EXPECT_THAT(work, testing::HasSubstr("2,2,2,50"));
    EXPECT_EQ(disk.AfterCut(recovery), work);
    int moments = 0;
    disk.AfterSync = [&] {
        ++moments;
        const bool removed = !std::filesystem::exists(recovery);
        EXPECT_TRUE(disk.AfterCut(grid) == work || (!removed && disk.AfterCut(recovery) == work));
    };
    editor.SaveIt_Click();
    EXPECT_GE(moments, 3);
    EXPECT_EQ(disk.AfterCut(grid), work);
    EXPECT_EQ(disk.AfterCut(recovery), "") << "older than the grid by now";
}

}  // namespace
}  // namespace vendrel::test
