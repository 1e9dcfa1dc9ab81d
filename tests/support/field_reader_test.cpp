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
    EXPECT_FALSE(in.AtEnd());
    EXPECT_EQ(in.ReadInt("n", 0, 9), 7);
    EXPECT_TRUE(in.AtEnd());
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

}  // namespace
}  // namespace vendrel
