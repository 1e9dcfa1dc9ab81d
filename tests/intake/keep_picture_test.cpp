#include "intake/keep_picture.h"

#include <gtest/gtest.h>

#include <barrier>
#include <functional>
#include <string>
#include <thread>

#include "convert/bitmap_reader.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

const Surface kRedPhoto(5, 3, Rgb(200, 10, 10));
const Surface kBluePhoto(5, 3, Rgb(10, 10, 200));

class KeepPictureTest : public ::testing::Test {
  protected:
    test::TempFolder files_;
    ProgramFolder folder_{files_.Path()};
};

TEST_F(KeepPictureTest, KeepsEveryPictureOnceAsABitmap) {
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(KeepPicture(folder_, "aunt", kRedPhoto), "aunt.bmp");
        EXPECT_EQ(KeepPicture(folder_, "aunt", kBluePhoto), "aunt 2.bmp");
        EXPECT_EQ(KeepCrop(folder_, "aunt.bmp", kRedPhoto), "aunt crop.bmp");
        EXPECT_EQ(KeepCrop(folder_, "aunt.bmp", kBluePhoto), "aunt crop 2.bmp");
    }
    EXPECT_EQ(ReadBitmap(files_ / "Pictures/aunt.bmp"), kRedPhoto);
    const std::filesystem::directory_iterator pictures(files_ / "Pictures");
    EXPECT_EQ(std::distance(begin(pictures), end(pictures)), 4);
}

TEST_F(KeepPictureTest, TwoPhotosOfOneNameAtOnceAreBothKept) {
    for (int pair = 0; pair < 60; ++pair) {
        const std::string stem = "pair" + std::to_string(pair);
        const Surface& second = pair % 2 == 0 ? kBluePhoto : kRedPhoto;
        std::string names[2];
        std::barrier start(2);
        const auto take = [&](std::size_t at, const Surface& picture) {
            start.arrive_and_wait();
            names[at] = KeepPicture(folder_, stem, picture);
        };
        std::thread other(take, 1, std::cref(second));
        take(0, kRedPhoto);
        other.join();
        EXPECT_EQ(ReadBitmap(files_ / "Pictures" / names[0]), kRedPhoto) << names[0];
        EXPECT_EQ(ReadBitmap(files_ / "Pictures" / names[1]), second) << names[1];
        EXPECT_EQ(names[0] == names[1], second == kRedPhoto);
    }
}

TEST_F(KeepPictureTest, NeverWritesOverAnotherPhoto) {
    files_.Write("Pictures/aunt.bmp", "not ours");
    files_.Write("Pictures/AUNT 2.BMP", "nor this");
    EXPECT_EQ(KeepPicture(folder_, "aunt", kRedPhoto), "aunt 3.bmp");
    EXPECT_EQ(files_.Read("Pictures/aunt.bmp"), "not ours");
    EXPECT_EQ(files_.Read("Pictures/AUNT 2.BMP"), "nor this");
}

TEST_F(KeepPictureTest, LeavesNamesAloneWhoseResultsWouldMix) {
    files_.Write("Pictures/aunt.old.bmp", "its grid is kept as aunt-Easy.stp");
    files_.Write("Pictures/uncle.jpg", "no bitmap, in nobody's way");
    EXPECT_EQ(KeepPicture(folder_, "Aunt", kRedPhoto), "Aunt 2.bmp");
    EXPECT_EQ(KeepPicture(folder_, "uncle", kRedPhoto), "uncle.bmp");
}

}  // namespace
}  // namespace vendrel
