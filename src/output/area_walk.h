#pragma once

#include <cstdint>
#include <vector>

#include "output/nearest_stipple.h"
#include "output/sheet_record.h"
#include "shell/ui.h"
#include "shell/work_state.h"
#include "support/position_ring.h"

namespace vendrel {

/// The paints of a palette from First to Last.
struct PaintRange {
    int First = 1;
    int Last = 0;

    [[nodiscard]] bool Holds(int paint) const { return paint >= First && paint <= Last; }
};

/// Where a walk is seen, if anywhere.
struct WalkView {
    Surface* Picture = nullptr;  // recoloured in the areas' paints with borders
    Ui* Screen = nullptr;        // gets its turn now and then
};

/// The walk through the areas of some paints of a painted picture: claims their pixels, dots the
/// pixels of other paints that it meets, and stamps symbols on its way. Areas count from 1. What it
/// meets of earlier paints counts as walked, so ranges of one palette may be walked side by side.
class AreaWalk {
  public:
    /// Keeps references: what is painted must not change meanwhile.
    AreaWalk(const WorkState& painted, TwipsPerPixel twips, PaintRange paints);

    /// Walks all areas of one of the paints; they are to come in order. Throws OverflowError past
    /// 32767 areas.
    void Walk(int paint, const WalkView& view);

    PaintRange Paints;
    Grid<NumberMark> Marks;
    Grid<std::int16_t> Borders;  // the area that met a pixel as its border last, 0 none
    SheetRecord Record;          // without the count of the dots
    int NextArea = 1;

  private:
    void FillRow(int y);
    void WalkArea(CellPos seed);
    void AddSeedNeighbours(CellPos seed);
    void AddNeighbours(int x, int y);
    void AddToNumberCells(PositionRing::Tail& tail, int x, int y, NumberMark& mark) const;
    void Claim(int x, int y);
    void Recolour(int x, int y, Color color);
    void Stamp(CellPos at);
    void DrawBorder(int x, int y);
    void Breathe();

    const WorkState& painted_;
    StippleFinder finder_;
    int width_;
    int height_;
    int period_;
    PositionRing queue_;                    // flag: the pixel is the area's own
    OneBased<std::vector<CellPos>> seeds_;  // per paint, in row-major order
    WalkView view_;
    unsigned walked_ = 0;

    // The area being walked.
    int paint_ = 0;
    Color color_ = kBlack;
    std::int16_t area_ = 0;
};

/// Counts one area more. Throws OverflowError past 32767.
void CountArea(int& nextArea);

}  // namespace vendrel
