#include <gmock/gmock.h>

#include <map>
#include <utility>
#include <vector>

#include "convert/bitmap_reader.h"
#include "program/studio.h"
#include "support/print_scale.h"

namespace vendrel {
namespace {

using test::Figure;
using test::Studio;

using Pixel = std::pair<int, int>;

// The pixels of one color that touch side by side, from one of them; they are taken out of `rest`.
std::vector<Pixel> TakeArea(const Surface& painting, std::map<Pixel, Color>& rest) {
    std::vector<Pixel> area = {rest.begin()->first};
    const Color color = rest.begin()->second;
    rest.erase(rest.begin());
    for (std::size_t i = 0; i < area.size(); ++i) {
        const auto [y, x] = area[i];
        for (const Pixel& beside : {Pixel{y - 1, x}, {y, x - 1}, {y, x + 1}, {y + 1, x}}) {
            const auto found = rest.find(beside);
            if (found != rest.end() && painting.Get(beside.second, beside.first) == color) {
                area.push_back(beside);
                rest.erase(found);
            }
        }
    }
    return area;
}

// Whether a disc around a pixel's middle or corner stays in the area: `twice` counts half pixels.
bool HoldsDiscAt(const std::map<Pixel, int>& owner, int id, Pixel twice, double radius) {
    const int reach = static_cast<int>(radius) + 2;
    for (int y = twice.first / 2 - reach; y <= twice.first / 2 + reach; ++y) {
        for (int x = twice.second / 2 - reach; x <= twice.second / 2 + reach; ++x) {
            const auto gap = [](double at, int pixel) {
                return std::max({pixel - at, at - pixel - 1, 0.0});
            };
            const double dy = gap(twice.first / 2.0, y);
            const double dx = gap(twice.second / 2.0, x);
            const auto found = owner.find({y, x});
            if (dx * dx + dy * dy < radius * radius - 1e-9 &&
                (found == owner.end() || found->second != id)) {
                return false;
            }
        }
    }
    return true;
}

// Every area of a painting, looked at pixel by pixel.
void ExpectPaintable(const Surface& painting, PrintScale scale, int areaCount) {
    std::map<Pixel, Color> rest;
    for (int y = 0; y < painting.Height(); ++y) {
        for (int x = 0; x < painting.Width(); ++x) {
            rest[{y, x}] = painting.Get(x, y);
        }
    }
    std::vector<std::vector<Pixel>> areas;
    std::map<Pixel, int> owner;
    while (!rest.empty()) {
        areas.push_back(TakeArea(painting, rest));
        for (const Pixel& pixel : areas.back()) {
            owner[pixel] = static_cast<int>(areas.size()) - 1;
        }
    }
    EXPECT_EQ(static_cast<int>(areas.size()), areaCount);
    for (int id = 0; id < static_cast<int>(areas.size()); ++id) {
        const std::vector<Pixel>& area = areas[static_cast<std::size_t>(id)];
        EXPECT_GE(scale.Mm2(static_cast<double>(area.size())), 25 - 1e-9);
        EXPECT_TRUE(std::ranges::any_of(
            area,
            [&](const Pixel& at) {
                for (int half = 0; half < 4; ++half) {
                    const Pixel twice{2 * at.first + half / 2, 2 * at.second + half % 2};
                    if (HoldsDiscAt(owner, id, twice, scale.Pixels(1))) {
                        return true;
                    }
                }
                return false;
            }))
            << "too narrow at " << area.front().second << ", " << area.front().first;
    }
}

TEST(PaintableKit, HasNoAreaBelowTheLimitsAndTheSameAreasInPaintingSheetAndFigures) {
    for (const char* level : {"easy"}) {  // larger stipples lose more to the brush's corners
        Studio studio;
        ASSERT_EQ(studio.Kit({VENDREL_SOURCE_DIR "/Pictures/PBNLady.bmp", "--paintable", "--json",
                              "--title", "own", "--difficulty", level}),
                  0)
            << studio.Err;
        const int areas = Figure(studio.Out, "figures", "areas");
        EXPECT_EQ(Figure(studio.Out, "numbering", "areas"), areas);
        EXPECT_EQ(Figure(studio.Out, "numbering", "withoutSymbol"), 0);
        const std::string name =
            level == std::string("easy") ? "own Easy Painting.BMP" : "own Difficult Painting.BMP";
        const Surface painting = ReadBitmap(studio.Files / ("Results/" + name));
        ExpectPaintable(painting, PrintScale::OfCanvas(40, painting.Width()), areas);

        // The grid carries the areas: taken again, it gives the same painting.
        const std::string bytes = studio.Files.Read("Results/" + name);
        ASSERT_EQ(studio.Kit({VENDREL_SOURCE_DIR "/Pictures/PBNLady.bmp", "--paintable",
                              "--from-grid", "--json", "--title", "own", "--difficulty", level,
                              "--outputs", "painting"}),
                  0)
            << studio.Err;
        EXPECT_EQ(studio.Files.Read("Results/" + name), bytes);
    }
}

TEST(PaintableKit, APlainKitCountsWhatIsTooSmallAndSaysWhatWouldHelp) {
    Studio studio;
    ASSERT_EQ(studio.Kit({VENDREL_SOURCE_DIR "/Pictures/PBNLady.bmp", "--difficulty", "medium",
                          "--canvas", "20cm", "--outputs", "painting"}),
              0);
    EXPECT_THAT(studio.Out, testing::HasSubstr("--paintable makes a kit without them."));
    ASSERT_EQ(studio.Kit({VENDREL_SOURCE_DIR "/Pictures/PBNLady.bmp", "--difficulty", "medium",
                          "--match", "eye", "--smallest", "0", "--narrowest", "0", "--canvas",
                          "300cm", "--outputs", "painting"}),
              0);
    EXPECT_THAT(studio.Out, testing::Not(testing::HasSubstr("--paintable")));
}

}  // namespace
}  // namespace vendrel
