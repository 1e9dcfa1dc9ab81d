#include "forms/crop_photo.h"

#include <gmock/gmock.h>

#include <cmath>

#include "convert/bitmap_reader.h"
#include "forms/main_form.h"
#include "forms/studio.h"
#include "intake/picture_decoder.h"

namespace vendrel::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr int kSide = 600;

class CropPhotoTest : public ::testing::Test {
  protected:
    CropPhotoTest() {
        studio_.Files.Write("Pictures/aunt.JPG", "\xFF\xD8\xFF");
        studio_.Files.Write("Pictures/broken.png", "");
        form_.Form_Load();
    }
    void Click(const char* photo) {
        form_.Click(MenuId::LoadBMP);
        ClickPhoto(chooser_, photo);
    }
    void OpenCrop() {
        Click("aunt.JPG");
        chooser_.CropButton_Click();
    }
    [[nodiscard]] double Stretch(int width, int height) const {
        return SheetStretch({width, height}, {studio_.Screen.Size, studio_.State.StippleSize});
    }
    [[nodiscard]] const CropRect& Frame() const { return crop_.Controls().Frame; }

    Studio studio_;
    PictureDecoder decoder_{FourQuarters(kSide, kSide)};
    MainForm form_{studio_.Place, nullptr, &decoder_};
    FileImport& chooser_ = form_.Chooser();
    CropPhoto& crop_ = chooser_.Crop();
};

TEST_F(CropPhotoTest, TheChooserShowsASquareAsTheSheetWillStretchIt) {
    Click("aunt.JPG");
    const FileImportControls& shown = chooser_.Controls();
    EXPECT_THAT(shown.ImportFile, ElementsAre("aunt.JPG", "broken.png", "four.bmp", "PBNLady.bmp"));
    EXPECT_THAT(shown.Description, HasSubstr("aunt.JPG\n600 x 600 pixels\nOn the sheet"));
    const double across = static_cast<double>(shown.Preview.Width()) / shown.Preview.Height();
    EXPECT_NEAR(std::max(across, 1 / across), 1 + Stretch(kSide, kSide) / 100, 0.01);
    EXPECT_TRUE(shown.CropEnabled);

    ClickPhoto(chooser_, "broken.png");
    EXPECT_THAT(shown.Description, HasSubstr("is broken"));
    EXPECT_FALSE(shown.CropEnabled);
    EXPECT_THROW(chooser_.OKButton_Click(), FormatError);
    EXPECT_EQ(studio_.Screen.LastPointer, Pointer::Normal);
    EXPECT_THAT(studio_.Screen.OpenForms, ElementsAre(FormId::FileImport));
    ClickPhoto(chooser_, "aunt.JPG");
    chooser_.OKButton_Click();
    EXPECT_EQ(studio_.State.PictureFile, "aunt.bmp");
    EXPECT_TRUE(studio_.State.PictureLoaded);
    EXPECT_EQ(ReadBitmap(studio_.Files / "Pictures/aunt.bmp"), FourQuarters(kSide, kSide));
}

TEST_F(CropPhotoTest, OkKeepsTheCropAndChoosesIt) {
    OpenCrop();
    ASSERT_THAT(studio_.Screen.OpenForms, Contains(FormId::CropPhoto));
    crop_.OKButton_Click();
    EXPECT_THAT(studio_.Screen.OpenForms, ElementsAre(FormId::FileImport));
    const FileImportControls& shown = chooser_.Controls();
    ASSERT_GE(shown.FileIndex, 0);
    EXPECT_EQ(shown.ImportFile[static_cast<std::size_t>(shown.FileIndex)], "aunt crop.bmp");
    EXPECT_FALSE(shown.CropEnabled) << shown.Description;
    const BitmapSize size = ReadBitmapSize(studio_.Files / "Pictures/aunt crop.bmp");
    EXPECT_LT(Stretch(size.Width, size.Height), kMaxCropStretch);
    chooser_.OKButton_Click();
    EXPECT_EQ(studio_.State.PictureName, "aunt crop");
    EXPECT_TRUE(studio_.State.PictureLoaded);
}

TEST_F(CropPhotoTest, MouseAndArrowKeysMoveAndResize) {
    OpenCrop();
    const CropRect start = Frame();
    const int right = start.Left + start.Width;
    const int bottom = start.Top + start.Height;
    EXPECT_EQ(crop_.GripAt(start.Left - 5, start.Top + 5, 5), CropGrip::TopLeft);
    EXPECT_EQ(crop_.GripAt(right + 6, bottom, 5), CropGrip::None);

    crop_.Photo_MouseDown(right - 3, bottom - 3, 5);
    crop_.Photo_MouseMove(right - 3, bottom - 3);
    EXPECT_NEAR(Frame().Width, start.Width, 2) << "taking hold moves nothing";
    crop_.Photo_MouseMove(start.Left + start.Width / 2, start.Top + start.Height / 2);
    crop_.Photo_MouseUp();
    const CropRect half = Frame();
    EXPECT_NEAR(half.Width, start.Width / 2.0, 10);
    EXPECT_EQ(half.Left, start.Left);
    EXPECT_EQ(half.Top, start.Top);
    EXPECT_LT(Stretch(half.Width, half.Height), kMaxCropStretch);

    crop_.Photo_MouseDown(half.Left + 50, half.Top + 50, 5);
    crop_.Photo_MouseMove(5000, 5000);
    EXPECT_EQ(Frame().Left + Frame().Width, kSide);
    EXPECT_EQ(Frame().Top + Frame().Height, kSide);
    crop_.Photo_MouseMove(half.Left + 50, half.Top + 50);
    EXPECT_EQ(Frame(), half) << "comes back with the pointer";
    crop_.Photo_MouseUp();
    crop_.Photo_MouseMove(0, 0);
    EXPECT_EQ(Frame(), half);

    crop_.Move(2, -1);
    EXPECT_EQ(Frame().Left, half.Left + 8);
    EXPECT_EQ(Frame().Top, half.Top - 4);
    crop_.Grow(3);
    EXPECT_GT(Frame().Width, half.Width);
}

TEST_F(CropPhotoTest, ATurnedPhotoIsCutAsItIsSeenUnlessCancelled) {
    OpenCrop();
    crop_.TurnRight_Click();
    crop_.CancelButton_Click();
    EXPECT_FALSE(std::filesystem::exists(studio_.Files / "Pictures/aunt crop.bmp"));
    EXPECT_THAT(studio_.Screen.OpenForms, ElementsAre(FormId::FileImport));
    EXPECT_EQ(studio_.State.PictureFile, "aunt.JPG");
    chooser_.CropButton_Click();
    crop_.TurnRight_Click();
    EXPECT_EQ(crop_.Controls().Picture.Get(0, 0), FourQuarters(8, 8).Get(0, 7));
    crop_.OKButton_Click();
    EXPECT_EQ(ReadBitmap(studio_.Files / "Pictures/aunt crop.bmp").Get(0, 0),
              FourQuarters(8, 8).Get(0, 7));
}

TEST_F(CropPhotoTest, DroppedAndPastedPhotosAreLoadedAsOkDoes) {
    form_.TakePhoto(studio_.Files.Write("elsewhere/uncle.jpg", "\xFF\xD8\xFF"));
    EXPECT_EQ(studio_.State.PictureFile, "uncle.bmp");
    EXPECT_TRUE(studio_.MainMenu[MenuId::ChangeToStipples].Enabled);
    EXPECT_TRUE(studio_.Frames.WorkFrame.Visible);
    form_.Click(MenuId::ChangeToStipples);
    form_.PastePicture(FourQuarters(320, 240));
    EXPECT_EQ(studio_.State.PictureName, "Pasted picture");
    EXPECT_FALSE(studio_.MainMenu[MenuId::PaintItNow].Enabled);

    EXPECT_THROW(form_.TakePhoto(studio_.Files / "Pictures/broken.png"), FormatError);
    EXPECT_EQ(studio_.State.PictureName, "Pasted picture") << "what was loaded stays";
    EXPECT_TRUE(studio_.Frames.WorkFrame.Visible);
    EXPECT_THAT(studio_.Screen.Messages, IsEmpty());
    form_.PastePicture({});
    EXPECT_EQ(studio_.Screen.Messages.size(), 1U);
}

TEST(ForeignPhotos, AreNotListedWithoutADecoder) {
    Studio studio;
    studio.Files.Write("Pictures/aunt.jpg", "\xFF\xD8\xFF");
    FileImport chooser(studio.Place);
    chooser.ShowFolder(studio.Files / "Pictures");
    EXPECT_THAT(chooser.Controls().ImportFile, ElementsAre("four.bmp"));
}

}  // namespace
}  // namespace vendrel::test
