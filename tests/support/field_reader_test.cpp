#include "support/field_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/error.h"

namespace vendrel {
namespace {

TEST(FieldReader, ReadsFieldsWhereverTheLinesEnd) {
    FieldReader in("2\r\n 1,2 ,\t3,\"Greens, light\",  plain text\n\"x\"\n7", "f");
    EXPECT_EQ(in.ReadInt("n", 0, 9), 2);
    EXPECT_EQ(in.ReadInt("n", 0, 9), 1);
    EXPECT_EQ(in.ReadInt("n", 0, 9), 2);
    EXPECT_EQ(in.ReadInt("n", 0, 9), 3);
    EXPECT_EQ(in.ReadText("t"), "Greens, light");
    EXPECT_EQ(in.ReadText("t"), "plain text");
    EXPECT_EQ(in.Line(), 2);
    EXPECT_EQ(in.ReadText("t"), "x");
    EXPECT_EQ(in.LinesLeft().First, 4);
    EXPECT_EQ(in.ReadInt("n", 0, 9), 7);
    EXPECT_EQ(in.LinesLeft().First, 0);
    EXPECT_THROW((void)in.ReadText("t"), FormatError);
}

TEST(FieldReader, NamesFileLineAndFieldOfABrokenNumber) {
    for (const char* text : {"1\n256", "1\n-1", "1\nx", "1\n", "1\n\"\"", "1\n1.5"}) {
        FieldReader in(text, "paints.csv");
        (void)in.ReadInt("red", 0, 255);
        try {
            (void)in.ReadInt("red", 0, 255);
            ADD_FAILURE() << text;
        } catch (const FormatError& error) {
            EXPECT_THAT(error.what(), testing::HasSubstr("paints.csv, line 2: "));
            EXPECT_THAT(error.what(), testing::HasSubstr("red"));
        }
    }
}

TEST(FieldReader, RefusesBrokenQuotingInTheLineItBeginsIn) {
    for (const auto& [text, problem] :
         {std::pair{"1\n\"Ochre\n2\n", "line 2: a name opens with a double quote"},
          {"1\n\"Ochre\n2,\"Umber\"\n", "line 2: a name goes on behind"},
          {"1\n\"6\"\" brush\"", "line 2: a name goes on behind"},
          {"1\n\"Ochre\" 7\n", "line 2: a name goes on behind"}}) {
        FieldReader in(text, "paints.csv");
        (void)in.ReadInt("n", 0, 9);
        EXPECT_THAT([&] { (void)in.ReadText("a name"); },
                    testing::ThrowsMessage<FormatError>(testing::HasSubstr(problem)));
    }
}

}  // namespace
}  // namespace vendrel
