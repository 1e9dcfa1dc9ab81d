#pragma once

#include <optional>
#include <string>

#include "support/print_scale.h"
#include "touchup/touch_up.h"

namespace vendrel {

enum class AreaUnit { Stipples, Mm2 };

/// What the editor shows of printed areas and their sizes.
struct AreaControls {
    int Below = 6;  // areas smaller than that are merged
    AreaUnit Unit = AreaUnit::Stipples;
    bool Preview = false;   // what merging would change is shown
    bool Outlines = false;  // of the printed areas
    bool MarkHard = false;  // areas below the limits stand out
    std::string MergeText;
    bool MergeEnabled = false;
    std::string HardText;  // how many are below the limits, and where the last one found stands
};

/// Areas too small or too narrow to paint: marked, stepped through, merged. Figures follow the
/// sheet with Follow().
class TouchUpAreas {
  public:
    static constexpr int kMostBelow = 999;

    /// `stipple`: of one stipple, taken for a pixel.
    TouchUpAreas(TouchUp& editor, PrintScale stipple, PaintLimits limits)
        : editor_(editor), stipple_(stipple), limits_(limits) {}

    [[nodiscard]] const AreaControls& Controls() const { return controls_; }
    void SetBelow(int below, AreaUnit unit);
    void TogglePreview();
    void ToggleOutlines() { controls_.Outlines = !controls_.Outlines; }
    void ToggleHard();
    CellRect Merge();
    /// Steps to the next area below the limits; nothing when there is none.
    [[nodiscard]] std::optional<CellPos> NextHard();
    void Follow();

    /// What merging would change; empty unless it is shown.
    [[nodiscard]] const std::vector<CellChange>& Changes() const { return plan_.Changes; }
    /// The stipples of areas below the limits; empty unless they are marked.
    [[nodiscard]] const std::vector<CellPos>& Hard() const { return hard_.Cells; }
    [[nodiscard]] double Cm2(int stipples) const { return stipple_.Mm2(stipples) / 100; }

  private:
    [[nodiscard]] int Smallest() const;
    [[nodiscard]] HardAreas FindHard() const;
    void FollowMerge();
    void FollowHard(const HardAreas& hard);

    TouchUp& editor_;
    PrintScale stipple_;
    PaintLimits limits_;
    AreaControls controls_;
    AreaMerge plan_;
    HardAreas hard_;
    CellPos hardAt_;
};

}  // namespace vendrel
