#include "output/cell_numbering.h"

#include <array>
#include <future>
#include <numeric>
#include <optional>
#include <string>
#include <utility>

#include "output/area_walk.h"
#include "output/symbol_set.h"
#include "shell/stipple_grid.h"
#include "support/error.h"
#include "support/in_parts.h"

namespace vendrel {
namespace {

static_assert(kSymbolCount < 127, "a mark of the walk has seven bits for a paint");

void SizeNumbers(const Workplace& place, SheetNumbers& numbers) {
    const Surface& picture = place.Frames->WorkFrame.Picture;
    numbers.NumberWidth = picture.Width();
    numbers.NumberHeight = picture.Height();
    const Grid<MapPixel>& map = place.State->PixelMap;
    if (map.Across() < numbers.NumberWidth || map.Down() < numbers.NumberHeight) {
        throw Error("The picture is not painted yet. Paint it before its areas are numbered.");
    }
}

// The last paint of the first half, as many stipples being in the one as in the other.
int LastOfFirstHalf(const WorkState& state) {
    const OneBased<int> counts = CountStipples(state.Stipples, state.PaintCount);
    const long long all = std::accumulate(counts.begin(), counts.end(), 0LL);
    long long walked = 0;
    for (int paint = 1; paint < state.PaintCount; ++paint) {
        walked += counts[paint];
        if (2 * walked >= all) {
            return paint;
        }
    }
    return state.PaintCount;
}

void Announce(Ui& screen, const Palette& palette, int paint) {
    const PaintColor& entry = palette.PaintColors[paint];
    screen.SetCaption("Finding Borders and Numbers For " + entry.Mfg + " " + entry.PaintName +
                      " [" + std::to_string(paint) + "]");
    screen.ReportProgress(paint, palette.PaintCount);
}

/// Two halves of the paints are walked side by side and joined, the second as if it had come
/// after the first. A picture that is recoloured shows one walk.
class Numbering {
  public:
    Numbering(Workplace& place, Surface* picture) : place_(place), picture_(picture) {}

    SheetRecord Run() {
        WorkState& state = place_.State;
        place_.Screen.SetCaption("Setting Up Cell Numbers");
        SizeNumbers(place_, state);
        Walk();
        place_.Screen.ReportProgress(0, 0);
        Join();
        state.NumberMarks = std::move(first_->Marks);
        return std::move(first_->Record);
    }

  private:
    [[nodiscard]] AreaWalk Begin(PaintRange paints) const {
        return {place_.State, place_.Screen.Screen().Twips, paints};
    }

    void Walk() {
        const WorkState& state = place_.State;
        const int middle = picture_ == nullptr ? LastOfFirstHalf(state) : state.PaintCount;
        std::future<AreaWalk> others;
        if (middle < state.PaintCount) {
            others = std::async(std::launch::async, [this, middle, last = state.PaintCount] {
                AreaWalk walk = Begin({middle + 1, last});
                for (int paint = middle + 1; paint <= last; ++paint) {
                    walk.Walk(paint, {});
                }
                return walk;
            });
        }
        first_.emplace(Begin({1, middle}));
        for (int paint = 1; paint <= middle; ++paint) {
            Announce(place_.Screen, state, paint);
            first_->Walk(paint, {picture_, &place_.Screen});
            place_.Screen.RefreshWorkFrame();
        }
        if (others.valid()) {
            second_.emplace(others.get());
            for (int paint = middle + 1; paint <= state.PaintCount; ++paint) {
                Announce(place_.Screen, state, paint);
            }
        }
    }

    void Join() {
        WorkState& state = place_.State;
        const int before = first_->NextArea - 1;
        state.NextAreaNumber = first_->NextArea;
        for (int area = 1; second_ && area < second_->NextArea; ++area) {
            CountArea(state.NextAreaNumber);
        }
        state.NumberGrid = Grid<NumberPixel>(state.NumberWidth, state.NumberHeight);
        std::array<int, kMostParts> dots{};
        InParts(state.NumberHeight + 1, [&](Slice part) {
            for (int y = part.First; y < part.End; ++y) {
                if (second_) {
                    JoinRow(y, before);
                }
                dots[static_cast<std::size_t>(part.Index)] += FillRow(y);
            }
        });
        if (second_) {
            first_->Record.JoinSymbols(second_->Record);
        }
        first_->Record.Counts.BorderDots = std::accumulate(dots.begin(), dots.end(), 0);
    }

    void JoinRow(int y, int areasBefore) {
        const auto marks = first_->Marks.Row(y);
        const auto borders = first_->Borders.Row(y);
        const auto laterMarks = second_->Marks.Row(y);
        const auto laterBorders = second_->Borders.Row(y);
        const auto after = static_cast<std::int16_t>(areasBefore);
        for (int x = 0; x <= first_->Marks.Across(); ++x) {
            if (second_->Paints.Holds(laterMarks[x].ColorIndex)) {
                marks[x] = laterMarks[x];
                marks[x].AreaNumber = static_cast<std::int16_t>(marks[x].AreaNumber + after);
            }
            if (laterBorders[x] != 0) {
                borders[x] = static_cast<std::int16_t>(laterBorders[x] + after);
            }
        }
        first_->Record.JoinRow(y, second_->Record);
    }

    // Answers its dots; those past the picture's edge are cut. Row and column 0 are borders alone.
    int FillRow(int y) {
        WorkState& state = place_.State;
        const TwipsPerPixel twips = place_.Screen.Screen().Twips;
        const auto map = state.PixelMap.Row(y);
        const auto borders = first_->Borders.Row(y);
        const auto pixels = state.NumberGrid.Row(y);
        int dots = 0;
        for (int x = 0; x <= state.NumberWidth; ++x) {
            NumberPixel& pixel = pixels[x];
            if (x > 0 && y > 0) {
                pixel.ColorIndex = static_cast<std::int16_t>(map[x].ColorIndex);
                pixel.XTwips = static_cast<std::int16_t>(x * twips.X);
                pixel.YTwips = static_cast<std::int16_t>(y * twips.Y);
            }
            pixel.AreaNumber = borders[x];
            pixel.IsBorder = borders[x] != 0;
            dots += pixel.IsBorder && x < state.NumberWidth && y < state.NumberHeight ? 1 : 0;
        }
        return dots;
    }

    Workplace& place_;
    Surface* picture_;
    std::optional<AreaWalk> first_;
    std::optional<AreaWalk> second_;
};

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
