#include "touchup/recording.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "edits/lay_edits.h"
#include "edits/paint_index.h"
#include "sheets.h"
#include "touchup/laid_edits.h"
#include "touchup/touch_up.h"

namespace vendrel::test {
namespace {

// What is on show, whatever the palettes' order.
Rows NamesOn(const PaintList& paints, const Grid<StippleCell>& cells) {
    Rows rows;
    for (int y = 1; y <= cells.Down(); ++y) {
        rows.emplace_back();
        for (int x = 1; x <= cells.Across(); ++x) {
            rows.back() += paints[cells(x, y).ColorIndex].PaintName.back();
        }
    }
    return rows;
}

Rows Laid(const KitEdits& edits) {
    const LaidEdits laid = LayEdits({edits.BasePaints, edits.Base}, edits.Edits);
    return NamesOn(laid.Paints, laid.Cells);
}

// The paints that both lists have, as the first one has them.
std::string Common(const PaintList& paints, const PaintList& other) {
    std::string names;
    for (const PaintColor& paint : paints) {
        names += PaintIndex(other).Find(paint) > 0 ? paint.PaintName.substr(5) : "";
    }
    return names;
}

// As a plain painter has it: what lies under each stipple, and what was put over it.
class PlainPainter {
  public:
    explicit PlainPainter(const WorkState& kit) : base_(NamesOn(kit.PaintColors, kit.Stipples)) {}

    void Exchange(char from, char to) {
        for (auto& [paint, shown] : shownAs_) {
            shown = shown == from ? to : shown;
        }
        shownAs_.try_emplace(from, to);
    }
    [[nodiscard]] char Under(CellPos at) const {
        const char paint =
            base_[static_cast<std::size_t>(at.Y - 1)][static_cast<std::size_t>(at.X - 1)];
        const auto exchanged = shownAs_.find(paint);
        return exchanged == shownAs_.end() ? paint : exchanged->second;
    }

  private:
    Rows base_;
    std::map<char, char> shownAs_;
};

void EditSomehow(TouchUp& editor, WorkState& state, std::mt19937& random) {
    const auto upTo = [&](unsigned n) { return static_cast<int>(random() % n); };
    const CellPos from{1 + upTo(9), 1 + upTo(7)};
    const int paint = 1 + upTo(5);
    state.CleanLevel = 2 + upTo(7);
    const std::function<void()> edits[] = {
        [&] { editor.Fill(from, paint); },
        [&] { editor.Replace(paint, 1 + upTo(5)); },
        [&] { editor.CleanUp(); },
        [&] { editor.Undo(); },
        [&] { editor.Redo(); },
        [&] { editor.TidyPaints(); },
        [&] {
            editor.Erase(std::vector<CellPos>{from, {from.X + 1, from.Y}, {99, 1}});
        },
        [&] { editor.MergeAreas(3); },
        [&] {
            editor.BeginErasing(from, {.Size = 3});
            editor.StrokeTo({upTo(10), upTo(8)});
        },
        [&] {
            CellSet half(9, 7);
            for (int x = 1; x <= from.X; ++x) {
                half.Add({x, from.Y});
            }
            editor.KeepWithin(std::make_shared<CellSet>(half));
            editor.Replace(paint, 1 + upTo(5));
            editor.KeepWithin(nullptr);
        },
        [&] {
            if (editor.Sheet().PaintCount() > 2) {
                editor.ChangePalette("Remove Paint", EditIntent::Exchange,
                                     WithoutPaint(editor.Sheet(), 1 + upTo(2)));
            }
        },
        [&] {
            const int last = editor.Sheet().PaintCount();
            editor.ChangePalette(
                "Move Paint", EditIntent::Order,
                WithPaintMoved(editor.Sheet(), 1 + upTo(static_cast<unsigned>(last)), last));
        },
        [&] {
            editor.BeginStroke(
                from, {.Size = 1 + upTo(3), .Paint = std::min(paint, editor.Sheet().PaintCount())});
            editor.StrokeTo({upTo(10), upTo(8)});
        },
    };
    edits[upTo(13)]();
}

TEST(Recording, GivesExactlyTheSheetOverItsBaseAfterAnySession) {
    for (unsigned seed = 1; seed <= 1500; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        KitBench bench({"112233445", "111223344", "551122334", "445511223", "334455112",
                        "223344551", "555555555"},
                       5);
        const Rows base = NamesOn(bench.State.PaintColors, bench.State.Stipples);
        for (int session = 0; session < 3; ++session) {
            TouchUp editor(bench.Place);
            for (auto i = random() % 12; i > 0; --i) {
                EditSomehow(editor, bench.State, random);
            }
            editor.Accept();
            const Rows shown = NamesOn(bench.State.PaintColors, bench.State.Stipples);
            ASSERT_EQ(Laid(bench.State), shown);
            ASSERT_EQ(NamesOn(bench.State.BasePaints, bench.State.Base), base);
            if (!bench.State.Edits.Order.Empty()) {
                const PaintList paints =
                    LayEdits({bench.State.BasePaints, bench.State.Base}, bench.State.Edits).Paints;
                ASSERT_EQ(Common(paints, bench.State.PaintColors),
                          Common(bench.State.PaintColors, paints));
            }
        }
        for (std::size_t step = 1; step < bench.State.Moments.size(); ++step) {
            ASSERT_EQ(*bench.State.Moments[step].Before, *bench.State.Moments[step - 1].After);
        }
    }
}

TEST(Recording, ErasesToWhatExchangesMakeOfTheBase) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        KitBench bench({"12345", "54321", "11111"}, 5);
        PlainPainter plain(bench.State);
        TouchUp editor(bench.Place);
        for (int i = 0; i < 6; ++i) {
            const int from = 1 + static_cast<int>(random() % 5);
            const int to = 1 + static_cast<int>(random() % 5);
            editor.Fill({1 + static_cast<int>(random() % 5), 1}, to);
            const bool any = editor.Sheet().Paints()[from].CellCount > 0 && from != to;
            editor.Replace(from, to);
            if (any) {
                plain.Exchange(static_cast<char>('0' + from), static_cast<char>('0' + to));
            }
        }
        for (int x = 1; x <= 5; ++x) {
            editor.Erase(std::vector<CellPos>{{x, 2}});
            EXPECT_EQ('0' + editor.Sheet().PaintAt({x, 2}), plain.Under({x, 2}));
            EXPECT_FALSE(editor.IsEdited({x, 2}));
        }
    }
}

TEST(UndoTouchUp, TakesAcceptedStepsBackAndBringsThemAgain) {
    KitBench bench({"12345", "54321"}, 5);
    {
        TouchUp editor(bench.Place);
        editor.Fill({1, 1}, 2);
        editor.Replace(3, 4);
        editor.Accept();
    }
    TouchUp(bench.Place).Accept();  // nothing done
    const auto shown = [&] { return NamesOn(bench.State.PaintColors, bench.State.Stipples); };
    EXPECT_EQ(TouchUpToUndo(bench.State), "Replace Paint");
    UndoLastTouchUp(bench.Place);
    EXPECT_EQ(shown(), (Rows{"22345", "54321"}));
    UndoLastTouchUp(bench.Place);
    UndoLastTouchUp(bench.Place);
    EXPECT_EQ(shown(), (Rows{"12345", "54321"}));
    EXPECT_EQ(TouchUpToRedo(bench.State), "Fill");
    RedoLastTouchUp(bench.Place);
    TouchUp editor(bench.Place);
    editor.Fill({5, 2}, 5);
    editor.Accept();
    EXPECT_EQ(shown(), (Rows{"22345", "54325"}));
    EXPECT_EQ(TouchUpToRedo(bench.State), "");
}

struct IntentCase {
    const char* Name;
    std::function<void(TouchUp&)> Edit;
    Rows Later;  // over another conversion, of 2 everywhere but for a 3 at its end
};

TEST(Recording, KeepsWhatWasMeantOverAnotherConversion) {
    const IntentCase cases[] = {
        {"painted",
         [](TouchUp& e) {
             e.Fill({1, 1}, 4);
         },
         {"42223"}},
        {"painted across what had the paint already",
         [](TouchUp& e) {
             e.BeginStroke({2, 1}, {.Paint = 3});
             e.StrokeTo({4, 1});
             e.EndStroke();
         },
         {"23333"}},
        {"replaced, then painted over and replaced again",
         [](TouchUp& e) {
             e.Replace(3, 5);
             e.Fill({1, 1}, 5);
             e.Replace(5, 4);
         },
         {"42224"}},
        {"cleaned up", [](TouchUp& e) { e.CleanUp(); }, {"22223"}},
        {"taken back",
         [](TouchUp& e) {
             e.Fill({1, 1}, 4), e.Undo();
         },
         {"22223"}},
        {"erased",
         [](TouchUp& e) {
             e.Fill({1, 1}, 4);
             e.Erase(std::vector<CellPos>{{1, 1}});
         },
         {"22223"}},
    };
    for (const IntentCase& one : cases) {
        SCOPED_TRACE(one.Name);
        KitBench bench({"12333"}, 5);
        bench.State.CleanLevel = 2;
        TouchUp editor(bench.Place);
        one.Edit(editor);
        editor.Accept();
        KitEdits later = bench.State;
        later.Base = KitBench({"22223"}, 5).State.Stipples;
        EXPECT_EQ(Laid(later), one.Later);
    }
}

}  // namespace
}  // namespace vendrel::test
