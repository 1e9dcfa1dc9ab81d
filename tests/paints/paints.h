#pragma once

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "shell/palette.h"
#include "shell/recorder.h"
#include "shell/stipple_grid.h"
#include "support/list.h"

namespace vendrel::test {

inline PaintColor Paint(int red, int green, int blue, std::string name = "") {
    return {red, green, blue, "Set", "", std::move(name), 0};
}

/// Lays a grid row by row, one character a stipple: '0' for no paint, '1' for paint 1 and so on
/// through the characters.
inline void UseGrid(WorkState& state, const std::vector<std::string>& rows) {
    Grid<StippleCell> cells(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()));
    for (int y = 1; y <= cells.Down(); ++y) {
        auto cell = cells.Row(y).begin();
        for (const char paint : At(rows, y - 1)) {
            (++cell)->ColorIndex = paint - '0';
        }
    }
    SetGrid(state, std::move(cells));
}

inline std::vector<std::string> GridOf(const Grid<StippleCell>& stipples) {
    std::vector<std::string> rows(static_cast<std::size_t>(stipples.Down()));
    for (int y = 1; y <= stipples.Down(); ++y) {
        for (const StippleCell& cell : stipples.Row(y).From(1)) {
            At(rows, y - 1) += static_cast<char>('0' + cell.ColorIndex);
        }
    }
    return rows;
}

/// Names of the paints in order, joined by blanks.
inline std::string NamesOf(const PaintList& paints) {
    std::string names;
    for (const PaintColor& paint : paints) {
        names += (names.empty() ? "" : " ") + paint.PaintName;
    }
    return names;
}
inline std::string NamesOf(const WorkState& state) {
    return NamesOf(state.PaintColors);
}

/// Paints with channels that are multiples of `step`: a large step makes many ties.
inline PaintList RandomPaints(std::mt19937& random, int count, int step) {
    std::uniform_int_distribution<int> channel(0, 255 / step);
    PaintList paints;
    for (int i = 1; i <= count; ++i) {
        paints.Add(Paint(channel(random) * step, channel(random) * step, channel(random) * step,
                         std::to_string(i)));
    }
    return paints;
}

}  // namespace vendrel::test
