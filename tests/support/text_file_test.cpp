#include "support/text_file.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "support/error.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

TEST(TextFile, TakesBytesThatAreNotUtf8ForWindows1252) {
    EXPECT_EQ(ToUtf8("\xEF\xBB\xBF"
                     "Gr\xC3\xBCn"),
              "Gr\xC3\xBCn");
    EXPECT_EQ(ToUtf8("Gr\xFCn \x80"), "Gr\xC3\xBCn \xE2\x82\xAC");
    EXPECT_EQ(ToUtf8("\xC3"), "\xC3\x83");
    EXPECT_EQ(ToUtf8("\xED\xA0\x80").size(),
              7U);  // a surrogate is not UTF-8: i-diaeresis, nbsp, euro
}

TEST(TextFile, SplitsBothKindsOfLineEnds) {
    EXPECT_EQ(SplitLines("a\r\nb\n\nc"), (std::vector<std::string>{"a", "b", "", "c"}));
    EXPECT_EQ(SplitLines("a\r\n"), std::vector<std::string>{"a"});
    EXPECT_TRUE(SplitLines("").empty());
}

TEST(TextFile, RefusesWhatIsNoFileWithoutWaiting) {
    const test::TempFolder folder;
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("loop", folder / "loop");
    for (const auto& [file, problem] : {std::pair{folder / "none.txt", "is not there"},
                                        {folder.Path(), "is a folder"},
                                        {folder / "pipe", "is a pipe"},
                                        {"/dev/null", "is a device"},
                                        {folder / std::string(256, 'x'), "cannot be opened"},
                                        {folder / "loop", "cannot be opened"}}) {
        EXPECT_THAT([&] { (void)ReadTextFile(file); },
                    testing::ThrowsMessage<FileError>(testing::HasSubstr(problem)));
    }
}

}  // namespace
}  // namespace vendrel
