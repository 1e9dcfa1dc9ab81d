#include "plan/leaflet.h"

#include <gmock/gmock.h>

#include "support/error.h"

namespace vendrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

LeafletPart Heading(const char* text) {
    return {LeafletKind::Heading, text};
}
LeafletPart Text(const char* text) {
    return {LeafletKind::Text, text};
}
LeafletPart Item(const char* text) {
    return {LeafletKind::Item, text};
}

std::vector<LeafletPart> Parsed(const std::string& text) {
    ShopFace shop;
    shop.Fields = {{"gift from", "{order}"}, {"note", ""}, {"title", "Rose"}};
    const LeafletFacts facts{.Order = "7", .Title = "rose, by 7", .Hours = "12"};
    return ParseLeaflet(text, "hello.txt", LeafletValues(facts, shop));
}

TEST(Leaflet, IsHeadingsParagraphsAndEntriesFilledIn) {
    EXPECT_THAT(
        Parsed("# Order {Order}\r\n{note}{title},\nhave a go at it.\n\n\nFrom {gift-from}\n"
               "- about { hours } hours\n  of it\n- {{paint}}\n\n#1 of all"),
        ElementsAre(Heading("Order 7"), Text("Rose, have a go at it."), Text("From {order}"),
                    Item("about 12 hours of it"), Item("{paint}"), Text("#1 of all")));
}

TEST(Leaflet, NamesTheLineOfWhatItDoesNotKnow) {
    for (const char* text : {"a\n\n- {colour}", "# a\nb\n{order"}) {
        try {
            (void)Parsed(text);
            ADD_FAILURE() << text;
        } catch (const FormatError& error) {
            EXPECT_THAT(error.what(), HasSubstr("hello.txt, line 3: ")) << text;
        }
    }
}

TEST(ShopFace, ColorsThatPaperHidesAreKnown) {
    const std::vector<std::pair<const char*, bool>> colors = {
        {"#000000", true}, {"#1F5FA8", true}, {"#FFFF00", false}, {"#ffffff", false}};
    for (const auto& [text, reads] : colors) {
        ASSERT_TRUE(ColorFromHex(text)) << text;
        EXPECT_EQ(ReadsOnWhite(*ColorFromHex(text)), reads) << text;
    }
    EXPECT_EQ(HexOfColor(*ColorFromHex("#1f5fa8")), "#1F5FA8");
    for (const char* wrong : {"", "#12345", "1F5FA8", "#1F5FAG", "#+F5FA8", "#1F5FA80"}) {
        EXPECT_FALSE(ColorFromHex(wrong)) << wrong;
    }
}

}  // namespace
}  // namespace vendrel
