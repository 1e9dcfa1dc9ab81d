#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <chrono>

#include "support/disk.h"
#include "support/error.h"
#include "support/leftovers.h"
#include "support/program_folder.h"
#include "support/temp_folder.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

std::size_t FilesIn(const fs::path& folder) {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(WholeFile, KeepsTheOldFileUntilCommit) {
    const test::TempFolder folder;
    folder.Write("a.txt", "old");
    {
        WholeFile abandoned(folder / "a.txt");
        abandoned.Write("half of the n");
    }
    EXPECT_EQ(folder.Read("a.txt"), "old");
    EXPECT_EQ(FilesIn(folder.Path()), 1U);
    WriteWholeFile(folder / "a.txt", "new");
    EXPECT_EQ(folder.Read("a.txt"), "new");
    EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

TEST(WholeFile, TakesANewNameOnlyWhereNobodyHasIt) {
    const test::TempFolder folder;
    folder.Write("a.txt", "theirs");
    WholeFile file(folder / "a.txt", Lasting::Synced);
    file.Write("ours");
    EXPECT_FALSE(file.CommitNew(folder / "a.txt"));
    EXPECT_FALSE(file.Holds(folder / "a.txt"));
    folder.Write("c.txt", "ours");
    EXPECT_TRUE(file.Holds(folder / "c.txt"));
    EXPECT_TRUE(file.CommitNew(folder / "b.txt"));
    EXPECT_EQ(folder.Read("a.txt") + folder.Read("b.txt"), "theirsours");
}

TEST(WholeFile, TakesTheLongestNameAndRefusesALongerOneBeforeItIsWritten) {
    const test::TempFolder folder;
    WriteWholeFile(folder / std::string(255, 'a'), "x");
    EXPECT_EQ(folder.Read(std::string(255, 'a')), "x");
    EXPECT_THAT([&] { WholeFile(folder / std::string(256, 'a')); },
                testing::ThrowsMessage<FileError>(testing::HasSubstr("the name is too long")));
}

TEST(WholeFile, CreatesFoldersAndNamesWhatIsInTheWay) {
    const test::TempFolder folder;
    WriteWholeFile(folder / "new/deep/a.txt", "x");
    EXPECT_EQ(folder.Read("new/deep/a.txt"), "x");
    try {
        WriteWholeFile(folder / "new/deep", "x");
        ADD_FAILURE();
    } catch (const FileError& error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("deep"));
    }
    EXPECT_THROW(WriteWholeFile(folder / "new/deep/a.txt/b.txt", "x"), FileError);
    EXPECT_THROW(WriteWholeFile("/dev/full/x", "x"), FileError);
}

TEST(Leftovers, OfDeadProgramsGoAndThoseOfLivingOnesStay) {
    const test::TempFolder folder;
    const fs::path held = folder / NewWaitingName();
    for (const std::string& name :
         {std::string("a.csv.123.part"), std::string("a.arriving-123"), NewWaitingName(),
          LockName("a.stp"), std::string("a.part"), held.filename().string()}) {
        folder.Write(name, "half");
        fs::last_write_time(folder / name,
                            fs::file_time_type::clock::now() - std::chrono::hours(25));
    }
    const std::vector<std::string> staying = {"a.arriving-b", "a.bmp", "b.124.part"};
    for (const std::string& name : staying) {
        folder.Write(name, "no leftover, or perhaps of a living program");
    }
    const int lock = open(held.c_str(), O_RDONLY);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    RemoveLeftovers(folder.Path());
    RemoveLeftovers(folder / "missing");
    EXPECT_TRUE(fs::exists(held) && fs::exists(folder / "a.part"));
    for (const std::string& name : staying) {
        EXPECT_TRUE(fs::exists(folder / name)) << name;
    }
    EXPECT_EQ(FilesIn(folder.Path()), staying.size() + 2);
    close(lock);
    RemoveLeftovers(folder.Path());
    EXPECT_FALSE(fs::exists(held));
}

TEST(FileError, NamesFilesWithoutDetours) {
    EXPECT_STREQ(FileError("./Results/x.BMP", "is gone.").what(), "Results/x.BMP: is gone.");
    EXPECT_STREQ(FormatError("./Data/x.csv", 2, "is odd.").what(), "Data/x.csv, line 2: is odd.");
}

TEST(ProgramFolder, FindsNamesWhateverTheirCase) {
    const test::TempFolder folder;
    folder.Write("data/StudioPaint.CSV", "0");
    folder.Write("shipped/Data/studiopaint.csv", "1");
    folder.Write("shipped/Data/Symbols.txt", "1");
    const ProgramFolder program(folder.Path(), folder / "shipped");
    EXPECT_EQ(program.Path("Data/studiopaint.csv"), folder / "data/StudioPaint.CSV");
    EXPECT_EQ(program.Path("DATA/new.txt"), folder / "data/new.txt");
    EXPECT_EQ(program.DataFile("Data/studiopaint.csv"), folder / "data/StudioPaint.CSV");
    EXPECT_EQ(program.DataFile("Data/symbols.txt"), folder / "shipped/Data/Symbols.txt");
    EXPECT_EQ(program.DataFile("Data/none.txt"), folder / "data/none.txt");
    EXPECT_TRUE(program.Exists("DATA"));
    EXPECT_FALSE(program.Exists("Results"));
    // What cannot be looked at is neither there nor absent.
    fs::create_symlink("loop", folder / "loop");
    EXPECT_THROW((void)program.DataFile("loop/x"), FileError);
    EXPECT_THROW((void)program.Exists(std::string(256, 'x')), FileError);
    EXPECT_THROW((void)EntriesOf(folder / "data/StudioPaint.CSV"), FileError);
    EXPECT_TRUE(EntriesOf(folder / "none").empty());
}

}  // namespace
}  // namespace vendrel
