#pragma once

#include "cleanup/paint_bench.h"
#include "touchup/edit_sheet.h"
#include "touchup/recovery.h"

namespace vendrel::test {

/// A grid as rows like "112": one digit a stipple, its paint.
using Rows = std::vector<std::string>;

inline constexpr const char* kSaved = "Saved Stipples/Lady-Easy.stp";
inline constexpr const char* kRecovery = "Saved Stipples/Lady-Easy.recovery.stp";
inline const std::string kRed = "1,2,3,\"Red\",1,\"Set\",\"R\"\r\n";

/// A moment of a session.
inline EditTime At(int second) {
    return EditTime{} + std::chrono::seconds(second);
}

/// A workplace with a converted grid and paints named "Paint 1" and so on, at Easy.
struct KitBench : PaintBench {
    explicit KitBench(const Rows& rows, int paints = 9) : PaintBench(8, rows, paints) {
        SetColorChecks(State.Chosen, State.FinalColors);
    }

    [[nodiscard]] Rows Edited() const { return GridOf(State.EditStipples); }

    /// Whether every paint's live count is what a plain count of the copies gives.
    [[nodiscard]] bool CountsAreTrue() const {
        OneBased<int> counts(State.FoundCount);
        for (const StippleCell& cell : State.EditStipples.All()) {
            ++counts[cell.ColorIndex];
        }
        for (int i = 1; i <= counts.Count(); ++i) {
            if (State.FoundColors[i].CellCount != counts[i]) {
                return false;
            }
        }
        return true;
    }
};

}  // namespace vendrel::test
