#include "touchup/touch_up.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <random>

#include "convert/bitmap_writer.h"
#include "sheets.h"
#include "support/error.h"
#include "support/leftovers.h"
#include "touchup/cell_patch.h"
#include "touchup/selecting.h"
#include "touchup/unsaved_work.h"

namespace vendrel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::ThrowsMessage;

namespace fs = std::filesystem;
constexpr const char* kSaved = "Saved Stipples/Lady-Easy.stp";
constexpr const char* kRecovery = "Saved Stipples/Lady-Easy.recovery.stp";
const std::string kRed = "1,2,3,\"Red\",1,\"Set\",\"R\"\r\n";
constexpr const char* kFourReds = "0,1,5,5\r\n0,1,13,5\r\n0,1,5,13\r\n0,1,13,13\r\n";

EditTime At(int second) {
    return EditTime{} + std::chrono::seconds(second);
}

// The editor as plainly as it can be had: a whole copy of the kit for every state.
class PlainHistory {
  public:
    explicit PlainHistory(const EditSheet& sheet) : states_{StateOf(sheet)} {}
    [[nodiscard]] bool Shows(const EditSheet& sheet) const {
        return states_[done_] == StateOf(sheet);
    }
    [[nodiscard]] std::size_t Count() const { return states_.size(); }
    void GoTo(std::size_t done) { done_ = std::min(done, states_.size() - 1); }
    void Follow(const TouchUp& editor) {
        if (static_cast<std::size_t>(editor.StepsDone()) != done_ || !Shows(editor.Sheet())) {
            states_.resize(done_ + 1);
            states_.push_back(StateOf(editor.Sheet()));
            ++done_;
        }
    }
    [[nodiscard]] std::size_t Done() const { return done_; }

  private:
    using State = std::pair<Grid<StippleCell>, PaintList>;
    static State StateOf(const EditSheet& sheet) { return {sheet.Cells(), sheet.Paints()}; }
    std::vector<State> states_;
    std::size_t done_ = 0;
};

// An edit of any kind, as a hand on the mouse would make it.
void EditAtRandom(TouchUp& editor, WorkState& state, std::mt19937& random) {
    const auto upTo = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const EditSheet& sheet = editor.Sheet();
    const CellPos from{upTo(12), upTo(9)};
    const CellPos to{upTo(12), upTo(9)};
    const int paint = 1 + upTo(sheet.PaintCount());
    const int other = 1 + upTo(sheet.PaintCount());
    const EditBrush brush{1 + upTo(kLargestBrush), paint, upTo(2) == 0};
    const CellSet cells = upTo(2) == 0 ? CellsBetween(sheet, from, to) : AreaAround(sheet, from);
    state.CleanLevel = 2 + upTo(7);
    const std::function<void()> edits[] = {
        [&] { editor.Fill(from, paint); },
        [&] { editor.Replace(paint, other); },
        [&] { editor.CleanUp(); },
        [&] { editor.MergeAreas(1 + upTo(6)); },
        [&] { editor.BeginStroke(from, brush), editor.StrokeTo(to), editor.EndStroke(); },
        [&] { editor.BeginErasing(from, brush), editor.StrokeTo(to), editor.EndStroke(); },
        [&] { editor.KeepWithin(upTo(2) == 0 ? nullptr : std::make_shared<const CellSet>(cells)); },
        [&] {
            editor.Edit("Move", EditIntent::Paint, [&](EditPen& pen) {
                const CellPatch patch = Mirrored(CutPatch(sheet, cells), MirrorWay::UpsideDown);
                CloseHole(pen, cells);
                PlacePatch(pen, patch, to);
            });
        },
        [&] {
            PaintColor fresh = state.PaintColors[1];
            fresh.PaintName = "Fresh " + std::to_string(upTo(3));
            editor.ChangePalette("Add", EditIntent::Paint, WithPaints(sheet, {fresh}));
        },
        [&] {
            if (sheet.PaintCount() > 2) {
                editor.ChangePalette("Remove", EditIntent::Exchange, WithoutPaint(sheet, paint));
            }
        },
        [&] {
            editor.ChangePalette("Sort", EditIntent::Paint, WithPaintMoved(sheet, paint, other));
        },
        [&] { editor.TidyPaints(); },
    };
    edits[upTo(std::ssize(edits))]();
}

TEST(History, ShowsWhatAPlainModelShowsThroughThousandsOfSessions) {
    for (unsigned seed = 1; seed <= 2000; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        KitBench bench(Rows(8, "12345612345"), 6);
        TouchUp editor(bench.Place);
        PlainHistory plain(editor.Sheet());
        for (int i = 0; i < 25; ++i) {
            if (random() % 3 != 0) {
                EditAtRandom(editor, bench.State, random);
                plain.Follow(editor);
            } else if (random() % 2 == 0) {
                plain.GoTo(random() % plain.Count());
                editor.GoToStep(static_cast<int>(plain.Done()));
            } else if (plain.Done() > 0) {
                plain.GoTo(plain.Done() - 1);
                editor.Undo();
            } else {
                plain.GoTo(1);
                editor.Redo();
            }
            ASSERT_TRUE(plain.Shows(editor.Sheet()));
            ASSERT_TRUE(bench.CountsAreTrue());
            ASSERT_EQ(editor.StepNames().size() + 1, plain.Count());
        }
        plain.GoTo(0);
        editor.GoToStep(0);
        EXPECT_TRUE(plain.Shows(editor.Sheet()));
        EXPECT_FALSE(editor.HasChanges());
    }
}

TEST(History, NamesItsStepsAndForgetsTheUndoneOnesWithANewEdit) {
    KitBench bench({"11", "22"});
    TouchUp editor(bench.Place);
    editor.BeginStroke({1, 1}, {1, 3});
    EXPECT_EQ(editor.UndoName(), "Brush") << "already while the button is down";
    editor.Fill({1, 2}, 4);
    editor.Undo();
    EXPECT_EQ(editor.UndoName(), "Brush");
    EXPECT_EQ(editor.RedoName(), "Fill");
    editor.Replace(3, 5);
    EXPECT_FALSE(editor.CanRedo());
    EXPECT_EQ(bench.Edited(), (Rows{"51", "22"}));
}

TEST(Accepting, NumbersPaintsAsTheSavedGridDoes) {
    KitBench bench({"123", "123"}, 4);
    bench.State.CellMarks(1, 1).Visited = true;
    bench.State.Stipples(1, 1).AreaNumber = 7;
    TouchUp editor(bench.Place);
    editor.Replace(2, 4);
    editor.Accept();
    const WorkState& state = bench.State;
    EXPECT_EQ(GridOf(state.Stipples), (Rows{"143", "143"}));
    EXPECT_EQ(state.PaintCount, 4);
    EXPECT_EQ(state.PaintColors[2].PaintName, "Paint 2") << "a printed sheet has its symbol";
    EXPECT_EQ(state.Stipples(1, 1).AreaNumber, 0);
    EXPECT_EQ(state.CellMarks, Grid<CellMark>(3, 2));
    EXPECT_TRUE(state.HasUnsavedWork);
    SaveStipples(bench.Place);
    EXPECT_THAT(bench.Files.Read(kSaved), HasSubstr("4,3,2,50"));
    EXPECT_FALSE(state.HasUnsavedWork || fs::exists(bench.Files / kRecovery));
}

TEST(TidyPaints, DropsUnusedOnesAndTellsWhichSymbolsMovedUntilItIsUndone) {
    KitBench bench({"123", "123"}, 4);
    bench.Files.Write(kSaved, "1,2,1,16\r\n" + kRed + "0,1,5,5\r\n0,1,13,5\r\n");
    TouchUp editor(bench.Place);
    editor.Replace(2, 4);
    const TidyReport report = editor.TidyPaints();
    EXPECT_THAT(report.Dropped, ElementsAre("Paint 2"));
    EXPECT_THAT(report.Moves,
                ElementsAre(SymbolMove{"Paint 3", 3, 2}, SymbolMove{"Paint 4", 4, 3}));
    EXPECT_EQ(bench.Edited(), (Rows{"132", "132"}));
    EXPECT_TRUE(bench.CountsAreTrue());
    EXPECT_TRUE(editor.TidyPaints().Dropped.empty());
    EXPECT_EQ(editor.UndoName(), "Tidy Paints");
    editor.Undo();
    EXPECT_EQ(bench.Edited(), (Rows{"143", "143"}));
    editor.Undo();
    EXPECT_EQ(bench.Edited(), (Rows{"123", "123"}));
    editor.Redo();
    editor.Redo();
    EXPECT_EQ(bench.State.FoundCount, 3);
    bench.Files.Write(kSaved, "4,3,1,16\r\n" + kRed + kRed + kRed + kRed +
                                  "0,1,5,5\r\n0,x,5,5\r\n\r\n\r\n0,1,5,5\r\n");
    EXPECT_THROW(editor.LoadIt_Click(), FormatError);
    EXPECT_EQ(bench.State.FoundCount, 4) << "the room is still there";
}

TEST(Closing, GivesTheKitWhatWasSavedLast) {
    struct Case {
        const char* What;
        std::function<void(TouchUp&)> Edits;
        bool Asks;
        Rows Kit;
    };
    const auto paint = [](TouchUp& editor, int with) { editor.Fill({1, 1}, with); };
    const Case cases[] = {
        {"saved", [&](auto& e) { paint(e, 2), e.SaveIt_Click(); }, false, {"22", "22"}},
        {"changed after",
         [&](auto& e) { paint(e, 2), e.SaveIt_Click(), paint(e, 3); },
         true,
         {"22", "22"}},
        {"undone after",
         [&](auto& e) { paint(e, 2), e.SaveIt_Click(), e.Undo(); },
         true,
         {"22", "22"}},
        {"saved untouched", [&](auto& e) { e.SaveIt_Click(); }, false, {"12", "12"}},
        {"loaded", [&](auto& e) { e.LoadIt_Click(); }, false, {"12", "12"}},
        {"loaded over changes",
         [&](auto& e) { paint(e, 3), e.LoadIt_Click(); },
         true,
         {"12", "12"}},
        {"the load taken back",
         [&](auto& e) { paint(e, 3), e.LoadIt_Click(), e.DigOut(), e.SaveIt_Click(); },
         false,
         {"32", "32"}},
        {"saved over buried changes",
         [&](auto& e) { paint(e, 3), e.LoadIt_Click(), e.SaveIt_Click(); },
         false,
         {"11", "11"}},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.What);
        KitBench bench({"12", "12"}, 3);
        bench.Files.Write(kSaved, "3,2,2,50\r\n" + kRed + kRed + kRed + kFourReds);
        TouchUp editor(bench.Place);
        test.Edits(editor);
        EXPECT_EQ(editor.HasChanges(), test.Asks);
        EXPECT_EQ(editor.Cancel(), test.Kit != (Rows{"12", "12"}));
        editor.SettleRecovery();
        EXPECT_EQ(GridOf(bench.State.Stipples), test.Kit);
        EXPECT_FALSE(bench.State.HasUnsavedWork);
        EXPECT_FALSE(fs::exists(bench.Files / kRecovery));
    }
}

TEST(Cancelling, PutsTheKitBackAsItWas) {
    KitBench bench({"123", "123"});
    bench.Files.Write(kSaved, "1,2,1,16\r\n" + kRed + "0,1,5,5\r\n0,1,13,5\r\n");
    TouchUp editor(bench.Place);
    EXPECT_EQ(editor.LoadIt_Click(), (CellRect{1, 1, 3, 2}));
    EXPECT_EQ(editor.Sheet().Across(), 2) << "the file's own size";
    EXPECT_TRUE(IsChecked(bench.State.Chosen, MenuId::Set16Colors));
    EXPECT_THROW(editor.Accept(), FileError) << "there is no photo to take that shape";
    EXPECT_FALSE(editor.Cancel());
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
    editor.Undo();
    EXPECT_EQ(checked(), 50);
    EXPECT_EQ(bench.Edited(), (Rows{"22", "22"}));
    EXPECT_TRUE(bench.CountsAreTrue());
    EXPECT_TRUE(editor.HasChanges());
    editor.Redo();
    EXPECT_EQ(checked(), 16);
    EXPECT_FALSE(editor.Cancel());
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
        EXPECT_NO_THROW(editor.Accept());
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
