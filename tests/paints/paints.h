#pragma once

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "shell/recorder.h"

namespace vendrel::test {

inline PaintColor Paint(int red, int green, int blue, std::string name = "") {
    return {red, green, blue, "Set", "", std::move(name), 0};
}

/// Makes `paints` the palette, behind the empty entry 0.
inline void UsePaints(WorkState& state, const std::vector<PaintColor>& paints) {
    state.PaintColors.assign(1, {});
    state.PaintColors.insert(state.PaintColors.end(), paints.begin(), paints.end());
    state.PaintCount = static_cast<int>(paints.size());
}

/// Lays a grid of paint indices, row by row.
inline void UseGrid(WorkState& state, const std::vector<std::vector<int>>& rows) {
    state.CellsAcross = static_cast<int>(rows.front().size());
    state.CellsDown = static_cast<int>(rows.size());
    state.Stipples = Grid<StippleCell>(state.CellsAcross, state.CellsDown);
    for (int y = 1; y <= state.CellsDown; ++y) {
        for (int x = 1; x <= state.CellsAcross; ++x) {
            state.Stipples(x, y).ColorIndex =
                rows[static_cast<std::size_t>(y - 1)][static_cast<std::size_t>(x - 1)];
        }
    }
}

inline std::vector<std::vector<int>> GridOf(const WorkState& state) {
    std::vector<std::vector<int>> rows;
    for (int y = 1; y <= state.CellsDown; ++y) {
        rows.emplace_back();
        for (int x = 1; x <= state.CellsAcross; ++x) {
            rows.back().push_back(state.Stipples(x, y).ColorIndex);
        }
    }
    return rows;
}

/// Names of the palette's paints in order, joined by blanks.
inline std::string NamesOf(const WorkState& state) {
    std::string names;
    for (int i = 1; i <= state.PaintCount; ++i) {
        names += (i > 1 ? " " : "") + state.PaintColors[static_cast<std::size_t>(i)].PaintName;
    }
    return names;
}

/// Paints with channels that are multiples of `step`: a large step makes many ties.
inline std::vector<PaintColor> RandomPaints(std::mt19937& random, int count, int step) {
    std::uniform_int_distribution<int> channel(0, 255 / step);
    std::vector<PaintColor> paints;
    for (int i = 1; i <= count; ++i) {
        paints.push_back(Paint(channel(random) * step, channel(random) * step,
                               channel(random) * step, std::to_string(i)));
    }
    return paints;
}

}  // namespace vendrel::test
