#include "kitset/kit_set.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>

#include "cleanup/paint_bench.h"
#include "cleanup/paint_pass.h"
#include "kitset/kit_mark.h"
#include "kitset/save_kit.h"
#include "kitset/settle.h"
#include "kitset/sha256.h"
#include "output/symbol_set.h"
#include "shell/ui.h"
#include "support/error.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// A painted kit, and files of it with words in place of pictures.
struct Shelf : test::PaintBench {
    Shelf() : PaintBench(8, {"111", "121", "111"}) { SetupBMPSymbols(State, Program); }

    std::vector<std::string> Save(const std::string& mark, const std::vector<OutputId>& outputs) {
        KitSet set(Program, KitNameOf(State, State), Screen, mark);
        Fill(set, outputs);
        return set.Commit();
    }
    static void Fill(KitSet& set, const std::vector<OutputId>& outputs) {
        for (const OutputId id : outputs) {
            WriteWholeFile(set.Waiting(OutputOf(id)), set.Mark());
            set.Written(OutputOf(id));
        }
    }
    [[nodiscard]] std::string Text(OutputId output) const {
        const fs::path file = Paths().File(OutputOf(output));
        return fs::exists(file) ? Files.Read(file.lexically_relative(Files.Path()).string()) : "";
    }
    [[nodiscard]] KitPaths Paths() const { return {Program, {"Lady", "Easy"}}; }
    [[nodiscard]] KitList List() const { return ReadKitList(Paths().List()).value(); }
    [[nodiscard]] std::vector<std::string> Hidden() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(Files.Path())) {
            if (entry.path().filename().string().starts_with('.')) {
                names.push_back(entry.path().filename().string());
            }
        }
        return names;
    }
};

using enum OutputId;

TEST(Sums, AreThoseOfSha256sumWhetherReadOrWatched) {
    const test::TempFolder files;
    files.Write("abc", "abc");
    const std::string abc = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";
    EXPECT_EQ(SumOfFile(files / "abc"), abc);
    EXPECT_EQ(SumOfFile(files / "missing"), "");
    RunningSum running;
    EXPECT_FALSE(running.Saw());
    std::string block;
    for (const char* part : {"a", "b", "c"}) {
        running.AwaitAllBut(0);  // the block is free again
        block = part;
        running.See(std::as_bytes(std::span(block)), nullptr);
    }
    EXPECT_EQ(running.Finish(), abc);
}

TEST(Mark, ChangesWithPaintsStipplesAndDifficultyAlone) {
    Shelf kit;
    const std::string mark = KitMark(kit.State, kit.State, kit.State);
    EXPECT_EQ(mark.size(), 8U);
    kit.State.Stipples(2, 2).AreaNumber = 7;
    EXPECT_EQ(KitMark(kit.State, kit.State, kit.State), mark);
    kit.State.Stipples(2, 2).ColorIndex = 1;
    const std::string touchedUp = KitMark(kit.State, kit.State, kit.State);
    kit.State.PaintColors[3].PaintCode = "other";
    const std::string repainted = KitMark(kit.State, kit.State, kit.State);
    kit.State.Chosen.Level = Difficulty::Medium;
    EXPECT_THAT((std::set{mark, touchedUp, repainted, KitMark(kit.State, kit.State, kit.State)}),
                testing::SizeIs(4));
}

TEST(SavedKit, IsListedWithTheSumsOfItsFiles) {
    Shelf kit;
    PaintAllCells(kit.Place);
    OutputChoice outputs;
    for (const OutputId id : {Sheet, Reference, Painting, Grid}) {
        outputs.Add(id);
    }
    const SavedKit saved = SaveKit(kit.Place, {.Outputs = outputs, .Plan = {}});
    EXPECT_THAT(saved.Notes, IsEmpty());
    EXPECT_THAT(kit.Hidden(), IsEmpty());
    EXPECT_EQ(saved.Files.size(), 4U);
    const KitList list = kit.List();
    EXPECT_EQ(list.Mark, KitMark(kit.State, kit.State, kit.State));
    for (const SavedKit::File& file : saved.Files) {
        EXPECT_EQ(list.Find(file.Output)->Sum, SumOfFile(file.Path)) << file.Path;
    }
}

TEST(KitSet, NamesWhatIsOfAnotherKitOrChanged) {
    Shelf kit;
    EXPECT_THAT(kit.Save("OLD", {Sheet, Painting, Chart, Grid}), IsEmpty());
    EXPECT_THAT(kit.Save("OLD", {Pdf}), IsEmpty());
    EXPECT_EQ(kit.List().Files.size(), 5U);
    kit.Files.Write("Results/Lady Easy Color Chart.BMP", "by hand");
    kit.Files.Write("Results/Lady Easy Symbol Reference.BMP", "from somewhere");
    fs::remove(kit.Files / "Results/Lady Easy Kit.pdf");
    EXPECT_THAT(
        kit.Save("NEW", {Painting}),
        ElementsAre(AllOf(HasSubstr("PBS.BMP"), HasSubstr("another kit (OLD, this one is NEW)")),
                    AllOf(HasSubstr("Symbol Reference.BMP"), HasSubstr("in no list")),
                    AllOf(HasSubstr("Color Chart.BMP"), HasSubstr("was changed"))));
    std::string marks;
    for (const ListedFile& file : kit.List().Files) {
        marks += std::string(OutputOf(file.Output).Word) + " " + file.Mark + ", ";
    }
    EXPECT_EQ(marks, "sheet OLD, painting NEW, grid OLD, ");
    EXPECT_THAT(kit.Save("NEW", {Sheet, Reference, Chart, Grid}), IsEmpty());
}

// What a kill leaves at each of its moments, by doing what was done until then.
TEST(KitSet, IsWholeAfterAKillAtAnyMoment) {
    struct Moment {
        const char* Name;
        bool Listed;                  // the waiting list is there
        std::vector<OutputId> Moved;  // have taken their places
        bool Damaged;                 // a waiting file is not what was written
        const char* Expected;
    };
    for (const Moment& m : {Moment{"while writing", false, {}, false, "OLD"},
                            Moment{"list written", true, {}, false, "NEW"},
                            Moment{"first file moved", true, {Sheet}, false, "NEW"},
                            Moment{"all files moved", true, {Sheet, Painting, Grid}, false, "NEW"},
                            Moment{"file lost by a power cut", true, {}, true, "OLD"}}) {
        Shelf kit;
        kit.Save("OLD", {Sheet, Painting, Grid});
        Shelf twin;
        twin.Save("NEW", {Sheet, Painting, Grid});
        const KitPaths paths = kit.Paths();
        for (const OutputId id : {Sheet, Painting, Grid}) {
            const bool moved = std::ranges::find(m.Moved, id) != m.Moved.end();
            WriteWholeFile(moved ? paths.File(OutputOf(id)) : paths.Waiting(OutputOf(id)),
                           m.Damaged && id == Painting ? "" : "NEW");
        }
        if (m.Listed) {
            WriteWholeFile(paths.WaitingList(), FormatKitList(twin.List(), paths));
        }
        kit.Files.Write("Results/.waiting Lady Easy/.vendrel-1-1.part", "half");
        fs::create_directories(paths.WaitingFolder());
        SettleKits(kit.Program);
        EXPECT_EQ(kit.List().Mark, m.Expected) << m.Name;
        for (const OutputId id : {Sheet, Painting, Grid}) {
            EXPECT_EQ(kit.Text(id), m.Expected) << m.Name;
        }
        EXPECT_THAT(kit.Hidden(), IsEmpty()) << m.Name;
    }
}

TEST(KitSet, ThatFailsLeavesTheOldOneAndNothingElse) {
    Shelf kit;
    kit.Save("OLD", {Sheet, Painting});
    fs::create_directories(kit.Files / "Results/Lady Easy Color Chart.BMP");
    EXPECT_THROW(kit.Save("NEW", {Sheet, Chart}), FileError);
    {
        KitSet givenUp(kit.Program, KitNameOf(kit.State, kit.State), kit.Screen, "NEW");
        Shelf::Fill(givenUp, {Sheet});
    }
    {
        const rlimit full{0, RLIM_INFINITY};  // as a disk without room, but for all files at once
        ASSERT_EQ(std::signal(SIGXFSZ, SIG_IGN), SIG_DFL);
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
        for (const OutputId id : {Sheet, Grid}) {
            EXPECT_THAT([&] { kit.Save("NEW", {id}); },
                        testing::ThrowsMessage<FileError>(
                            testing::StartsWith(kit.Paths().File(OutputOf(id)).string() + ": ")));
        }
        const rlimit room{RLIM_INFINITY, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &room);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    EXPECT_EQ(kit.Text(Sheet), "OLD");
    EXPECT_EQ(kit.List().Mark, "OLD");
    EXPECT_THAT(kit.Hidden(), IsEmpty());
}

TEST(KitSet, WaitsForAnotherThatIsWritten) {
    Shelf kit;
    {
        KitSet first(kit.Program, KitNameOf(kit.State, kit.State), kit.Screen, "ONE");
        Shelf::Fill(first, {Sheet});
        SettleKits(kit.Program);  // leaves what somebody writes alone
        kit.Screen.StopAfterYields = 1;
        EXPECT_THROW(kit.Save("TWO", {Sheet}), Stop);
        EXPECT_EQ(kit.Screen.Captions.back(), "Waiting for another Vendrel that writes Lady Easy");
        EXPECT_THAT(first.Commit(), IsEmpty());
    }
    EXPECT_EQ(kit.Text(Sheet), "ONE");
    kit.Save("TWO", {Sheet});
    EXPECT_EQ(kit.Text(Sheet), "TWO");
}

}  // namespace
}  // namespace vendrel
