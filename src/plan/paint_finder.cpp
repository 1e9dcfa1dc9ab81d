#include "plan/paint_finder.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace vendrel {
namespace {

constexpr int kFinderSquare = 8;  // pixels of a square

constexpr std::uint64_t BitOf(std::uint8_t paint) {
    return std::uint64_t{1} << paint;
}

}  // namespace

PaintFinder::PaintFinder(const PaintedRegions& regions)
    : paints_(regions.Ids.Across(), regions.Ids.Down()),
      squares_(paints_.Across() / kFinderSquare, paints_.Down() / kFinderSquare) {
    std::vector<std::uint8_t> paintOf;
    for (const Region& region : regions.List) {
        paintOf.push_back(static_cast<std::uint8_t>(region.Value));
    }
    for (int y = 0; y <= paints_.Down(); ++y) {
        const RowView<const int> ids = regions.Ids.Row(y);
        const RowView<std::uint8_t> paints = paints_.Row(y);
        const RowView<Paints> squares = squares_.Row(y / kFinderSquare);
        for (int x = 0; x < ids.Count(); ++x) {
            paints[x] = paintOf[static_cast<std::size_t>(ids[x])];
            squares[x / kFinderSquare] |= BitOf(paints[x]);
        }
    }
}

std::vector<int> PaintFinder::Within(const PlanRect& part) const {
    constexpr double kHair = 1e-6;  // what a part reckoned in millimetres may be off
    const auto span = [](double from, double to, int last) -> Span {
        return {std::max(0, int(std::floor(from + kHair))),
                std::min(last + 1, int(std::ceil(to - kHair)))};
    };
    const Span columns = span(part.Left, part.Right, paints_.Across());
    const Span rows = span(part.Top, part.Bottom, paints_.Down());
    // The squares that lie in it as a whole, and the pixels around them.
    const auto whole = [](Span pixels) -> Span {
        const int first = (pixels.First + kFinderSquare - 1) / kFinderSquare;
        return {first, std::max(first, pixels.End / kFinderSquare)};
    };
    const Span across = whole(columns);
    const Span down = whole(rows);
    const int top = std::min(down.First * kFinderSquare, rows.End);
    const int bottom = std::max(top, std::min(down.End * kFinderSquare, rows.End));
    const int left = std::min(across.First * kFinderSquare, columns.End);
    const int right = std::max(left, std::min(across.End * kFinderSquare, columns.End));
    Paints found = InPixels(columns, {rows.First, top}) | InPixels(columns, {bottom, rows.End}) |
                   InPixels({columns.First, left}, {top, bottom}) |
                   InPixels({right, columns.End}, {top, bottom});
    for (int y = down.First; y < down.End; ++y) {
        for (int x = across.First; x < across.End; ++x) {
            found |= squares_(x, y);
        }
    }
    std::vector<int> paints;
    for (; found != 0; found &= found - 1) {
        paints.push_back(std::countr_zero(found));
    }
    return paints;
}

PaintFinder::Paints PaintFinder::InPixels(Span columns, Span rows) const {
    Paints found = 0;
    for (int y = rows.First; y < rows.End; ++y) {
        for (int x = columns.First; x < columns.End; ++x) {
            found |= BitOf(paints_(x, y));
        }
    }
    return found;
}

}  // namespace vendrel
