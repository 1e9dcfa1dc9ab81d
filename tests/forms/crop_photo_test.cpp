#include "forms/crop_photo.h"

#include <gmock/gmock.h>

#include <cmath>
#include <functional>
#include <tuple>

#include "convert/bitmap_reader.h"
#include "convert/working_size.h"
#include "forms/main_form.h"
#include "forms/studio.h"
#include "intake/picture_decoder.h"
#include "storage/stipple_file.h"

namespace vendrel::test {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

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

TEST_F(CropPhotoTest, TheChooserShowsWhatEveryWayMakesOfASquare) {
    Click("aunt.JPG");
    EXPECT_THAT(chooser_.Controls().ImportFile,
                ElementsAre("aunt.JPG", "broken.png", "four.bmp", "PBNLady.bmp"));
    const FitControls& shown = chooser_.Fit().Controls();
    const double stretched = 1 + Stretch(kSide, kSide) / 100;
    for (const auto& [way, text, across] :
         {std::tuple{PhotoFit::Stretch, "it is stretched", stretched},
          {PhotoFit::Crop, "The middle, ", stretched},
          {PhotoFit::Keep, "160 x 160 pixels", 1.0}}) {
        chooser_.Fit().Way_Click(way);
        EXPECT_THAT(shown.Description,
                    AllOf(StartsWith("aunt.JPG\n600 x 600 pixels\n"), HasSubstr(text)));
        EXPECT_NEAR(static_cast<double>(shown.Preview.Width()) / shown.Preview.Height(), across,
                    0.01);
    }
    ClickPhoto(chooser_, "four.bmp");
    EXPECT_THAT(shown.Ways, IsEmpty()) << "it fits by itself";
    EXPECT_THAT(shown.Description, HasSubstr("Fits the sheet as it is."));
    EXPECT_TRUE(shown.CropEnabled) << "to cut out the dogs";

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

TEST_F(CropPhotoTest, ChosenDroppedAndPastedPhotosAreAskedAboutAlike) {
    const std::filesystem::path uncle = studio_.Files.Write("elsewhere/uncle.jpg", "\xFF\xD8\xFF");
    struct Route {
        std::string Name;
        std::function<FitChoice&()> Open;
        std::function<void()> Ok;
    };
    const auto okAsking = [this] { chooser_.Asking().OKButton_Click(); };
    const Route routes[] = {{"aunt",
                             [this]() -> FitChoice& {
                                 Click("aunt.JPG");
                                 return chooser_.Fit();
                             },
                             [this] { chooser_.OKButton_Click(); }},
                            {"uncle",
                             [&]() -> FitChoice& {
                                 form_.TakePhoto(uncle);
                                 return chooser_.Asking().Fit();
                             },
                             okAsking},
                            {"Pasted picture",
                             [this]() -> FitChoice& {
                                 form_.PastePicture(FourQuarters(kSide, kSide));
                                 return chooser_.Asking().Fit();
                             },
                             okAsking}};
    PhotoFit before = PhotoFit::Keep;
    for (const auto& [way, width, suffix] : {std::tuple{PhotoFit::Keep, 160, ""},
                                             {PhotoFit::Stretch, 192, ""},
                                             {PhotoFit::Crop, 192, " crop"}}) {
        for (const Route& route : routes) {
            FitChoice& fit = route.Open();
            EXPECT_EQ(studio_.Screen.OpenForms.size(), 1U);
            EXPECT_EQ(fit.Controls().Way, before) << "as chosen before";
            fit.Way_Click(way);
            route.Ok();
            before = way;
            EXPECT_THAT(studio_.Screen.OpenForms, IsEmpty());
            EXPECT_EQ(studio_.State.PictureName, route.Name + suffix);
            EXPECT_EQ(studio_.Frames.WorkFrame.Picture.Width(), width);
            EXPECT_EQ(studio_.Frames.WorkFrame.Picture.Height(), 160);
        }
    }
    const Surface shown = studio_.Frames.WorkFrame.Picture;
    form_.TakePhoto(uncle);
    chooser_.Asking().Fit().Way_Click(PhotoFit::Stretch);
    chooser_.Asking().CancelButton_Click();
    EXPECT_EQ(studio_.State.Chosen.Fit, PhotoFit::Crop);
    EXPECT_EQ(studio_.Frames.WorkFrame.Picture, shown);
    form_.TakePhoto(studio_.Files / "Pictures/four.bmp");
    EXPECT_EQ(studio_.State.Chosen.Fit, PhotoFit::Keep) << "nobody has asked to stretch this one";
}

TEST_F(CropPhotoTest, AGridOfAKeptShapeIsLoadedAgain) {
    form_.TakePhoto(studio_.Files / "Pictures/aunt.JPG");
    chooser_.Asking().OKButton_Click();
    form_.Click(MenuId::ChangeToStipples);
    const WorkState& state = studio_.State;
    WriteStippleFile(StippleFilePath(studio_.Place.Folder, state, state),
                     {state.PaintColors, state.Stipples, state.CellsAcross, state.CellsDown, 50});
    form_.Click(MenuId::MediumSet);
    EXPECT_EQ(state.PictureWidth, state.PictureHeight);
    form_.Click(MenuId::EasySet);
    form_.Click(MenuId::LoadStipples);
    EXPECT_EQ(state.CellsAcross, 20);
    EXPECT_EQ(state.CellsDown, 20);
    EXPECT_THAT(studio_.Screen.Messages, IsEmpty());
}

TEST_F(CropPhotoTest, ADroppedPhotoIsCroppedOrTurnedBeforeOrAfterItIsTaken) {
    form_.TakePhoto(studio_.Files / "Pictures/aunt.JPG");
    chooser_.Asking().CropButton_Click();
    crop_.TurnRight_Click();
    crop_.OKButton_Click();
    EXPECT_THAT(studio_.Screen.OpenForms, IsEmpty());
    EXPECT_EQ(studio_.State.PictureName, "aunt crop");

    form_.TakePhoto(studio_.Files / "Pictures/four.bmp");
    EXPECT_EQ(studio_.State.PictureName, "four");
    form_.Click(MenuId::CropOrTurn);
    crop_.OKButton_Click();
    EXPECT_EQ(studio_.State.PictureName, "four") << "nothing was cut off";
    form_.Click(MenuId::CropOrTurn);
    crop_.TurnLeft_Click();
    crop_.OKButton_Click();
    EXPECT_EQ(studio_.State.PictureName, "four crop");
    EXPECT_EQ(studio_.Frames.WorkFrame.Picture.Get(0, 0), FourQuarters(8, 8).Get(7, 0));
    const CropRect cut = Frame();
    form_.Click(MenuId::ChangeToStipples);
    form_.Click(MenuId::SaveKit);
    form_.TakePhoto(studio_.Files / "Pictures/aunt.JPG");
    chooser_.Asking().OKButton_Click();
    form_.TakePhoto(studio_.Files / "Kits/four crop.kit");
    form_.Kits().SaveAs_Click("again");
    for (const char* title : {"four crop", "again"}) {
        const KitFile kit = ReadKitFile(studio_.Files / ("Kits/" + std::string(title) + ".kit"));
        EXPECT_EQ(kit.Crop, (KitCrop{"four.bmp", 3, cut})) << title;
    }
}

TEST_F(CropPhotoTest, OkKeepsTheCropAndChoosesIt) {
    OpenCrop();
    ASSERT_THAT(studio_.Screen.OpenForms, Contains(FormId::CropPhoto));
    crop_.OKButton_Click();
    EXPECT_THAT(studio_.Screen.OpenForms, ElementsAre(FormId::FileImport));
    const FileImportControls& shown = chooser_.Controls();
    ASSERT_GE(shown.FileIndex, 0);
    EXPECT_EQ(shown.ImportFile[static_cast<std::size_t>(shown.FileIndex)], "aunt crop.bmp");
    EXPECT_FALSE(chooser_.Fit().Asks());
    const BitmapSize size = ReadBitmapSize(studio_.Files / "Pictures/aunt crop.bmp");
    EXPECT_LT(Stretch(size.Width, size.Height), kUnstretched);
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
    EXPECT_LT(Stretch(half.Width, half.Height), kUnstretched);

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
    form_.TakePhoto(studio_.Files / "Pictures/four.bmp");
    EXPECT_EQ(studio_.State.PictureFile, "four.bmp");
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
    WriteBitmap(studio_.Files / "beach", FourQuarters(64, 48));
    form_.TakePhoto(studio_.Files / "beach");
    EXPECT_EQ(studio_.State.PictureName, "beach") << "a file without an ending";
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
