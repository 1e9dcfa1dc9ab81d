#include "touchup/touch_up.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <random>

#include "sheets.h"
#include "support/error.h"
#include "support/leftovers.h"

namespace vendrel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

namespace fs = std::filesystem;
constexpr const char* kSaved = "Saved Stipples/Lady-Easy.stp";
constexpr const char* kRecovery = "Saved Stipples/Lady-Easy.recovery.stp";
const std::string kRed = "1,2,3,\"Red\",1,\"Set\",\"R\"\r\n";
constexpr const char* kFourReds = "0,1,5,5\r\n0,1,13,5\r\n0,1,5,13\r\n0,1,13,13\r\n";

EditTime At(int second) {
    return EditTime{} + std::chrono::seconds(second);
}

// An edit of any kind, as a hand on the mouse would make it.
void EditAtRandom(TouchUp& editor, WorkState& state, std::mt19937& random) {
    const auto upTo = [&](unsigned n) { return static_cast<int>(random() % n); };
    const CellPos from{upTo(16), upTo(13)};
    const int paint = 1 + upTo(6);
    state.CleanLevel = 2 + upTo(7);
    const std::function<void()> edits[] = {
        [&] { editor.Fill(from, paint); },
        [&] { editor.Replace(paint, 1 + upTo(6)); },
        [&] { editor.CleanUp(); },
        [&] { editor.Undo(); },
        [&] { editor.Redo(); },
        [&] {
            editor.BeginStroke(from, {static_cast<BrushSize>(1 + upTo(3)), paint});
            editor.StrokeTo({upTo(16), upTo(13)});
        },
    };
    edits[upTo(6)]();
}

TEST(History, UndoneToTheBottomGivesTheFirstGridBackAndRedoneTheLast) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        KitBench bench(Rows(12, "123456123456123"), 6);
        TouchUp editor(bench.Place);
        for (int i = 0; i < 60; ++i) {
            EditAtRandom(editor, bench.State, random);
            ASSERT_TRUE(bench.CountsAreTrue());
        }
        const auto redoAll = [&editor] {
            while (editor.CanRedo()) {
                editor.Redo();
            }
        };
        redoAll();
        const Grid<StippleCell> last = bench.State.EditStipples;
        while (editor.CanUndo()) {
            editor.Undo();
        }
        EXPECT_EQ(bench.State.EditStipples, bench.State.Stipples);
        EXPECT_FALSE(editor.HasChanges());
        redoAll();
        EXPECT_EQ(bench.State.EditStipples, last);
    }
}

TEST(History, NamesItsStepsAndForgetsTheUndoneOnesWithANewEdit) {
    KitBench bench({"11", "22"});
    TouchUp editor(bench.Place);
    editor.BeginStroke({1, 1}, {BrushSize::One, 3});
    EXPECT_EQ(editor.UndoName(), "Brush") << "already while the button is down";
    editor.Fill({1, 2}, 4);
    editor.Undo();
    EXPECT_EQ(editor.UndoName(), "Brush");
    EXPECT_EQ(editor.RedoName(), "Fill");
    editor.Replace(3, 5);
    EXPECT_FALSE(editor.CanRedo());
    EXPECT_EQ(bench.Edited(), (Rows{"51", "22"}));
}

TEST(Accepting, DropsUnusedPaintsAndTellsWhichSymbolsMoved) {
    KitBench bench({"123", "123"}, 4);
    bench.State.CellMarks(1, 1).Visited = true;
    bench.State.Stipples(1, 1).AreaNumber = 7;
    TouchUp editor(bench.Place);
    editor.Replace(2, 4);
    const AcceptReport report = editor.Accept();
    EXPECT_THAT(report.Dropped, ElementsAre("Paint 2"));
    EXPECT_THAT(report.Moves,
                ElementsAre(SymbolMove{"Paint 3", 3, 2}, SymbolMove{"Paint 4", 4, 3}));
    const WorkState& state = bench.State;
    EXPECT_EQ(GridOf(state.Stipples), (Rows{"132", "132"}));
    EXPECT_EQ(state.PaintCount, 3);
    EXPECT_EQ(state.PaintColors[3].PaintName, "Paint 4");
    EXPECT_EQ(state.PaintColors[3].CellCount, 2);
    EXPECT_EQ(state.Stipples(1, 1).AreaNumber, 0);
    EXPECT_EQ(state.CellMarks, Grid<CellMark>(3, 2));
    EXPECT_TRUE(state.HasUnsavedWork);
}

TEST(Cancelling, PutsTheKitBackAsItWas) {
    KitBench bench({"123", "123"});
    bench.Files.Write(kSaved, "1,2,1,16\r\n" + kRed + "0,1,5,5\r\n0,1,13,5\r\n");
    TouchUp editor(bench.Place);
    EXPECT_EQ(editor.LoadIt_Click(), (CellRect{1, 1, 3, 2}));
    EXPECT_EQ(editor.Sheet().Across(), 2) << "the file's own size";
    EXPECT_TRUE(IsChecked(bench.State.Chosen, MenuId::Set16Colors));
    EXPECT_THAT([&] { editor.Accept(); }, ThrowsMessage<Error>(HasSubstr("3 x 2 stipples")));
    editor.Cancel();
    EXPECT_TRUE(IsChecked(bench.State.Chosen, MenuId::Set50Colors));
    EXPECT_EQ(bench.State.FinalColors, 50);
    EXPECT_EQ(GridOf(bench.State.Stipples), (Rows{"123", "123"}));
    EXPECT_FALSE(bench.State.HasUnsavedWork);
}

TEST(Loading, BringsGridPaintsAndFinalPaintsAsOneStep) {
    KitBench bench({"12", "12"}, 2);
    bench.Files.Write(kSaved, "1,2,2,16\r\n" + kRed + kFourReds);
    bench.State.FinalColors = 12;  // a template of twelve paints, while the menu asks for fifty
    const auto checked = [&] { return bench.State.Chosen.FinalPaints; };
    TouchUp editor(bench.Place);
    editor.Fill({1, 1}, 2);
    editor.Undo();
    editor.Redo();
    EXPECT_EQ(checked(), 50);
    editor.LoadIt_Click();
    EXPECT_EQ(checked(), 16);
    EXPECT_EQ(bench.Edited(), (Rows{"11", "11"}));
    EXPECT_TRUE(bench.CountsAreTrue());
    EXPECT_FALSE(editor.HasChanges());
    editor.Undo();
    EXPECT_EQ(checked(), 50);
    EXPECT_EQ(bench.Edited(), (Rows{"22", "22"}));
    EXPECT_TRUE(bench.CountsAreTrue());
    EXPECT_TRUE(editor.HasChanges());
    editor.Redo();
    EXPECT_EQ(checked(), 16);
    editor.Cancel();
    EXPECT_EQ(checked(), 50);
    EXPECT_EQ(bench.State.FinalColors, 12);
}

TEST(BrokenLoad, ThatIsShortOrDoesNotFitTouchesNothing) {
    const std::string paints = kRed + kRed;
    const std::pair<std::string, const char*> cases[] = {
        {"2,2,2,16\r\n" + paints + "0,1,5,5\r\n0,1,5,5\r\n", "2 of the 4 stipples (2 x 2)"},
        {"3,2,2,16\r\n" + paints + kRed + kFourReds, "3 paints"},
        {"2,3,2,16\r\n" + paints + kFourReds + kFourReds, "3 x 2 stipples"},
        {"2,1,3,16\r\n" + paints + kFourReds, "1 x 3 stipples"},
    };
    for (const auto& [file, message] : cases) {
        KitBench bench({"12", "12"}, 2);
        TouchUp editor(bench.Place);
        const PaintList before = bench.State.FoundColors;
        bench.Files.Write(kSaved, file);
        EXPECT_THAT([&] { editor.LoadIt_Click(); }, ThrowsMessage<FormatError>(HasSubstr(message)));
        EXPECT_EQ(bench.Edited(), (Rows{"12", "12"}));
        EXPECT_EQ(bench.State.FoundColors, before);
        EXPECT_EQ(bench.State.FinalColors, 50);
        EXPECT_FALSE(editor.CanUndo());
    }
}

TEST(BrokenLoad, LeavesWhatWasReadUntilItIsTakenBack) {
    struct Case {
        std::string File;
        const char* Message;
        Rows Left;            // the grid after the break
        bool Usable = false;  // every stipple has a paint all the same
    };
    const Case cases[] = {
        {"2,2,2,16\r\n" + kRed + kRed + "0,1,5,5\r\n0,x,5,5\r\n\r\n\r\n0,1,5,5\r\n",
         "line 5",
         {"12", "22"},
         true},
        {"1,2,2,16\r\n" + kRed + "0,1,5,5\r\n0,2,5,5\r\n\r\n0,1,5,5\r\n", "line 4", {"12", "22"}},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.Message);
        KitBench bench({"12", "12"}, 2);
        TouchUp editor(bench.Place);
        editor.Fill({1, 1}, 2);
        const SheetContents before = editor.Sheet().Copy();
        bench.Files.Write(kSaved, test.File);
        EXPECT_THAT([&] { editor.LoadIt_Click(); },
                    ThrowsMessage<FormatError>(HasSubstr(test.Message)));
        EXPECT_EQ(bench.Edited(), test.Left);
        EXPECT_EQ(bench.State.FoundColors[1].PaintName, "Red");
        if (!test.Usable) {
            EXPECT_THAT([&] { editor.Accept(); }, ThrowsMessage<Error>(HasSubstr("Undo")));
            EXPECT_THROW(editor.SaveIt_Click(), Error);
        }
        // Edits and ticks on what is left go nowhere they should not.
        editor.Fill({2, 2}, 1);
        editor.CleanUp();
        editor.KeepRecovery(At(100));
        while (editor.CanUndo()) {
            editor.Undo();
        }
        editor.Redo();
        EXPECT_EQ(bench.State.FoundColors, before.FoundColors);
        EXPECT_EQ(bench.State.EditStipples, before.EditStipples);
        EXPECT_EQ(bench.State.FoundCount, 2);
        EXPECT_EQ(bench.State.FinalColors, 50);
        EXPECT_EQ(editor.Accept().Dropped.size(), 1U);
    }
}

// The system kills a program that writes beyond the limit, in mid-write.
void SaveWithLimit(TouchUp& editor, rlim_t bytes) {
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
    editor.SaveIt_Click();
}

TEST(SavingDeathTest, KilledInTheMiddleLeavesTheOldFile) {
    KitBench bench(Rows(40, "123456123456123"), 6);
    TouchUp editor(bench.Place);
    editor.SaveIt_Click();
    const std::string old = bench.Files.Read(kSaved);
    editor.Replace(1, 2);
    for (const rlim_t size : {rlim_t{0}, rlim_t{4096}, rlim_t{old.size() - 1000}}) {
        EXPECT_EXIT(SaveWithLimit(editor, size), testing::KilledBySignal(SIGXFSZ), "");
        EXPECT_EQ(bench.Files.Read(kSaved), old);
    }
    editor.SaveIt_Click();
    EXPECT_NE(bench.Files.Read(kSaved), old);
}

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

TEST(Recovery, IsOfferedAfterACrashAndTakenAsOneStep) {
    KitBench bench({"123", "123"}, 3);
    {
        TouchUp crashed(bench.Place);
        crashed.Replace(2, 3);
        crashed.KeepRecovery(At(1));
    }
    bench.Lay({"112", "112"}, 2);
    TouchUp editor(bench.Place);
    ASSERT_TRUE(editor.RecoveryOffered());
    editor.TakeRecovery();
    EXPECT_EQ(bench.Edited(), (Rows{"133", "133"}));
    EXPECT_EQ(bench.State.FoundCount, 3) << "however many paints the kit has now";
    EXPECT_TRUE(bench.CountsAreTrue());
    EXPECT_TRUE(editor.HasChanges());
    editor.Undo();
    EXPECT_EQ(bench.Edited(), (Rows{"112", "112"}));
    editor.Cancel();
    editor.SettleRecovery();
    EXPECT_FALSE(TouchUp(bench.Place).RecoveryOffered()) << "discarded on purpose";
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
    EXPECT_THAT(accepted, HasSubstr("\r\n0,1,5,5\r\n")) << "the one paint left has symbol 1";
    {
        TouchUp again(bench.Place);
        EXPECT_FALSE(again.RecoveryOffered()) << "the work is not lost, it is here";
        again.BeginStroke({1, 1}, {BrushSize::One, 1});
        again.KeepRecovery(At(1));
        again.Cancel();
        again.SettleRecovery();
    }
    EXPECT_TRUE(bench.State.HasUnsavedWork);
    EXPECT_EQ(bench.Files.Read(kRecovery), accepted);
    TouchUp saving(bench.Place);
    saving.SaveIt_Click();
    saving.Cancel();
    EXPECT_FALSE(bench.State.HasUnsavedWork);
    EXPECT_FALSE(fs::exists(bench.Files / kRecovery));
}

TEST(Recovery, ThatCannotBeTakenIsSetAsideBeforeNewWorkIsKept) {
    KitBench bench({"12", "12"}, 2);
    bench.Files.Write(kRecovery, "1,5,5,16\r\n" + kRed);
    TouchUp editor(bench.Place);
    EXPECT_THAT([&] { editor.TakeRecovery(); }, ThrowsMessage<FormatError>(HasSubstr("5 x 5")));
    editor.SettleRecovery();
    EXPECT_TRUE(fs::exists(bench.Files / kRecovery));
    editor.Fill({1, 1}, 2);
    editor.KeepRecovery(At(1));
    EXPECT_THAT(bench.Files.Read("Saved Stipples/Lady-Easy.recovery-old.stp"), HasSubstr("5,5"));
    EXPECT_THAT(bench.Files.Read(kRecovery), HasSubstr("2,2,2,50"));
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
        EXPECT_FALSE(other.RecoveryOffered());
        other.Fill({2, 1}, 1);
        other.KeepRecovery(At(1));
        EXPECT_EQ(first.Files.Read(kRecovery), living);
        RemoveLeftovers(first.Files / "Saved Stipples");
    }
    editor.Cancel();
    editor.SettleRecovery();
    TouchUp again(place);
    ASSERT_TRUE(again.RecoveryOffered()) << "its own, after its crash";
    again.TakeRecovery();
    EXPECT_EQ(second.Edited(), (Rows{"11", "11"}));
    again.SaveIt_Click();
    again.SettleRecovery();
    EXPECT_EQ(std::distance(fs::directory_iterator(first.Files / "Saved Stipples"), {}), 1);
}

TEST(UnsavedWork, OutlivesAStepThatBreaksOff) {
    for (const auto& [step, replacesGrid, endsWell, unsaved, recoverable] :
         {std::tuple{"breaks off at once", false, false, true, true},
          {"breaks off half-way", true, false, false, true},
          {"succeeds", true, true, false, false}}) {
        SCOPED_TRACE(step);
        KitBench bench({"12", "12"}, 2);
        bench.State.HasUnsavedWork = true;
        WriteRecoveryOfGrid(bench.Place);
        {
            GridReplacement replacement(bench.Place);
            ASSERT_TRUE(replacement.Allowed());
            EXPECT_TRUE(bench.State.HasUnsavedWork && fs::exists(bench.Files / kRecovery));
            if (replacesGrid) {
                bench.State.PictureName = "Other";
                bench.State.Stipples = Grid<StippleCell>(2, 2);
            }
            if (endsWell) {
                replacement.Done();
            }
        }
        EXPECT_EQ(bench.State.HasUnsavedWork, unsaved);
        EXPECT_EQ(fs::exists(bench.Files / kRecovery), recoverable);
    }
}

}  // namespace
}  // namespace vendrel::test
