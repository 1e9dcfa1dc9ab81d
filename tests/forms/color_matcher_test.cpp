#include "forms/color_matcher.h"

#include <gmock/gmock.h>

#include "convert/stipple_conversion.h"
#include "forms/small_photo.h"
#include "paints/template_file.h"
#include "shell/palette.h"
#include "support/error.h"
#include "touchup/laid_edits.h"
#include "touchup/touch_up.h"

namespace vendrel {
namespace {

using testing::ElementsAre;

struct Matcher : test::SmallPhoto {
    Matcher() {
        Convert();
        Form.Form_Load();
    }
    [[nodiscard]] std::vector<std::string> Offered() const {
        std::vector<std::string> names;
        for (const NextBestPaint& offer : Form.Offers()) {
            names.push_back(offer.Paint.PaintName);
        }
        return names;
    }
    ColorMatcher Form{Place};
};

TEST(ColorMatcher, RefusesWhileThereIsNoGrid) {
    test::SmallPhoto photo;
    EXPECT_THROW(ColorMatcher(photo.Place).Form_Load(), Error);
}

TEST(ColorMatcher, OffersPaintsThatThePaletteDoesNotHold) {
    Matcher matcher;  // the palette is Red and Green
    EXPECT_EQ(matcher.Form.Rows()[1].Stipples, 8);
    EXPECT_THAT(matcher.Offered(), ElementsAre("Ochre, dark"));
    matcher.Form.Source_Click(MatchSource::WholeCatalogue);
    EXPECT_THAT(matcher.Offered(), ElementsAre("Ochre, dark", "Night"));
    matcher.Form.Exchange_Click(0);
    EXPECT_EQ(matcher.Form.Rows()[1].Current.PaintName, "Ochre, dark");
    EXPECT_THAT(matcher.Offered(), ElementsAre("Red", "Night"));
}

TEST(ColorMatcher, PreviewShowsWhatAcceptingGives) {
    Matcher matcher;
    EXPECT_EQ(matcher.Form.Preview().Get(0, 0), Rgb(200, 0, 0));
    matcher.Form.Exchange_Click(0);
    const Surface preview = matcher.Form.Preview();
    EXPECT_EQ(preview.Get(0, 0), Rgb(120, 80, 30));
    EXPECT_EQ(matcher.State.PaintColors[1].PaintName, "Red");  // nothing happened yet
    matcher.Form.AcceptButton_Click();
    for (int y = 0; y < preview.Height(); ++y) {
        for (int x = 0; x < preview.Width(); ++x) {
            const int paint = matcher.State.Stipples(x + 1, y + 1).ColorIndex;
            EXPECT_EQ(preview.Get(x, y), ColorOf(matcher.State.PaintColors[paint]));
        }
    }
    EXPECT_TRUE(matcher.MainMenu[MenuId::PaintItNow].Enabled);
}

TEST(ColorMatcher, CountsWhatAcceptingGivesAtOnce) {
    Matcher matcher;
    EXPECT_EQ(matcher.Form.Rows()[2].ShareTenths, 500);
    matcher.State.MasterColors.Add({0, 255, 255, "Cold", "PB2", "Cyan", 0});
    matcher.Form.PaintList_Click(1);
    matcher.Form.Exchange_Click(1);  // further from red than the green is
    EXPECT_EQ(matcher.Form.Rows()[1].Current.PaintName, "Cyan");
    EXPECT_EQ(matcher.Form.Rows()[1].Stipples, 0);
    EXPECT_EQ(matcher.Form.Rows()[1].ShareTenths, 0);
    EXPECT_EQ(matcher.Form.Rows()[2].Stipples, 16);
    EXPECT_EQ(matcher.Form.Rows()[2].ShareTenths, 1000);
    matcher.Form.PutAllBack_Click();
    EXPECT_EQ(matcher.Form.Rows()[2].ShareTenths, 500);
}

TEST(ColorMatcher, PutsBackOneOrAll) {
    Matcher matcher;
    matcher.Form.Source_Click(MatchSource::WholeCatalogue);
    matcher.Form.Exchange_Click(0);
    matcher.Form.PaintList_Click(2);
    matcher.Form.Exchange_Click(0);
    EXPECT_TRUE(matcher.Form.Rows()[2].Exchanged());
    matcher.Form.PutBack_Click();
    EXPECT_FALSE(matcher.Form.Rows()[2].Exchanged());
    EXPECT_TRUE(matcher.Form.AnyExchanged());
    matcher.Form.PutAllBack_Click();
    EXPECT_FALSE(matcher.Form.AnyExchanged());
    EXPECT_EQ(matcher.Form.Preview().Get(0, 0), Rgb(200, 0, 0));
}

TEST(ColorMatcher, NeverHoldsAPaintTwiceAndTakesALoadedGrid) {
    Matcher matcher;
    matcher.State.StipplesMade = false;  // as after loading a saved grid
    matcher.Form.Form_Load();
    matcher.Form.Source_Click(MatchSource::WholeCatalogue);
    matcher.Form.Exchange_Click(0);  // Red gives way to Ochre
    matcher.Form.PaintList_Click(2);
    EXPECT_THAT(matcher.Offered(), ElementsAre("Night"));  // Red may be put back
}

TEST(ColorMatcher, ExchangesWhatWasPaintedByHandTooUntilTakenBack) {
    Matcher matcher;
    const auto corners = [&matcher] {
        const WorkState& state = matcher.State;
        return state.PaintColors[state.Stipples(1, 1).ColorIndex].PaintName + " " +
               state.PaintColors[state.Stipples(4, 1).ColorIndex].PaintName;
    };
    ASSERT_EQ(corners(), "Red Green");
    {
        TouchUp editor(matcher.Place);
        editor.BeginStroke({4, 1}, {.Size = 1, .Paint = 1});
        editor.Accept();
    }
    matcher.Form.Form_Load();
    matcher.Form.Exchange_Click(0);
    matcher.Form.AcceptButton_Click();
    EXPECT_EQ(corners(), "Ochre, dark Ochre, dark");
    SetPalette(matcher.State, {});  // as when the paint sets are chosen again
    AutoChangeToStipples(matcher.Place);
    EXPECT_EQ(corners(), "Ochre, dark Ochre, dark");
    AutoChangeToStipples(matcher.Place);
    UndoLastTouchUp(matcher.Place);
    EXPECT_EQ(corners(), "Red Red");
    UndoLastTouchUp(matcher.Place);
    EXPECT_EQ(corners(), "Red Green");
}

TEST(ColorMatcher, SavesNumberedTemplates) {
    Matcher matcher;
    matcher.Form.Exchange_Click(0);
    EXPECT_EQ(matcher.Form.SaveTemplate_Click(), "small Easy 2 Paints");
    EXPECT_EQ(matcher.Form.SaveTemplate_Click(), "small Easy 2 Paints 2");
    EXPECT_EQ(ReadTemplate(matcher.Files / "templates/small Easy 2 Paints.csv")[1].PaintName,
              "Ochre, dark");
}

}  // namespace
}  // namespace vendrel
