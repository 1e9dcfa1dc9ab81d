#include "forms/make_paintable.h"

#include <gmock/gmock.h>

#include "convert/photo_import.h"
#include "convert/stipple_conversion.h"
#include "forms/main_form.h"
#include "forms/studio.h"
#include "forms/touch_up_form.h"
#include "support/error.h"

namespace vendrel::test {
namespace {

// Four quarters and a speck: one stipple of another paint, 17 x 17 mm on a canvas of 40 cm.
class MakePaintableTest : public ::testing::Test {
  protected:
    MakePaintableTest() {
        studio_.Files.Write("Data/paintlist.txt", "Reds\r\nGreens\r\nRest\r\n");
        main_.Form_Load();
        Surface photo = FourQuarters(64, 48);
        photo.FillRect(9, 9, 17, 17, Rgb(30, 20, 210));
        WriteBitmap(studio_.Files / "Pictures/speck.bmp", photo);
        main_.TakePhoto(studio_.Files / "Pictures/speck.bmp");
    }
    void Convert() { main_.Click(MenuId::ChangeToStipples); }
    [[nodiscard]] int Across() const { return studio_.State.CellsAcross; }
    // A kit of four quarters has four areas.
    [[nodiscard]] std::string Areas() const { return form_.FigureLines().front(); }

    Studio studio_;
    MainForm main_{studio_.Place};
    MakePaintable form_{studio_.Place};
};

TEST_F(MakePaintableTest, ShowsWhatLimitsMakeOfTheKitAndPutsItInOnlyWhenAccepted) {
    EXPECT_THROW(form_.Form_Load(), Error);
    EXPECT_FALSE(studio_.MainMenu[MenuId::MakeItPaintable].Enabled);
    Convert();
    EXPECT_TRUE(studio_.MainMenu[MenuId::MakeItPaintable].Enabled);
    const Grid<StippleCell> before = studio_.State.Stipples;
    form_.Form_Load();
    const int areas = CountGridAreas(studio_.State);
    EXPECT_GT(areas, 4) << "the speck is one";
    form_.Smallest_Change(10000);
    EXPECT_EQ(form_.Wish().Limits.SmallestMm2, MakePaintable::kMostSmallestMm2);
    form_.Canvas_Change(10);  // a stipple is 18 square millimeters now
    EXPECT_EQ(Areas(), "4 areas, before " + std::to_string(areas));
    form_.Outlines_Click(true);
    EXPECT_EQ(form_.After().Get(3, 3), kWhite);
    EXPECT_EQ(form_.After().Width(), form_.Photo().Width());
    form_.CancelButton_Click();
    EXPECT_EQ(studio_.State.Stipples, before);

    form_.OkButton_Click();
    EXPECT_TRUE(studio_.State.PaintableKit);
    EXPECT_EQ(CountGridAreas(studio_.State), 4);
    EXPECT_TRUE(studio_.MainMenu[MenuId::PaintItNow].Enabled);
    EXPECT_FALSE(studio_.State.Chosen.Paintable) << "the next photo is converted as chosen";
    main_.Click(MenuId::ChangeToStipples);
    EXPECT_FALSE(studio_.State.PaintableKit);
}

TEST_F(MakePaintableTest, ProtectsStrokeByStrokeAndTakesThemBack) {
    Convert();
    form_.Form_Load();
    form_.Canvas_Change(10);
    form_.Smallest_Change(40);  // two stipples; a third of it where protected
    const std::string merged = Areas();
    const ValueGrid nothing = form_.Protected();
    form_.Brush_Change(1);
    form_.Stroke_Begin(true);
    form_.Stroke_Over({-3, 2});
    for (int y = 0; y < 6; ++y) {
        for (int x = 0; x < 6; ++x) {
            form_.Stroke_Over({x, y});
        }
    }
    EXPECT_EQ(Areas(), merged) << "until the stroke ends";
    form_.Stroke_End();
    EXPECT_NE(Areas(), merged) << "the speck stays";
    form_.Undo_Click();
    EXPECT_EQ(form_.Protected(), nothing);
    EXPECT_EQ(Areas(), merged);
    form_.Redo_Click();
    form_.ProtectNothing_Click();
    EXPECT_EQ(form_.Protected(), nothing);
    EXPECT_TRUE(form_.CanUndo());
    EXPECT_FALSE(form_.CanRedo());
}

TEST_F(MakePaintableTest, PaintsAPaintedKitAnewAndProtectsItUntilAnotherPhotoComes) {
    Convert();
    main_.Click(MenuId::PaintItNow);
    form_.Form_Load();
    form_.Stroke_Begin(true);
    form_.Stroke_Over({1, 1});
    form_.Stroke_End();
    form_.OkButton_Click();
    EXPECT_TRUE(studio_.MainMenu[MenuId::PrintMenu].Enabled);
    EXPECT_EQ(studio_.Frames.WorkFrame.Picture, form_.After());
    EXPECT_EQ(studio_.State.Protected, form_.Protected());
    TouchUpForm editor(studio_.Place);
    editor.Form_Load();
    editor.Accept_Click();
    EXPECT_TRUE(studio_.State.PaintableKit) << "touched up it is painted as before";
    main_.TakePhoto(studio_.Files / "Pictures/four.bmp");
    EXPECT_TRUE(studio_.State.Protected.All().empty());
}

}  // namespace
}  // namespace vendrel::test
