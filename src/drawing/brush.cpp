#include "drawing/brush.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <vector>

#include "drawing/neighbours.h"
#include "support/list.h"

namespace vendrel {
namespace {

constexpr BrushRun kSquare8[] = {{-4, -4, 3}, {-3, -4, 3}, {-2, -4, 3}, {-1, -4, 3},
                                 {0, -4, 3},  {1, -4, 3},  {2, -4, 3},  {3, -4, 3}};
constexpr BrushRun kRound8[] = {{-4, -2, 1}, {-3, -3, 2}, {-2, -4, 3}, {-1, -4, 3},
                                {0, -4, 3},  {1, -4, 3},  {2, -3, 2},  {3, -2, 1}};
constexpr BrushRun kRound6[] = {{-3, -2, 1}, {-2, -3, 2}, {-1, -3, 2},
                                {0, -3, 2},  {1, -3, 2},  {2, -2, 1}};
constexpr BrushRun kRound4[] = {{-2, -1, 0}, {-1, -2, 1}, {0, -2, 1}, {1, -1, 0}};

// Strokes reach at most 7 + 4 pixels from the centre.
constexpr int kReach = 12;
constexpr int kSide = 2 * kReach;
using Mask = std::array<std::bitset<kSide>, kSide>;

void Stamp(Mask& mask, std::span<const BrushRun> stamp, int dx, int dy) {
    for (const BrushRun& run : stamp) {
        for (int x = run.First; x <= run.Last; ++x) {
            At(mask, run.Row + dy + kReach).set(static_cast<std::size_t>(x + dx + kReach));
        }
    }
}

std::vector<BrushRun> Runs(const Mask& mask) {
    std::vector<BrushRun> runs;
    for (int row = 0; row < kSide; ++row) {
        const auto& bits = At(mask, row);
        for (int x = 0; x < kSide; ++x) {
            if (!bits[static_cast<std::size_t>(x)]) {
                continue;
            }
            const int first = x;
            while (x + 1 < kSide && bits[static_cast<std::size_t>(x) + 1]) {
                ++x;
            }
            runs.push_back({row - kReach, first - kReach, x - kReach});
        }
    }
    return runs;
}

using StrokeTable = std::array<std::vector<BrushRun>, 256>;

StrokeTable MakeStrokes(int stippleSize) {
    StrokeTable table;
    for (Directions directions = 1; directions < table.size(); ++directions) {
        Mask mask;
        for (std::size_t d = 0; d < kNeighbours.size(); ++d) {
            for (int step = 0; (directions >> d & 1U) != 0 && step < stippleSize; ++step) {
                Stamp(mask, BrushStamp(stippleSize, BrushShape::Rounded), step * kNeighbours[d].X,
                      step * kNeighbours[d].Y);
            }
        }
        table[directions] = Runs(mask);
    }
    return table;
}

}  // namespace

std::span<const BrushRun> BrushStamp(int stippleSize, BrushShape shape) {
    switch (stippleSize) {
        case 8:
            return shape == BrushShape::Square ? std::span<const BrushRun>(kSquare8)
                                               : std::span<const BrushRun>(kRound8);
        case 6:
            return kRound6;
        case 4:
            return kRound4;
        default:
            return {};
    }
}

std::span<const BrushRun> BrushStrokes(int stippleSize, Directions directions) {
    static const StrokeTable kStrokes8 = MakeStrokes(8);
    static const StrokeTable kStrokes6 = MakeStrokes(6);
    static const StrokeTable kStrokes4 = MakeStrokes(4);
    switch (stippleSize) {
        case 8:
            return kStrokes8[directions];
        case 6:
            return kStrokes6[directions];
        case 4:
            return kStrokes4[directions];
        default:
            return {};
    }
}

}  // namespace vendrel
