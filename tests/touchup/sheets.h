#pragma once

#include <string>
#include <vector>

#include "shell/recorder.h"
#include "touchup/edit_sheet.h"

namespace vendrel::test {

/// A grid as rows like "112": one digit a stipple, its paint.
using Rows = std::vector<std::string>;

/// A workplace with a converted grid and paints named "Paint 1" and so on, at Easy.
class KitBench : public Bench {
  public:
    explicit KitBench(const Rows& rows, int paints = 9) {
        MainMenu[MenuId::EasySet].Checked = true;
        State.PictureName = "Lady";
        SetColorChecks(MainMenu, State.FinalColors);
        MakeKit(rows, paints);
    }

    void MakeKit(const Rows& rows, int paints) {
        State.CellsAcross = static_cast<int>(rows.front().size());
        State.CellsDown = static_cast<int>(rows.size());
        State.Stipples = Grid<StippleCell>(State.CellsAcross, State.CellsDown);
        State.CellMarks = Grid<CellMark>(State.CellsAcross, State.CellsDown);
        for (int y = 1; y <= State.CellsDown; ++y) {
            for (int x = 1; x <= State.CellsAcross; ++x) {
                const char digit =
                    rows.at(static_cast<std::size_t>(y) - 1)[static_cast<std::size_t>(x) - 1];
                State.Stipples(x, y) = {digit - '0', 8 * x - 3, 8 * y - 3, 7, {}};
            }
        }
        State.PaintCount = paints;
        State.PaintColors.assign(1, {});
        for (int i = 1; i <= paints; ++i) {
            State.PaintColors.push_back({i, 2, 3, "Set", "C", "Paint " + std::to_string(i), 0});
        }
    }

    [[nodiscard]] Rows Edited() const { return Shown(State.EditStipples); }
    [[nodiscard]] static Rows Shown(const Grid<StippleCell>& grid) {
        Rows rows(static_cast<std::size_t>(grid.Down()));
        for (int y = 1; y <= grid.Down(); ++y) {
            for (const StippleCell& cell : grid.Row(y).subspan(1)) {
                rows[static_cast<std::size_t>(y) - 1] += static_cast<char>('0' + cell.ColorIndex);
            }
        }
        return rows;
    }

    /// Whether every paint's live count is what a plain count of the copies gives.
    [[nodiscard]] bool CountsAreTrue() const {
        std::vector<int> counts(static_cast<std::size_t>(State.FoundCount) + 1);
        for (const StippleCell& cell : State.EditStipples.All()) {
            ++counts[static_cast<std::size_t>(cell.ColorIndex)];
        }
        for (std::size_t i = 1; i < counts.size(); ++i) {
            if (State.FoundColors[i].CellCount != counts[i]) {
                return false;
            }
        }
        return true;
    }
};

}  // namespace vendrel::test
