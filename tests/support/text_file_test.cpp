#include "support/text_file.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "support/csv_table.h"
#include "support/error.h"
#include "support/letter_case.h"
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

TEST(LetterCase, IsOneInEveryScriptWhateverTheSystemsLanguage) {
    for (const auto& [a, b, same] : {std::tuple{"Aa-9[", "aA-9[", true},
                                     {"@[", "`{", false},
                                     {"\u00c9meraude", "\u00e9MERAUDE", true},
                                     {"\u0416\u0401", "\u0436\u0451", true},
                                     {"\u0391\u03a3", "\u03b1\u03c2", true},
                                     {"KIRMIZI", "k\u0131rm\u0131z\u0131", true},
                                     {"\u00e9", "e", false},
                                     {"\xC9", "\xE9", false},
                                     {"\U00010400", "\U00010428", true}}) {
        EXPECT_EQ(SameIgnoringCase(a, b), same) << a << ' ' << b;
    }
    EXPECT_EQ(ToLower("\u00c9T\u00c9\xFF \u20ac"), "\u00e9t\u00e9\xFF \u20ac");
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

TEST(Trimmed, TakesBlanksAndNoHalfLetters) {
    EXPECT_EQ(Trimmed("\xC2\xA0 Voil\xC3\xA0\t\xC2\xA0"), "Voil\xC3\xA0");
    EXPECT_EQ(Trimmed(" \xC2\xBD oz"), "\xC2\xBD oz");
    EXPECT_EQ(Trimmed(" \xC2\xA0"), "");
}

}  // namespace
}  // namespace vendrel
