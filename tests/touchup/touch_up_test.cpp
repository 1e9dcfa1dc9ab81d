#include "touchup/touch_up.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <random>

#include "sheets.h"
#include "support/error.h"
#include "touchup/cell_patch.h"
#include "touchup/selecting.h"
#include "touchup/unsaved_work.h"

namespace vendrel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

namespace fs = std::filesystem;
constexpr const char* kFourReds = "0,1,5,5\r\n0,1,13,5\r\n0,1,5,13\r\n0,1,13,13\r\n";

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

}  // namespace
}  // namespace vendrel::test
