#include "kit/terminal_ui.h"

#include <gmock/gmock.h>

#include <sstream>

#include "kit/printable.h"

namespace vendrel {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const ScreenSize kScreen = ScreenSize::FromPixels(800, 600);

void Work(TerminalUi& ui) {
    ui.SetCaption("Getting Colors");
    ui.ReportProgress(1, 4);
    ui.SetCaption("Matching Paint Sets to 2 Colors");
    ui.SetCaption("Matching Paint Sets to 3 Colors");
    ui.SetCaption("Painting with Oils Ochre [3]");
    ui.SetCaption("Painting with Oils Umber [1]");
    ui.SetCaption("Finding Borders and Numbers For Ochre");
    ui.SetCaption("Finding Borders and Numbers For Umber");
    ui.SetCaption("Getting Colors");
}

TEST(TerminalUi, LogsGetTheBeginningAndTheEndOfEachStage) {
    std::ostringstream out;
    TerminalUi ui(out, Chatter::Stages, kScreen);
    Work(ui);
    EXPECT_EQ(out.str(),
              "Getting Colors\n"
              "Matching Paint Sets to 2 Colors\n"
              "Matching Paint Sets to 3 Colors\n"
              "Painting with Oils Ochre [3]\n"
              "Painting with Oils Umber [1]\n"
              "Finding Borders and Numbers For Ochre\n"
              "Finding Borders and Numbers For Umber\n"
              "Getting Colors\n");
}

TEST(TerminalUi, PeopleGetOneLineThatIsWipedAtTheEnd) {
    std::ostringstream out;
    TerminalUi ui(out, Chatter::Progress, kScreen);
    Work(ui);
    ui.ClearLine();
    EXPECT_THAT(out.str(), Not(HasSubstr("\n")));
    EXPECT_THAT(out.str(), HasSubstr("\r\x1b[KPainting with Oils Ochre [3]"));
    EXPECT_THAT(out.str(), EndsWith("\r\x1b[K"));
}

TEST(TerminalUi, ControlCharactersAreSpelledOut) {
    for (const auto& [text, shown] : {std::pair{"a\nb\tc", "a\\nb\\tc"},
                                      {"\x1b[2J\x7f", "\\x1b[2J\\x7f"},
                                      {"\xC2\x9B\x9B", "\\xc2\\x9b\\x9b"},
                                      {"Käthe \xE2\x82\xAC \xE4", "Käthe \xE2\x82\xAC \xE4"}}) {
        EXPECT_EQ(Printable(text), shown);
    }
    std::ostringstream out;
    TerminalUi ui(out, Chatter::Stages, kScreen);
    ui.SetCaption("Reading \x1b]0;owned\a.jpg");
    EXPECT_EQ(out.str(), "Reading \\x1b]0;owned\\x07.jpg\n");
}

TEST(TerminalUi, QuietMeansNothingButCollectedMessages) {
    std::ostringstream out;
    TerminalUi ui(out, Chatter::None, kScreen);
    Work(ui);
    ui.ClearLine();
    ui.ShowMessage("Saved Grid", "Of another size.\nTake care.");
    ui.ShowMessage("", "No title");
    EXPECT_EQ(out.str(), "");
    EXPECT_THAT(ui.TakeMessages(),
                ElementsAre("Saved Grid: Of another size. Take care.", "No title"));
    EXPECT_THAT(ui.TakeMessages(), IsEmpty());
}

}  // namespace
}  // namespace vendrel
