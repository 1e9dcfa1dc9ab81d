#include "forms/photo_intake.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "convert/bitmap_reader.h"
#include "convert/bitmap_writer.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

// Takes every photo for a picture of this size whose rows differ.
class RowDecoder final : public PhotoDecoder {
  public:
    explicit RowDecoder(BitmapSize size) : size_(size) {}

    [[nodiscard]] std::vector<std::string> Endings() const override { return {"jpg"}; }
    [[nodiscard]] BitmapSize Size(const std::filesystem::path& /*photo*/) const override {
        return size_;
    }
    [[nodiscard]] Surface Decode(const std::filesystem::path& /*photo*/,
                                 const ReadProgress& /*progress*/) const override {
        Surface picture(size_.Width, size_.Height);
        for (int y = 0; y < size_.Height; ++y) {
            picture.FillRect(0, y, size_.Width, y + 1, y + 1);
        }
        return picture;
    }

  private:
    BitmapSize size_;
};

class PhotoIntakeTest : public ::testing::Test {
  protected:
    test::TempFolder files_;
    ProgramFolder folder_{files_ / "program"};
    CropTarget easy_{ScreenSize::FromPixels(1920, 1080), 8};
};

TEST_F(PhotoIntakeTest, DecodesOnlyWhatTheBitmapReaderCannotRead) {
    const RowDecoder decoder({30, 20});
    EXPECT_EQ(TakeIntoPictures(folder_, files_.Write("my.aunt.jpg", "\xFF\xD8\xFF"), decoder),
              "my-aunt.bmp");
    EXPECT_EQ(ReadBitmapSize(files_ / "program/Pictures/my-aunt.bmp"), (BitmapSize{30, 20}));
    WriteBitmap(files_ / "uncle.bmp", Surface(4, 3));
    EXPECT_EQ(TakeIntoPictures(folder_, files_ / "uncle.bmp", decoder), "uncle.bmp");
    EXPECT_EQ(ReadBitmapSize(files_ / "program/Pictures/uncle.bmp"), (BitmapSize{4, 3}));
}

TEST_F(PhotoIntakeTest, CropsASquarePortraitBesideItself) {
    const std::string photo =
        TakeIntoPictures(folder_, files_.Write("aunt.jpg", ""), RowDecoder({600, 600}));
    ASSERT_EQ(CropInPictures(folder_, photo, easy_, CropPart::Whole), photo);
    const std::string top = CropInPictures(folder_, photo, easy_, CropPart::Top);
    const std::string centre = CropInPictures(folder_, photo, easy_, CropPart::Centre);
    EXPECT_EQ(top, "aunt crop.bmp");
    EXPECT_EQ(centre, "aunt crop 2.bmp");
    EXPECT_EQ(CropInPictures(folder_, photo, easy_, CropPart::Top), top) << "not kept twice";
    const Surface upper = ReadBitmap(files_ / "program/Pictures/aunt crop.bmp");
    const Surface middle = ReadBitmap(files_ / "program/Pictures/aunt crop 2.bmp");
    EXPECT_LT(SheetStretch({upper.Width(), upper.Height()}, easy_), kMaxCropStretch);
    EXPECT_EQ(upper.Get(0, 0), 1);
    EXPECT_EQ(middle.Get(0, 0), 1 + (600 - middle.Height()) / 2);
    EXPECT_EQ(ReadBitmapSize(files_ / "program/Pictures/aunt.bmp"), (BitmapSize{600, 600}));
}

TEST_F(PhotoIntakeTest, LeavesAPhotoOfTheRightShapeAlone) {
    const std::string photo =
        TakeIntoPictures(folder_, files_.Write("sheet.jpg", ""), RowDecoder({960, 720}));
    EXPECT_EQ(CropInPictures(folder_, photo, easy_, CropPart::Top), photo);
}

}  // namespace
}  // namespace vendrel
