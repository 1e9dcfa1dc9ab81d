#include "intake/photo_intake.h"

#include <gtest/gtest.h>

#include <barrier>
#include <thread>
#include <tuple>
#include <utility>

#include "convert/bitmap_reader.h"
#include "convert/bitmap_writer.h"
#include "convert/bmp_bytes.h"
#include "convert/working_size.h"
#include "intake/keep_picture.h"
#include "intake/picture_decoder.h"
#include "support/error.h"
#include "support/pictures.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// Rows of a picture differ.
test::PictureDecoder DecoderOf(int width, int height) {
    return test::PictureDecoder(
        test::PictureOf(width, height, [](int /*x*/, int y) { return y + 1; }));
}

std::string TakeIn(const ProgramFolder& folder, const fs::path& file,
                   const PhotoDecoder& decoder = NoPhotoDecoder()) {
    IncomingPhoto photo(file, decoder);
    return TakeIntoPictures(folder, photo);
}

class PhotoIntakeTest : public ::testing::Test {
  protected:
    test::TempFolder files_;
    ProgramFolder folder_{files_ / "program"};
    CropTarget easy_{ScreenSize::FromPixels(1920, 1080), 8};
};

TEST_F(PhotoIntakeTest, DecodesOnlyWhatTheBitmapReaderCannotRead) {
    const test::PictureDecoder decoder = DecoderOf(30, 20);
    EXPECT_EQ(TakeIn(folder_, files_.Write("my.aunt.jpg", "\xFF\xD8\xFF"), decoder), "my-aunt.bmp");
    EXPECT_EQ(ReadBitmapSize(files_ / "program/Pictures/my-aunt.bmp"), (BitmapSize{30, 20}));
    WriteBitmap(files_ / "uncle.bmp", Surface(4, 3));
    EXPECT_EQ(TakeIn(folder_, files_ / "uncle.bmp", decoder), "uncle.bmp");
    EXPECT_EQ(ReadBitmapSize(files_ / "program/Pictures/uncle.bmp"), (BitmapSize{4, 3}));
}

TEST_F(PhotoIntakeTest, ABitmapThatNothingCouldBeNamedAfterIsKeptUnderANameThatCan) {
    const Surface red(4, 3, Rgb(200, 10, 10));
    for (const auto& [name, kept] : {std::pair{"holiday", "holiday.bmp"},
                                     {".bmp", "bmp.bmp"},
                                     {".my.aunt.bmp", "my-aunt.bmp"},
                                     {"aunt.dat", "aunt.dat"}}) {
        WriteBitmap(files_ / name, red);
        EXPECT_EQ(TakeIn(folder_, files_ / name), kept);
        EXPECT_EQ(ReadBitmap(files_ / "program/Pictures" / kept), red);
        EXPECT_EQ(TakeIn(folder_, files_ / name), kept) << "not kept twice";
    }
    const std::string nothing = test::BmpBytes{.Width = 0, .Height = 0}.Make();
    EXPECT_THROW(std::ignore = TakeIn(folder_, files_.Write("nothing", nothing)), FormatError);
}

TEST_F(PhotoIntakeTest, CopiesAPhotoFromElsewhereOnceAndNeverOverAnother) {
    files_.Write("program/Pictures/other.bmp", "another picture");
    const auto lady = files_.Write("downloads/lady.bmp", "lady");
    EXPECT_EQ(TakeIn(folder_, lady), "lady.bmp");
    EXPECT_EQ(files_.Read("program/Pictures/lady.bmp"), "lady");
    EXPECT_EQ(TakeIn(folder_, lady), "lady.bmp") << "the same bytes again are welcome";
    EXPECT_EQ(TakeIn(folder_, files_ / "program/Pictures/lady.bmp"), "lady.bmp");

    EXPECT_THROW(std::ignore = TakeIn(folder_, files_.Write("downloads/other.bmp", "x")),
                 FileError);
    EXPECT_EQ(files_.Read("program/Pictures/other.bmp"), "another picture");
    EXPECT_THROW(std::ignore = TakeIn(folder_, files_ / "gone.bmp"), FileError);
    EXPECT_FALSE(fs::exists(files_ / "program/Pictures/gone.bmp"));
}

TEST_F(PhotoIntakeTest, OfTwoBitmapsOfOneNameAtOnceNoneIsLost) {
    const fs::path photos[] = {files_.Write("one/a.bmp", std::string(9000, '1')),
                               files_.Write("two/a.bmp", std::string(9000, '2'))};
    for (int pair = 0; pair < 60; ++pair) {
        std::barrier start(2);
        bool taken[2] = {};
        const auto take = [&](std::size_t at) {
            start.arrive_and_wait();
            try {
                static_cast<void>(TakeIn(folder_, photos[at]));
                taken[at] = true;
            } catch (const FileError&) {  // told, with the photo where it was
            }
        };
        std::thread other(take, 1);
        take(0);
        other.join();
        ASSERT_NE(taken[0], taken[1]);
        EXPECT_EQ(files_.Read("program/Pictures/a.bmp")[0], taken[0] ? '1' : '2');
        fs::remove(files_ / "program/Pictures/a.bmp");
    }
}

TEST_F(PhotoIntakeTest, CropsASquarePortraitBesideItself) {
    const std::string photo = TakeIn(folder_, files_.Write("aunt.jpg", "x"), DecoderOf(600, 600));
    ASSERT_EQ(CropInPictures(folder_, photo, easy_, CropPart::Whole), photo);
    const std::string top = CropInPictures(folder_, photo, easy_, CropPart::Top);
    const std::string centre = CropInPictures(folder_, photo, easy_, CropPart::Centre);
    EXPECT_EQ(top, "aunt top crop.bmp");
    EXPECT_EQ(centre, "aunt crop.bmp") << "whichever is kept first";
    EXPECT_EQ(CropInPictures(folder_, photo, easy_, CropPart::Top), top) << "not kept twice";
    const Surface upper = ReadBitmap(files_ / "program/Pictures/aunt top crop.bmp");
    const Surface middle = ReadBitmap(files_ / "program/Pictures/aunt crop.bmp");
    EXPECT_LT(SheetStretch({upper.Width(), upper.Height()}, easy_), kUnstretched);
    EXPECT_EQ(upper.Get(0, 0), 1);
    EXPECT_EQ(middle.Get(0, 0), 1 + (600 - middle.Height()) / 2);
    EXPECT_EQ(ReadBitmapSize(files_ / "program/Pictures/aunt.bmp"), (BitmapSize{600, 600}));
    fs::remove(files_ / "program/Pictures/aunt top crop.bmp");
    EXPECT_EQ(KeepCrop(folder_, photo, upper), "aunt crop 2.bmp");
    EXPECT_EQ(CropInPictures(folder_, photo, easy_, CropPart::Top), "aunt crop 2.bmp")
        << "older kits know it by that name";
    // A photo of the right shape is left alone.
    const std::string sheet = TakeIn(folder_, files_.Write("sheet.jpg", "x"), DecoderOf(960, 720));
    EXPECT_EQ(CropInPictures(folder_, sheet, easy_, CropPart::Top), sheet);
}

}  // namespace
}  // namespace vendrel
