#include "output/area_walk.h"

#include <array>

#include "support/counter.h"

namespace vendrel {
namespace {

constexpr int kForeign = 127;  // stands for every index beyond the palette

}  // namespace

void CountArea(int& nextArea) {
    CountUp(nextArea, "areas on the sheet",
            "an easier difficulty, fewer final paints, or a clean-up in Touch Up");
}

AreaWalk::AreaWalk(const WorkState& painted, TwipsPerPixel twips, PaintRange paints)
    : Paints(paints),
      Marks(painted.NumberWidth, painted.NumberHeight),
      Borders(painted.NumberWidth, painted.NumberHeight),
      Record(painted.NumberWidth, painted.NumberHeight),
      painted_(painted),
      finder_(painted, painted, twips),
      width_(painted.NumberWidth),
      height_(painted.NumberHeight),
      period_(TraitsOf(painted.Chosen.Level).SymbolPeriod),
      seeds_(painted.PaintCount) {
    for (int y = 1; y <= height_; ++y) {
        FillRow(y);
    }
}

// An area can begin only where a run of its paint begins, or in the last column, which the walk
// never enters from the left: every other pixel is reached from its left neighbour. So the search
// for first pixels looks at these alone, once for all paints.
void AreaWalk::FillRow(int y) {
    const auto from = painted_.PixelMap.Row(y);
    const auto marks = Marks.Row(y);
    int before = 0;
    for (int x = 1; x <= width_; ++x) {
        const int paint = from[x].ColorIndex;
        const bool known = paint >= 0 && paint <= painted_.PaintCount;
        marks[x].ColorIndex = static_cast<std::uint8_t>(known ? paint : kForeign) & 0x7F;
        marks[x].Marked = paint > 0 && paint < Paints.First;
        if ((paint != before || x == width_) && Paints.Holds(paint)) {
            seeds_[paint].push_back({x, y});
        }
        before = paint;
    }
}

void AreaWalk::Walk(int paint, const WalkView& view) {
    view_ = view;
    paint_ = paint;
    color_ = ColorOf(painted_.PaintColors[paint]);
    for (const CellPos seed : seeds_[paint]) {
        if (!Marks(seed.X, seed.Y).Marked) {
            area_ = static_cast<std::int16_t>(NextArea);
            Claim(seed.X, seed.Y);
            WalkArea(seed);
            CountArea(NextArea);
            ++Record.Counts.Areas;
        }
    }
}

void AreaWalk::WalkArea(CellPos seed) {
    const int symbolsBefore = Record.Counts.Symbols;
    int sinceSymbol = 0;
    AddSeedNeighbours(seed);
    while (!queue_.Empty()) {
        const PositionRing::Entry next = queue_.Pop();
        if (next.Flag()) {
            Claim(next.X(), next.Y());
            if (sinceSymbol == 0) {
                Stamp(next.At());
            }
            sinceSymbol = sinceSymbol + 1 == period_ ? 0 : sinceSymbol + 1;
            AddNeighbours(next.X(), next.Y());
        } else {
            DrawBorder(next.X(), next.Y());
        }
        Breathe();
    }
    Record.Counts.AreasWithoutSymbol += Record.Counts.Symbols == symbolsBefore ? 1 : 0;
}

void AreaWalk::Claim(int x, int y) {
    NumberMark& mark = Marks(x, y);
    mark.AreaNumber = area_;
    mark.Marked = true;
    Recolour(x, y, color_);
}

void AreaWalk::Recolour(int x, int y, Color color) {
    if (view_.Picture != nullptr) {
        view_.Picture->Set(x, y, color);
    }
}

// Unlike the walk's own steps a seed looks at its neighbours wherever they are, only not beyond
// the grid, where nothing could be dotted. A neighbour the area has already is let be.
void AreaWalk::AddSeedNeighbours(CellPos seed) {
    const std::array<CellPos, 4> around = {
        {{seed.X, seed.Y - 1}, {seed.X + 1, seed.Y}, {seed.X, seed.Y + 1}, {seed.X - 1, seed.Y}}};
    PositionRing::Tail tail(queue_, around.size());
    for (const CellPos at : around) {
        if (at.X > width_ || at.Y > height_) {
            continue;
        }
        NumberMark& mark = Marks(at.X, at.Y);
        const bool own = mark.ColorIndex == paint_;
        if (!own || !mark.Marked) {
            mark.Queued = true;
            tail.PushIf(true, at.X, at.Y, own);
        }
    }
}

// The last column and row are left out on purpose: no step to the right or down enters them.
void AreaWalk::AddNeighbours(int x, int y) {
    PositionRing::Tail tail(queue_, 4);
    NumberMark* const mark = &Marks(x, y);
    const std::ptrdiff_t row = Marks.Stride();
    if (y - 1 > 0) {
        AddToNumberCells(tail, x, y - 1, mark[-row]);
    }
    if (x + 1 < width_) {
        AddToNumberCells(tail, x + 1, y, mark[1]);
    }
    if (y + 1 < height_) {
        AddToNumberCells(tail, x, y + 1, mark[row]);
    }
    if (x - 1 >= 1) {
        AddToNumberCells(tail, x - 1, y, mark[-1]);
    }
}

void AreaWalk::AddToNumberCells(PositionRing::Tail& tail, int x, int y, NumberMark& mark) const {
    const bool wanted = !mark.Marked & !mark.Queued;
    mark.Queued = mark.Queued | wanted;
    tail.PushIf(wanted, x, y, mark.ColorIndex == paint_);
}

void AreaWalk::Stamp(CellPos at) {
    if (at.X >= width_ || at.Y >= height_) {
        return;
    }
    const CellPos cell = finder_.NearestCell(at);
    Record.Stamp(paint_, finder_.SymbolPlace(cell));
    ++Record.Counts.Symbols;
    Record.Counts.SymbolsAstray += painted_.Stipples(cell.X, cell.Y).ColorIndex != paint_ ? 1 : 0;
}

void AreaWalk::DrawBorder(int x, int y) {
    Marks(x, y).Queued = false;
    Record.Dot({x, y});
    Recolour(x, y, painted_.EdgeColor);
    Borders(x, y) = area_;
}

// Events get their turn often enough for the hand on the mouse, not for every pixel.
void AreaWalk::Breathe() {
    constexpr unsigned kPixelsPerBreath = 1024;
    if (++walked_ % kPixelsPerBreath == 0 && view_.Screen != nullptr) {
        view_.Screen->Yield();
    }
}

}  // namespace vendrel
