#pragma once

#include <random>
#include <span>
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

/// Lays a grid row by row, one character a stipple: '0' for no paint, '1' for paint 1 and so on
/// through the characters.
inline void UseGrid(WorkState& state, const std::vector<std::string>& rows) {
    state.CellsAcross = static_cast<int>(rows.front().size());
    state.CellsDown = static_cast<int>(rows.size());
    state.Stipples = Grid<StippleCell>(state.CellsAcross, state.CellsDown);
    for (int y = 1; y <= state.CellsDown; ++y) {
        auto cell = state.Stipples.Row(y).begin();
        for (const char paint : rows[static_cast<std::size_t>(y - 1)]) {
            (++cell)->ColorIndex = paint - '0';
        }
    }
}

inline std::vector<std::string> GridOf(const Grid<StippleCell>& stipples) {
    std::vector<std::string> rows(static_cast<std::size_t>(stipples.Down()));
    for (int y = 1; y <= stipples.Down(); ++y) {
        for (const StippleCell& cell : stipples.Row(y).subspan(1)) {
            rows[static_cast<std::size_t>(y - 1)] += static_cast<char>('0' + cell.ColorIndex);
        }
    }
    return rows;
}

/// Names of the paints behind the empty entry 0 in order, joined by blanks.
inline std::string NamesOf(std::span<const PaintColor> paints) {
    std::string names;
    for (const PaintColor& paint : paints.subspan(1)) {
        names += (names.empty() ? "" : " ") + paint.PaintName;
    }
    return names;
}
inline std::string NamesOf(const WorkState& state) {
    return NamesOf(std::span(state.PaintColors).first(static_cast<unsigned>(state.PaintCount) + 1));
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
