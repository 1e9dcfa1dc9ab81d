#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

#include "forms/folder_lists.h"
#include "forms/swatches.h"
#include "support/temp_folder.h"

namespace vendrel::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

TEST(FolderLists, ShowPhotosAndFoldersAsAPainterReadsThem) {
    const TempFolder files;
    for (const char* name : {"b.bmp", "A.BMP", "c.Bmp", ".hidden.bmp", "notes.txt", "Zoo/x.bmp",
                             "art/x", ".git/x", "folder.bmp/x"}) {
        files.Write(name, "");
    }
    EXPECT_THAT(ListPhotos(files.Path()), ElementsAre("A.BMP", "b.bmp", "c.Bmp"));
    EXPECT_THAT(ListFolders(files.Path()), ElementsAre("..", "art", "folder.bmp", "Zoo"));
    EXPECT_THAT(ListFolders(files / "missing"), ElementsAre(".."));
    EXPECT_THAT(ListFolders("/"), Not(Contains("..")));
}

TEST(FolderLists, AFolderBelongsToTheDeepestDriveAboveIt) {
    const std::vector<Drive> drives = {{"Computer", "/"}, {"Home", "/home/ann"}};
    EXPECT_EQ(DriveOf(drives, "/home/ann/Pictures"), 1);
    EXPECT_EQ(DriveOf(drives, "/home/anne/Pictures"), 0);
    EXPECT_EQ(DriveOf({}, "/home"), -1);
}

TEST(Swatches, ShrinkUntilAllPaintsFit) {
    for (const auto& [width, height, count, twips, size, columns] :
         {std::tuple{340, 255, 20, 15, 17, 20},
          {340, 255, 301, 15, 16, 21},
          {60, 40, 200, 15, 3, 20},
          {340, 255, 20, 12, 21, 16},
          {1, 1, 50, 15, 1, 1}}) {
        const SwatchLayout layout = LayOutSwatches(width, height, count, twips);
        EXPECT_EQ(layout.Size, size) << count;
        EXPECT_EQ(layout.Columns, columns) << count;
    }
    const SwatchLayout layout{10, 4};
    EXPECT_EQ(layout.IndexAt(layout.Left(6) + 9, layout.Top(6)), 6);
    EXPECT_EQ(layout.IndexAt(40, 0), -1);
    EXPECT_EQ(SwatchLayout{}.IndexAt(0, 0), -1);
}

}  // namespace
}  // namespace vendrel::test
