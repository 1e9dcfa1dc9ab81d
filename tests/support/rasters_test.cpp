#include <gtest/gtest.h>

#include <array>

#include "support/cell_queue.h"
#include "support/dib_view.h"
#include "support/surface.h"

namespace vendrel {
namespace {

TEST(Surface, OutsideIsNoColorAndIsNeverWritten) {
    Surface surface(2, 2, Rgb(1, 2, 3));
    surface.Set(-1, 0, 5);
    surface.Set(2, 1, 5);
    surface.FillRect(-3, 1, 1, 9, Rgb(9, 9, 9));
    EXPECT_EQ(surface.Get(-1, 0), kNoColor);
    EXPECT_EQ(surface.Get(0, 2), kNoColor);
    EXPECT_NE(kNoColor, kBlack);
    EXPECT_EQ(surface.Get(0, 0), Rgb(1, 2, 3));
    EXPECT_EQ(surface.Get(0, 1), Rgb(9, 9, 9));
    EXPECT_EQ(surface.Get(1, 1), Rgb(1, 2, 3));
    EXPECT_EQ(Surface(0, 5).Get(0, 0), kNoColor);
}

TEST(DibView, StoresBlueGreenRedBottomUp) {
    std::array<std::uint8_t, 8> bits{};
    const DibView view(bits.data(), 1, 2, 4);
    view.Set(0, 0, Rgb(1, 2, 3));
    view.Set(1, 0, Rgb(9, 9, 9));
    EXPECT_EQ(bits, (std::array<std::uint8_t, 8>{0, 0, 0, 0, 3, 2, 1, 0}));
    EXPECT_EQ(view.Get(0, 0), Rgb(1, 2, 3));
    EXPECT_EQ(view.Get(0, 2), kNoColor);
}

TEST(CellQueue, KeepsOrderAndHoldsAPositionOnce) {
    CellQueue queue(20, 20);
    for (int round = 0; round < 3; ++round) {  // three rounds wrap the ring while it grows
        for (int i = 0; i < 100; ++i) {
            EXPECT_TRUE(queue.Push({i % 20, i / 20 + round * 5}));
            EXPECT_FALSE(queue.Push({i % 20, i / 20 + round * 5}));
        }
        for (int i = 0; i < 50; ++i) {
            queue.Pop();
        }
    }
    EXPECT_EQ(queue.Size(), 150U);
    EXPECT_EQ(queue.Front(), (CellPos{10, 7}));
    EXPECT_TRUE(queue.Push({0, 0}));  // taken out before, so it may wait again
    CellQueue edge(3, 2);
    EXPECT_TRUE(edge.Push({4, 3}));
}

}  // namespace
}  // namespace vendrel
