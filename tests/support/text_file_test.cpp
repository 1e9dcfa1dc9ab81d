#include "support/text_file.h"

#include <gtest/gtest.h>

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

TEST(TextFile, MissingFileAndFolderAreErrors) {
    const test::TempFolder folder;
    EXPECT_THROW((void)ReadTextFile(folder / "none.txt"), FileError);
    EXPECT_THROW((void)ReadTextFile(folder.Path()), FileError);
}

}  // namespace
}  // namespace vendrel
