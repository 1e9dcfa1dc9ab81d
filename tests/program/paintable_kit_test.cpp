#include <gmock/gmock.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "convert/bitmap_reader.h"
#include "plan/line_checks.h"
#include "plan/smooth_lines.h"
#include "program/studio.h"
#include "support/cell_pos.h"
#include "support/grid.h"
#include "support/print_scale.h"

namespace vendrel {
namespace {

using test::Figure;
using test::Studio;

// The pixels of one color that touch side by side, from one of them on; they become area `id`.
std::vector<CellPos> TakeArea(const Surface& painting, CellPos from, int id, ValueGrid& owner) {
    std::vector<CellPos> area = {from};
    owner(from.X, from.Y) = id;
    for (std::size_t i = 0; i < area.size(); ++i) {
        const auto [x, y] = area[i];
        for (const CellPos at :
             {CellPos{x, y - 1}, CellPos{x - 1, y}, CellPos{x + 1, y}, CellPos{x, y + 1}}) {
            if (owner.Holds(at.X, at.Y) && owner(at.X, at.Y) == 0 &&
                painting.Get(at.X, at.Y) == painting.Get(from.X, from.Y)) {
                owner(at.X, at.Y) = id;
                area.push_back(at);
            }
        }
    }
    return area;
}

// Whether a disc around a pixel's middle or corner stays in the area: `twice` counts half pixels.
bool HoldsDiscAt(const ValueGrid& owner, int id, CellPos twice, double radius) {
    const int reach = static_cast<int>(radius) + 2;
    for (int y = twice.Y / 2 - reach; y <= twice.Y / 2 + reach; ++y) {
        for (int x = twice.X / 2 - reach; x <= twice.X / 2 + reach; ++x) {
            const auto gap = [](double at, int pixel) {
                return std::max({pixel - at, at - pixel - 1, 0.0});
            };
            const double dy = gap(twice.Y / 2.0, y);
            const double dx = gap(twice.X / 2.0, x);
            if (dx * dx + dy * dy < radius * radius - 1e-9 &&
                (!owner.Holds(x, y) || owner(x, y) != id)) {
                return false;
            }
        }
    }
    return true;
}

bool HoldsDisc(const ValueGrid& owner, int id, CellPos at, double radius) {
    for (int half = 0; half < 4; ++half) {
        if (HoldsDiscAt(owner, id, {2 * at.X + half % 2, 2 * at.Y + half / 2}, radius)) {
            return true;
        }
    }
    return false;
}

// Every area of a painting, looked at pixel by pixel.
void ExpectPaintable(const Surface& painting, PrintScale scale, int areaCount) {
    ValueGrid owner(painting.Width() - 1, painting.Height() - 1);
    std::vector<std::vector<CellPos>> areas;
    for (int y = 0; y < painting.Height(); ++y) {
        for (int x = 0; x < painting.Width(); ++x) {
            if (owner(x, y) == 0) {
                const int id = static_cast<int>(areas.size()) + 1;
                areas.push_back(TakeArea(painting, {x, y}, id, owner));
            }
        }
    }
    EXPECT_EQ(static_cast<int>(areas.size()), areaCount);
    for (const std::vector<CellPos>& area : areas) {
        const CellPos first = area.front();
        const int id = owner(first.X, first.Y);
        EXPECT_GE(scale.Mm2(static_cast<double>(area.size())), 25 - 1e-9);
        EXPECT_TRUE(std::ranges::any_of(
            area, [&](CellPos at) { return HoldsDisc(owner, id, at, scale.Pixels(1)); }))
            << "too narrow at " << first.X << ", " << first.Y;
    }
}

// The areas of a painting once their lines are smooth.
void ExpectSmoothly(const Surface& painting, PrintScale scale) {
    ValueGrid colors(painting.Width() - 1, painting.Height() - 1);
    for (int y = 0; y < painting.Height(); ++y) {
        for (int x = 0; x < painting.Width(); ++x) {
            colors(x, y) = static_cast<int>(painting.Get(x, y));
        }
    }
    const PaintedRegions areas = FindRegions(colors);
    test::ExpectPartition(SmoothLines(areas, TraceLines(areas.Ids), {6, scale.Pixels(2)}), areas);
}

TEST(PaintableKit, HasNoAreaBelowTheLimitsAndTheSameAreasInPaintingSheetAndFigures) {
    for (const auto& [level, name] :
         {std::pair<const char*, std::string>{"easy", "own Easy Painting.BMP"},
          {"difficult", "own Difficult Painting.BMP"}}) {
        Studio studio;
        ASSERT_EQ(studio.Kit({VENDREL_SOURCE_DIR "/Pictures/PBNLady.bmp", "--paintable", "--json",
                              "--title", "own", "--difficulty", level}),
                  0)
            << studio.Err;
        const int areas = Figure(studio.Out, "figures", "areas");
        EXPECT_EQ(Figure(studio.Out, "numbering", "areas"), areas);
        EXPECT_EQ(Figure(studio.Out, "numbering", "withoutSymbol"), 0);
        const Surface painting = ReadBitmap(studio.Files / ("Results/" + name));
        const PrintScale scale = PrintScale::OfCanvas(40, painting.Width());
        ExpectPaintable(painting, scale, areas);
        ExpectSmoothly(painting, scale);

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
    // A plain grid stays as it is, though it is painted as it will be printed.
    ASSERT_EQ(studio.Kit({VENDREL_SOURCE_DIR "/Pictures/PBNLady.bmp", "--difficulty", "medium",
                          "--canvas", "20cm", "--outputs", "grid,painting"}),
              0);
    ASSERT_EQ(
        studio.Kit({VENDREL_SOURCE_DIR "/Pictures/PBNLady.bmp", "--difficulty", "medium",
                    "--canvas", "20cm", "--outputs", "painting", "--paintable", "--from-grid"}),
        0);
    EXPECT_THAT(studio.Out, testing::HasSubstr("since the saved grid was taken as it is"));
    ASSERT_EQ(studio.Kit({VENDREL_SOURCE_DIR "/Pictures/PBNLady.bmp", "--difficulty", "medium",
                          "--match", "eye", "--smallest", "0", "--narrowest", "0", "--canvas",
                          "300cm", "--outputs", "painting"}),
              0);
    EXPECT_THAT(studio.Out, testing::Not(testing::HasSubstr("--paintable")));
}

}  // namespace
}  // namespace vendrel
