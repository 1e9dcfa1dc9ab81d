#include "output/cell_numbering.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

#include "cleanup/paint_bench.h"
#include "output/nearest_stipple.h"
#include "support/error.h"

namespace vendrel {
namespace {

// An easel whose picture tests paint pixel by pixel.
struct Painted : test::PaintBench {
    Painted(int size, int across, int down, int paints) : PaintBench(size, across, down) {
        PaintList palette = State.PaintColors;
        palette.Resize(paints);
        SetPalette(State, palette);
    }
    Surface& Picture() { return Frames.WorkFrame.Picture; }
};

// The numbering as it would be done by hand: a plain list for the queue, searched from its front,
// and a scan of the whole picture for every paint.
class ByHand {
  public:
    explicit ByHand(Painted& painted)
        : painted_(painted),
          state_(painted.State),
          width_(painted.Picture().Width()),
          height_(painted.Picture().Height()),
          Picture(painted.Picture()),
          Areas(width_, height_),
          Borders(width_, height_),
          Dots(width_, height_) {
        for (int k = 1; k <= state_.PaintCount; ++k) {
            for (int y = 1; y <= height_; ++y) {
                for (int x = 1; x <= width_; ++x) {
                    if (state_.PixelMap(x, y).ColorIndex == k && Areas(x, y) == 0) {
                        Claim({x, y}, k);
                        Walk({x, y}, k);
                        ++Next;
                    }
                }
            }
        }
    }

  private:
    void Claim(CellPos at, int k) {
        Areas(at.X, at.Y) = Next;
        Picture.Set(at.X, at.Y, painted_.Paint(k));
    }
    void Walk(CellPos seed, int k) {
        const int period = state_.StippleSize == 4 ? 1000 : state_.StippleSize == 6 ? 800 : 600;
        int counter = 0;
        queue_ = {
            {seed.X, seed.Y - 1}, {seed.X + 1, seed.Y}, {seed.X, seed.Y + 1}, {seed.X - 1, seed.Y}};
        while (!queue_.empty()) {
            const auto [x, y] = queue_.front();
            if (x > width_ || y > height_) {
                // nothing lies there
            } else if (state_.PixelMap(x, y).ColorIndex != k || x == 0 || y == 0) {
                Dots(x, y) = static_cast<int>(Symbols.size()) + 1;
                Picture.Set(x, y, state_.EdgeColor);
                Borders(x, y) = Next;
            } else if (Areas(x, y) == 0) {
                Claim({x, y}, k);
                if (counter == 0 && x < width_ && y < height_) {
                    Symbols.push_back({k, FindNearestStipple(state_, state_, {}, {x, y})});
                }
                counter = (counter + 1) % period;
                Add(y - 1 > 0, {x, y - 1});
                Add(x + 1 < width_, {x + 1, y});
                Add(y + 1 < height_, {x, y + 1});
                Add(x - 1 >= 1, {x - 1, y});
            }
            queue_.erase(queue_.begin());
        }
    }
    void Add(bool inside, CellPos at) {
        if (inside && std::find(queue_.begin(), queue_.end(), at) == queue_.end() &&
            Areas(at.X, at.Y) == 0) {
            queue_.push_back(at);
        }
    }

    Painted& painted_;
    WorkState& state_;
    int width_;
    int height_;
    std::vector<CellPos> queue_;

  public:
    Surface Picture;
    Grid<int> Areas;
    Grid<int> Borders;
    Grid<int> Dots;  // one more than the symbols before
    std::vector<SheetRecord::Symbol> Symbols;
    int Next = 1;
};

void ExpectSameAsByHand(Painted& painted, Surface* picture, const ByHand& expected) {
    WorkState& state = painted.State;
    const SheetRecord record = SetupCellNumbers(painted.Place, picture);
    ASSERT_THAT(record.Symbols(), testing::ElementsAreArray(expected.Symbols));
    int dots = 0;
    for (int y = 0; y < record.Height(); ++y) {
        const auto row = expected.Dots.Row(y).First(record.Width());
        ASSERT_THAT(record.Dots(y), testing::ElementsAreArray(row)) << y;
        dots += record.Width() - static_cast<int>(std::ranges::count(row, 0));
    }
    EXPECT_EQ(state.NextAreaNumber, expected.Next);
    EXPECT_EQ(record.Counts.Areas, expected.Next - 1);
    EXPECT_EQ(record.Counts.Symbols, static_cast<int>(expected.Symbols.size()));
    EXPECT_EQ(record.Counts.BorderDots, dots);
    for (int y = 0; y <= state.NumberHeight; ++y) {
        for (int x = 0; x <= state.NumberWidth; ++x) {
            EXPECT_EQ(state.NumberMarks(x, y).AreaNumber, expected.Areas(x, y));
            EXPECT_EQ(state.NumberGrid(x, y).AreaNumber, expected.Borders(x, y));
            EXPECT_EQ(state.NumberGrid(x, y).IsBorder, expected.Borders(x, y) != 0);
        }
    }
}

// In one walk where the picture shows it, in two side by side where nobody looks.
void ExpectSameAsByHand(Painted& painted) {
    const ByHand expected(painted);
    ExpectSameAsByHand(painted, nullptr, expected);
    ExpectSameAsByHand(painted, &painted.Picture(), expected);
    EXPECT_EQ(painted.Picture(), expected.Picture);
}

TEST(CellNumbering, AgreesWithTheNumberingByHand) {
    std::mt19937 random(5);
    for (int round = 0; round < 60; ++round) {
        SCOPED_TRACE(round);
        const int size = round % 3 == 0 ? 8 : round % 3 == 1 ? 6 : 4;
        Painted painted(size, 1 + round % 5, 1 + round % 4, 1 + round % 4);
        // Coarse blobs and fine specks alike; paint 0 is what the brush never reached.
        Grid<MapPixel>& map = painted.State.PixelMap;
        const int grain = 1 + round % 7;
        for (int y = 1; y <= map.Down(); ++y) {
            for (int x = 1; x <= map.Across(); ++x) {
                const bool again = x % grain != 0 && x > 1 && random() % 8 != 0;
                map(x, y).ColorIndex =
                    again ? map(x - 1, y - y % grain).ColorIndex
                          : static_cast<int>(random() % 5) % (painted.State.PaintCount + 1);
            }
        }
        ExpectSameAsByHand(painted);
    }
}

TEST(CellNumbering, StampsAgainEveryPeriodOfTheWalk) {
    // The walk enters 71 x 47 pixels less the first one: 3336.
    for (const auto& [size, symbols] : {std::pair{8, 6}, {6, 5}, {4, 4}}) {  // 600, 800, 1000
        Painted painted(size, 72 / size, 48 / size, 2);
        for (MapPixel& pixel : painted.State.PixelMap.All()) {
            pixel.ColorIndex = 2;
        }
        ExpectSameAsByHand(painted);
        const NumberingCounts counts = SetupCellNumbers(painted.Place, nullptr).Counts;
        EXPECT_EQ(counts.Symbols, symbols);
        EXPECT_EQ(counts.SymbolsAstray, symbols);  // no stipple has paint 2
    }
}

TEST(CellNumbering, RecolorsNoPictureButTheOneGiven) {
    Painted painted(8, 1, 1, 2);
    for (const CellPos at : {CellPos{1, 1}, {2, 1}, {3, 1}, {1, 2}, {2, 2}, {3, 2}}) {
        painted.State.PixelMap(at.X, at.Y).ColorIndex = 2;
    }
    Surface other(8, 8, kWhite);
    EXPECT_EQ(SetupCellNumbers(painted.Place, &other).Counts.Areas, 1);
    EXPECT_EQ(painted.Picture(), Surface(8, 8, kWhite));
    EXPECT_EQ(other.Get(1, 1), painted.Paint(2));
    EXPECT_EQ(other.Get(1, 3), painted.State.EdgeColor);
    EXPECT_EQ(painted.State.NumberGrid(2, 3).XTwips, 30);
    EXPECT_EQ(painted.State.NumberGrid(2, 3).YTwips, 45);
    EXPECT_TRUE(painted.Screen.HasCaption("Setting Up Cell Numbers"));
    EXPECT_TRUE(painted.Screen.HasCaption("Finding Borders and Numbers For Set Paint 2 [2]"));
}

TEST(CellNumbering, RefusesWhatASheetCannotHold) {
    Painted many(8, 1, 1, 51);
    EXPECT_THROW((void)SetupCellNumbers(many.Place, nullptr), Error);
    Painted bare(8, 1, 1, 1);
    bare.State.PixelMap = {};
    EXPECT_THROW((void)SetupCellNumbers(bare.Place, nullptr), Error);
    Painted specks(4, 100, 100, 2);
    for (int y = 1; y <= 400; ++y) {
        for (int x = 1; x <= 400; ++x) {
            specks.State.PixelMap(x, y).ColorIndex = 1 + (x + y) % 2;
        }
    }
    EXPECT_THROW((void)SetupCellNumbers(specks.Place, nullptr), OverflowError);
}

TEST(NearestStipple, IsTheLastOfTheNearestInRowOrder) {
    for (const int size : {8, 6, 4}) {
        Painted painted(size, 5, 3, 1);
        WorkState& state = painted.State;
        for (const bool regular : {true, false}) {
            state.Stipples(2, 2).X += regular ? 0 : 3;  // as an edited file may have it
            const StippleFinder finder(state, state, {});
            for (int y = 0; y <= 3 * size; ++y) {
                for (int x = 0; x <= 5 * size; ++x) {
                    CellPos found;
                    int bestX = 5 * 15;
                    int bestY = 3 * 15;
                    for (int i = 0; i < 15; ++i) {
                        const CellPos cell{1 + i % 5, 1 + i / 5};
                        const int dx = std::abs(state.Stipples(cell.X, cell.Y).X - x);
                        const int dy = std::abs(state.Stipples(cell.X, cell.Y).Y - y);
                        if (dx <= bestX && dy <= bestY) {
                            bestX = dx;
                            bestY = dy;
                            found = cell;
                        }
                    }
                    ASSERT_EQ(finder.NearestCell({x, y}), found) << x << ' ' << y;
                }
            }
        }
    }
    const Painted painted(8, 2, 2, 1);  // centres 5 and 13, half of the half stipple is 2
    EXPECT_EQ(FindNearestStipple(painted.State, painted.State, {}, {9, 8}), (CellPos{11, 3}));
}

}  // namespace
}  // namespace vendrel
