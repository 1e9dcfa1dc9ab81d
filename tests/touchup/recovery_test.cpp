#include "touchup/recovery.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "convert/bitmap_writer.h"
#include "edits/kit_base.h"
#include "sheets.h"
#include "support/error.h"
#include "support/leftovers.h"
#include "touchup/touch_up.h"
#include "touchup/unsaved_work.h"

namespace vendrel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::ThrowsMessage;

namespace fs = std::filesystem;

TEST(Recovery, FollowsTheChangesWithinTenSecondsAndGoesWithTheSave) {
    KitBench bench({"12", "12"}, 2);
    TouchUp editor(bench.Place);
    int kept = 0;
    std::string before;
    for (int second = 1; second <= 40; ++second) {
        editor.Fill({1, 1}, 1 + second % 2);
        editor.KeepRecovery(At(second));
        if (const std::string now = bench.Files.Read(kRecovery); now != before) {
            EXPECT_LE(second - kept, 9);
            kept = second;
            before = now;
        }
    }
    EXPECT_GE(kept, 31);
    EXPECT_FALSE(editor.CanLoad()) << "it never shows as the saved grid";
    editor.SaveIt_Click();
    editor.KeepRecovery(At(90));
    EXPECT_FALSE(fs::exists(bench.Files / kRecovery)) << "nothing has changed since the save";
}

// What the list shows, each as "Lady Easy", with a star when it fits.
std::vector<std::string> Listed(const Workplace& place) {
    std::vector<std::string> rows;
    for (const KeptWork& work : ListKeptWork(place)) {
        rows.push_back(work.Photo + " " + work.Difficulty + (work.Fits ? "*" : ""));
    }
    return rows;
}

// The program dies while the paint is repainted by another one.
void CrashAfter(KitBench& bench, int from, int to) {
    TouchUp crashed(bench.Place);
    crashed.Replace(from, to);
    crashed.KeepRecovery(At(1));
    bench.State.Recovery.reset();
}

TEST(Recovery, StaysListedUntilWhatCameOfItIsSavedOrItIsThrownAway) {
    KitBench bench({"123", "123"}, 3);
    CrashAfter(bench, 2, 3);
    CrashAfter(bench, 1, 3);
    bench.Files.Write("Saved Stipples/Old-Dog-Medium.recovery-old.stp", "1,5,5,16\r\n");
    const auto now = fs::file_time_type::clock::now();
    fs::last_write_time(bench.Files / "Saved Stipples/Old-Dog-Medium.recovery-old.stp",
                        now - std::chrono::hours(2));
    fs::last_write_time(bench.Files / kRecovery, now - std::chrono::hours(1));
    ASSERT_THAT(Listed(bench.Place), ElementsAre("Lady Easy*", "Lady Easy*", "Old-Dog Medium"));
    EXPECT_EQ(ListKeptWork(bench.Place)[1].File, bench.Files / kRecovery) << "the newest is first";
    bench.Lay({"112", "112"}, 2);
    {
        TouchUp editor(bench.Place);
        editor.Restore(ListKeptWork(bench.Place)[1]);
        EXPECT_EQ(bench.Edited(), (Rows{"133", "133"}));
        EXPECT_EQ(bench.State.FoundCount, 3) << "however many paints the kit has now";
        EXPECT_TRUE(bench.CountsAreTrue());
        EXPECT_TRUE(editor.HasChanges());
        EXPECT_EQ(Listed(bench.Place).size(), 2U) << "it is at work";
        editor.KeepRecoveryNow();
        EXPECT_FALSE(editor.Cancel());
        editor.SettleRecovery();
    }
    EXPECT_EQ(Listed(bench.Place).size(), 3U) << "closing is no throwing away";
    for (const bool accept : {false, true}) {
        TouchUp editor(bench.Place);
        editor.Restore(ListKeptWork(bench.Place)[0]);
        if (accept) {
            editor.Accept();
        } else {
            editor.SaveIt_Click();
            EXPECT_TRUE(editor.Cancel());
        }
        editor.SettleRecovery();
    }
    EXPECT_THAT(Listed(bench.Place), ElementsAre("Old-Dog Medium"));
    ThrowAway(ListKeptWork(bench.Place)[0]);
    EXPECT_THAT(Listed(bench.Place), IsEmpty());
}

TEST(Recovery, StaysWithAnAcceptedGridUntilItIsSaved) {
    KitBench bench({"12", "12"}, 2);
    {
        TouchUp editor(bench.Place);
        editor.Fill({1, 1}, 2);
        editor.Accept();
        editor.SettleRecovery();
    }
    const std::string accepted = bench.Files.Read(kRecovery);
    EXPECT_THAT(accepted, HasSubstr("\r\n0,2,5,5\r\n"));
    {
        TouchUp again(bench.Place);
        EXPECT_THAT(Listed(bench.Place), IsEmpty()) << "the work is not lost, it is here";
        again.BeginStroke({1, 1}, {1, 1});
        again.KeepRecovery(At(1));
        EXPECT_FALSE(again.Cancel());
        again.SettleRecovery();
    }
    EXPECT_TRUE(bench.State.HasUnsavedWork);
    EXPECT_EQ(bench.Files.Read(kRecovery), accepted);
    TouchUp saving(bench.Place);
    saving.SaveIt_Click();
    EXPECT_FALSE(saving.Cancel());
    EXPECT_FALSE(bench.State.HasUnsavedWork);
    EXPECT_FALSE(fs::exists(bench.Files / kRecovery));
}

// Another final count puts other paints under the edits.
TEST(Recovery, LaysItsEditsOverWhatOtherSettingsGive) {
    struct Case {
        Rows Base;
        int Paints;
        Rows Restored;  // the paint that was painted with stands first, by hand
        const char* Report;
    };
    for (const Case& test : {Case{{"11222", "11222"}, 3, {"12111", "22111"}, ""},
                             {{"11112", "11112"}, 2, {"12221", "22221"}, "All 2 edits kept"},
                             {{"1111", "1111", "1111"},
                              1,
                              {"1222", "2222", "2222"},
                              "1 edit kept, 1 more paint for them"}}) {
        KitBench bench({"11222", "11222"}, 3);
        LayOverConversion(bench.State);
        {
            TouchUp crashed(bench.Place);
            crashed.Replace(2, 3);
            crashed.BeginStroke({1, 1}, {1, 3});
            crashed.ChangePalette("Move Paint", EditIntent::Order,
                                  WithPaintMoved(crashed.Sheet(), 3, 1));
            crashed.KeepRecovery(At(1));
            bench.State.Recovery.reset();
        }
        bench.Lay(test.Base, test.Paints);
        LayOverConversion(bench.State);
        TouchUp editor(bench.Place);
        editor.Restore(ListKeptWork(bench.Place)[0]);
        EXPECT_EQ(bench.Edited(), test.Restored);
        EXPECT_EQ(editor.RestoreReport(), test.Report);
        EXPECT_TRUE(editor.IsEdited({1, 1}) && !editor.IsEdited({5, 1}) && bench.CountsAreTrue());
        editor.Undo();
        EXPECT_EQ(bench.Edited(), test.Base);
        editor.Redo();
        editor.Accept();
        EXPECT_EQ(bench.State.Edits.Cells.size(), 1U) << "nothing else was pinned";
        EXPECT_EQ(bench.State.Edits.Exchanges.size(), 1U);
    }
    KitBench bench({"12", "12"}, 2);
    bench.Files.Write(kRecovery, "1,2,1,2\r\n" + kRed + "0,1,5,5\r\n0,1,13,5\r\n" +
                                     "\"Edits\",2,1,1,2,0\r\n" + kRed + "2,1,0,1\r\n1,1,0,1\r\n");
    TouchUp editor(bench.Place);
    EXPECT_THAT([&] { editor.Restore(ListKeptWork(bench.Place)[0]); },
                ThrowsMessage<FormatError>(HasSubstr("line 8: this edit comes before")));
    EXPECT_EQ(editor.StepsDone(), 0);
}

TEST(Recovery, OfAnotherShapeIsRestoredInIt) {
    for (const bool accept : {true, false}) {
        KitBench bench({"12", "12"}, 2);
        bench.State.PicturePath = (bench.Files / "Pictures/Lady.bmp").string();
        WriteBitmap(bench.State.PicturePath, Surface(48, 16, kWhite));
        bench.Files.Write(kRecovery, "1,3,1,16\r\n" + kRed + "0,1,5,5\r\n0,1,13,5\r\n0,1,21,5\r\n");
        TouchUp editor(bench.Place);
        EXPECT_EQ(editor.Restore(ListKeptWork(bench.Place)[0]), (CellRect{1, 1, 3, 2}));
        EXPECT_EQ(bench.Edited(), (Rows{"111"}));
        editor.Undo();
        EXPECT_EQ(bench.Edited(), (Rows{"12", "12"}));
        editor.Redo();
        if (accept) {
            editor.Accept();
        } else {
            editor.SaveIt_Click();
            EXPECT_TRUE(editor.Cancel());
        }
        EXPECT_EQ(GridOf(bench.State.Stipples), (Rows{"111"}));
        EXPECT_EQ(bench.State.PictureWidth, 3 * 8 * 15);
        EXPECT_TRUE(bench.State.ShapedByGrid) << "until the photo is converted afresh";
    }
}

TEST(Recovery, ThatCannotBeTakenStaysBesideNewWork) {
    KitBench bench({"12", "12"}, 2);
    bench.Files.Write(kRecovery, "1,5,5,16\r\n" + kRed);
    TouchUp editor(bench.Place);
    EXPECT_THAT([&] { editor.Restore(ListKeptWork(bench.Place)[0]); },
                ThrowsMessage<FormatError>(HasSubstr("0 of the 25 stipples")));
    editor.Fill({1, 1}, 2);
    editor.KeepRecovery(At(1));
    EXPECT_THAT(bench.Files.Read(kRecovery), HasSubstr("5,5"));
    EXPECT_THAT(bench.Files.Read("Saved Stipples/Lady-Easy.recovery-2.stp"), HasSubstr("2,2,2,50"));
}

TEST(Recovery, OfALivingEditorIsNotOfferedToASecondOne) {
    KitBench first({"12", "12"}, 2);
    TouchUp editor(first.Place);
    editor.Fill({1, 1}, 2);
    editor.KeepRecovery(At(1));
    const std::string living = first.Files.Read(kRecovery);
    KitBench second({"12", "12"}, 2);
    const ProgramFolder shared(first.Files.Path());
    Workplace place{second.State, second.Frames, second.MainMenu, second.Screen, shared};
    {
        TouchUp other(place);
        EXPECT_THAT(Listed(place), IsEmpty());
        other.Fill({2, 1}, 1);
        other.KeepRecovery(At(1));
        EXPECT_EQ(first.Files.Read(kRecovery), living);
        RemoveLeftovers(first.Files / "Saved Stipples");
    }
    second.State.Recovery.reset();
    EXPECT_FALSE(editor.Cancel());
    editor.SettleRecovery();
    TouchUp again(place);
    ASSERT_THAT(Listed(place), ElementsAre("Lady Easy*")) << "its own, after its crash";
    again.Restore(ListKeptWork(place)[0]);
    EXPECT_EQ(second.Edited(), (Rows{"11", "11"}));
    EXPECT_TRUE(again.IsEdited({2, 1}) && !again.IsEdited({1, 1})) << "only what differs";
    again.SaveIt_Click();
    again.SettleRecovery();
    EXPECT_EQ(std::distance(fs::directory_iterator(first.Files / "Saved Stipples"), {}), 1);
}

TEST(UnsavedWork, OutlivesAStepThatBreaksOff) {
    struct Case {
        const char* Step;
        SaveAnswer Answer;
        bool ReplacesGrid;
        bool EndsWell;
        bool Unsaved;      // afterwards
        bool Recoverable;  // afterwards
    };
    using enum SaveAnswer;
    for (const Case& test : {Case{"breaks off at once", Discard, false, false, true, true},
                             {"breaks off half-way", Discard, true, false, false, true},
                             {"succeeds", Discard, true, true, false, false},
                             {"is refused", Cancel, false, false, true, true},
                             {"saves first", Save, true, true, false, false}}) {
        SCOPED_TRACE(test.Step);
        KitBench bench({"12", "12"}, 2);
        bench.State.HasUnsavedWork = true;
        WriteRecoveryOfGrid(bench.Place);
        bench.Screen.SaveAnswers = {test.Answer};
        {
            GridReplacement replacement(bench.Place);
            ASSERT_EQ(replacement.Allowed(), test.Answer != Cancel);
            EXPECT_EQ(bench.Program.Exists(kSaved), test.Answer == Save);
            if (test.ReplacesGrid) {
                bench.State.PictureName = "Other";
                bench.State.Stipples = Grid<StippleCell>(2, 2);
            }
            if (test.EndsWell) {
                replacement.Done();
            }
        }
        EXPECT_EQ(bench.State.HasUnsavedWork, test.Unsaved);
        EXPECT_EQ(fs::exists(bench.Files / kRecovery), test.Recoverable);
    }
}

TEST(UnsavedWork, ThatCannotBeSavedStaysAndOtherSavedStipplesAreAskedFor) {
    KitBench bench({"12", "12"}, 2);
    bench.State.HasUnsavedWork = true;
    WriteRecoveryOfGrid(bench.Place);
    fs::create_directory(bench.Files / kSaved);
    bench.Screen.SaveAnswers = {SaveAnswer::Save};
    EXPECT_THROW(GridReplacement{bench.Place}, FileError);
    EXPECT_TRUE(bench.State.HasUnsavedWork && fs::exists(bench.Files / kRecovery));
    fs::remove(bench.Files / kSaved);
    SaveStipples(bench.Place);
    bench.State.Stipples(1, 1).AreaNumber = 3;
    EXPECT_TRUE(MayReplaceSaved(bench.Place)) << "painting changes no stipple";
    EXPECT_EQ(bench.Screen.Questions.size(), 1U);
    bench.State.Stipples(1, 1).ColorIndex = 2;
    bench.Screen.Answers = {false};
    EXPECT_FALSE(MayReplaceSaved(bench.Place));
    bench.State.HasUnsavedWork = true;
    EXPECT_TRUE(MayReplaceSaved(bench.Place)) << "as the editor does it";
}

}  // namespace
}  // namespace vendrel::test
