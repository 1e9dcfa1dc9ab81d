#include "kit/kit_report.h"

#include <gmock/gmock.h>

namespace vendrel {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(KitReport, JsonIsOneLineInOrderWithTwoDecimalsAndUtf8) {
    KitReport report;
    report.Photo = "Kr\xE4uter \"2\".bmp";
    report.Milliseconds = {{"convert", 2.0 / 3.0}, {"paint", 5.0}};
    report.Notes = {"1\n2\x1b", "Kr\xC3\xA4uter"};
    report.CellsDown = 3;
    const std::string line = JsonLineOf(report);
    EXPECT_THAT(line,
                StartsWith("{\"photo\": \"Kr\xC3\xA4uter \\\"2\\\".bmp\", \"picture\": \"\""));
    EXPECT_THAT(line,
                HasSubstr(R"("stipples": {"across": 0, "down": 3}, "paints": {"matched": 0)"));
    EXPECT_THAT(line,
                HasSubstr(R"("milliseconds": {"convert": 0.67, "paint": 5.00}, "files": {},)"));
    EXPECT_THAT(line, HasSubstr("\"notes\": [\"1\\n2\\u001b\", \"Kr\xC3\xA4uter\"]}"));
    EXPECT_EQ(JsonLineOf("a.bmp", "no"), R"({"photo": "a.bmp", "error": "no"})");
}

}  // namespace
}  // namespace vendrel
