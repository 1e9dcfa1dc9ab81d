#include "output/cell_numbering.h"

#include <array>
#include <future>
#include <string>
#include <utility>
#include <vector>

#include "output/nearest_stipple.h"
#include "output/symbol_set.h"
#include "support/counter.h"
#include "support/error.h"
#include "support/position_ring.h"

namespace vendrel {
namespace {

constexpr int kForeign = 127;  // stands for every index beyond the palette
static_assert(kSymbolCount < kForeign);

// What the numbers know of each pixel before the walk.
Grid<NumberPixel> PixelsOf(const Grid<MapPixel>& map, int width, int height, TwipsPerPixel twips) {
    Grid<NumberPixel> pixels(width, height);
    for (int y = 1; y <= height; ++y) {
        const auto from = map.Row(y);
        const auto to = pixels.Row(y);
        for (int x = 1; x <= width; ++x) {
            NumberPixel& pixel = to[x];
            pixel.ColorIndex = static_cast<std::int16_t>(from[x].ColorIndex);
            pixel.XTwips = static_cast<std::int16_t>(x * twips.X);
            pixel.YTwips = static_cast<std::int16_t>(y * twips.Y);
        }
    }
    return pixels;
}

class Numbering {
  public:
    Numbering(Workplace& place, Surface* picture)
        : place_(place),
          painted_(*place.State),
          numbers_(*place.State),
          nextArea_(place.State->NextAreaNumber),
          picture_(picture),
          finder_(painted_, painted_, place.Screen.Screen().Twips),
          period_(TraitsOf(painted_.Chosen.Level).SymbolPeriod) {}

    SheetRecord Run();

  private:
    void SizeGrids();
    void FillRow(int y);
    void ReMarkCells(int paint);
    void MarkOneNumber(CellPos seed);
    void AddSeedNeighbours(CellPos seed);
    void AddNeighbours(int x, int y);
    void AddToNumberCells(PositionRing::Tail& tail, int x, int y, NumberMark& mark) const;
    void Claim(int x, int y);
    void Recolour(int x, int y, Color color);
    void Stamp(CellPos at);
    void DrawBorder(int x, int y);
    [[nodiscard]] int CountBorderDots() const;
    void Breathe();

    const Workplace& place_;
    const WorkState& painted_;
    SheetNumbers& numbers_;
    int& nextArea_;
    Surface* picture_;
    StippleFinder finder_;
    int period_;
    PositionRing queue_;                    // flag: the pixel is the area's own
    OneBased<std::vector<CellPos>> seeds_;  // per paint, in row-major order
    SheetRecord record_;
    unsigned walked_ = 0;

    // The area being walked.
    int paint_ = 0;
    Color color_ = kBlack;
    std::int16_t area_ = 0;
};

void Numbering::SizeGrids() {
    numbers_.NumberWidth = place_.Frames->WorkFrame.Picture.Width();
    numbers_.NumberHeight = place_.Frames->WorkFrame.Picture.Height();
    if (painted_.PixelMap.Across() < numbers_.NumberWidth ||
        painted_.PixelMap.Down() < numbers_.NumberHeight) {
        throw Error("The picture is not painted yet. Paint it before its areas are numbered.");
    }
    // Filling fresh memory takes its time, so the large grid is filled beside the others.
    const TwipsPerPixel twips = place_.Screen.Screen().Twips;
    auto pixels = std::async(std::launch::async, [this, twips] {
        return PixelsOf(painted_.PixelMap, numbers_.NumberWidth, numbers_.NumberHeight, twips);
    });
    numbers_.NumberMarks = Grid<NumberMark>(numbers_.NumberWidth, numbers_.NumberHeight);
    record_ = SheetRecord(numbers_.NumberWidth, numbers_.NumberHeight);
    seeds_ = OneBased<std::vector<CellPos>>(painted_.PaintCount);
    for (int y = 1; y <= numbers_.NumberHeight; ++y) {
        FillRow(y);
    }
    numbers_.NumberGrid = pixels.get();
}

// An area can begin only where a run of its paint begins, or in the last column, which the walk
// never enters from the left: every other pixel is reached from its left neighbour. So the search
// for first pixels looks at these alone, once for all paints.
void Numbering::FillRow(int y) {
    const auto from = painted_.PixelMap.Row(y);
    const auto marks = numbers_.NumberMarks.Row(y);
    int before = 0;
    for (int x = 1; x <= numbers_.NumberWidth; ++x) {
        const int paint = from[x].ColorIndex;
        const bool known = paint >= 0 && paint <= painted_.PaintCount;
        marks[x].ColorIndex = static_cast<std::uint8_t>(known ? paint : kForeign) & 0x7F;
        if ((paint != before || x == numbers_.NumberWidth) && paint > 0 && known) {
            seeds_[paint].push_back({x, y});
        }
        before = paint;
    }
}

SheetRecord Numbering::Run() {
    place_.Screen.SetCaption("Setting Up Cell Numbers");
    SizeGrids();
    nextArea_ = 1;
    for (int k = 1; k <= painted_.PaintCount; ++k) {
        const PaintColor& paint = painted_.PaintColors[k];
        place_.Screen.SetCaption("Finding Borders and Numbers For " + paint.Mfg + " " +
                                 paint.PaintName + " [" + std::to_string(k) + "]");
        place_.Screen.ReportProgress(k, painted_.PaintCount);
        ReMarkCells(k);
    }
    place_.Screen.ReportProgress(0, 0);
    record_.Counts.Areas = nextArea_ - 1;
    record_.Counts.BorderDots = CountBorderDots();
    return std::move(record_);
}

void Numbering::ReMarkCells(int paint) {
    paint_ = paint;
    color_ = ColorOf(painted_.PaintColors[paint]);
    for (const CellPos seed : seeds_[paint]) {
        if (!numbers_.NumberMarks(seed.X, seed.Y).Marked) {
            area_ = static_cast<std::int16_t>(nextArea_);
            Claim(seed.X, seed.Y);
            MarkOneNumber(seed);
            CountUp(nextArea_, "areas on the sheet",
                    "an easier difficulty, fewer final paints, or a clean-up in Touch Up");
        }
    }
    place_.Screen.RefreshWorkFrame();
}

void Numbering::MarkOneNumber(CellPos seed) {
    const int symbolsBefore = record_.Counts.Symbols;
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
    record_.Counts.AreasWithoutSymbol += record_.Counts.Symbols == symbolsBefore ? 1 : 0;
}

void Numbering::Claim(int x, int y) {
    NumberMark& mark = numbers_.NumberMarks(x, y);
    mark.AreaNumber = area_;
    mark.Marked = true;
    Recolour(x, y, color_);
}

void Numbering::Recolour(int x, int y, Color color) {
    if (picture_ != nullptr) {
        picture_->Set(x, y, color);
    }
}

// Unlike the walk's own steps a seed looks at its neighbours wherever they are, only not beyond
// the grid, where nothing could be dotted. A neighbour the area has already is let be.
void Numbering::AddSeedNeighbours(CellPos seed) {
    const std::array<CellPos, 4> around = {
        {{seed.X, seed.Y - 1}, {seed.X + 1, seed.Y}, {seed.X, seed.Y + 1}, {seed.X - 1, seed.Y}}};
    PositionRing::Tail tail(queue_, around.size());
    for (const CellPos at : around) {
        if (at.X > numbers_.NumberWidth || at.Y > numbers_.NumberHeight) {
            continue;
        }
        NumberMark& mark = numbers_.NumberMarks(at.X, at.Y);
        const bool own = mark.ColorIndex == paint_;
        if (!own || !mark.Marked) {
            mark.Queued = true;
            tail.PushIf(true, at.X, at.Y, own);
        }
    }
}

// The last column and row are left out on purpose: no step to the right or down enters them.
void Numbering::AddNeighbours(int x, int y) {
    PositionRing::Tail tail(queue_, 4);
    NumberMark* const mark = &numbers_.NumberMarks(x, y);
    const std::ptrdiff_t row = numbers_.NumberMarks.Stride();
    if (y - 1 > 0) {
        AddToNumberCells(tail, x, y - 1, mark[-row]);
    }
    if (x + 1 < numbers_.NumberWidth) {
        AddToNumberCells(tail, x + 1, y, mark[1]);
    }
    if (y + 1 < numbers_.NumberHeight) {
        AddToNumberCells(tail, x, y + 1, mark[row]);
    }
    if (x - 1 >= 1) {
        AddToNumberCells(tail, x - 1, y, mark[-1]);
    }
}

void Numbering::AddToNumberCells(PositionRing::Tail& tail, int x, int y, NumberMark& mark) const {
    const bool wanted = !mark.Marked & !mark.Queued;
    mark.Queued = mark.Queued | wanted;
    tail.PushIf(wanted, x, y, mark.ColorIndex == paint_);
}

void Numbering::Stamp(CellPos at) {
    if (at.X >= numbers_.NumberWidth || at.Y >= numbers_.NumberHeight) {
        return;
    }
    const CellPos cell = finder_.NearestCell(at);
    record_.Stamp(paint_, finder_.SymbolPlace(cell));
    ++record_.Counts.Symbols;
    record_.Counts.SymbolsAstray += painted_.Stipples(cell.X, cell.Y).ColorIndex != paint_ ? 1 : 0;
}

void Numbering::DrawBorder(int x, int y) {
    numbers_.NumberMarks(x, y).Queued = false;
    record_.Dot({x, y});
    Recolour(x, y, painted_.EdgeColor);
    NumberPixel& pixel = numbers_.NumberGrid(x, y);
    pixel.IsBorder = true;
    pixel.AreaNumber = area_;
}

// Once at the end, since most dots are drawn several times; those past the picture's edge are cut.
int Numbering::CountBorderDots() const {
    int dots = 0;
    for (int y = 0; y < numbers_.NumberHeight; ++y) {
        for (const NumberPixel& pixel : numbers_.NumberGrid.Row(y).First(numbers_.NumberWidth)) {
            dots += pixel.IsBorder ? 1 : 0;
        }
    }
    return dots;
}

// Events get their turn often enough for the hand on the mouse, not for every pixel.
void Numbering::Breathe() {
    constexpr unsigned kPixelsPerBreath = 1024;
    if (++walked_ % kPixelsPerBreath == 0) {
        place_.Screen.Yield();
    }
}

}  // namespace

void RequireSymbols(const Palette& palette) {
    if (palette.PaintCount > kSymbolCount) {
        throw Error("The palette holds " + std::to_string(palette.PaintCount) +
                    " paints, but a sheet can show " + std::to_string(kSymbolCount) +
                    " symbols. Choose fewer final paints and convert the photo again.");
    }
}

SheetRecord SetupCellNumbers(Workplace& place, Surface* picture) {
    RequireSymbols(place.State);
    return Numbering(place, picture).Run();
}

}  // namespace vendrel
