#include "kit/json.h"

#include <gtest/gtest.h>

namespace vendrel {
namespace {

TEST(Json, StringsAreEscapedAndAlwaysUtf8) {
    EXPECT_EQ(JsonString("a \"b\" \\ c"), R"("a \"b\" \\ c")");
    EXPECT_EQ(JsonString("1\n2\t3\x1b"), R"("1\n2\u00093\u001b")");
    EXPECT_EQ(JsonString("Kr\xC3\xA4uter"), "\"Kr\xC3\xA4uter\"");
    EXPECT_EQ(JsonString("Kr\xE4uter"), "\"Kr\xC3\xA4uter\"");
}

TEST(Json, AnObjectKeepsTheOrderOfItsMembers) {
    EXPECT_EQ(JsonObject().Text(), "{}");
    JsonObject object;
    object.Add("name", "x").Add("count", 3).Add("done", true).Add("share", 2.0 / 3.0);
    object.Add("none", JsonObject()).Add("files", std::vector<std::string>{"a", "b\""});
    EXPECT_EQ(object.Text(),
              R"({"name": "x", "count": 3, "done": true, "share": 0.67, "none": {}, )"
              R"("files": ["a", "b\""]})");
}

}  // namespace
}  // namespace vendrel
