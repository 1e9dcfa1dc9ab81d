#include "paintable/area_map.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <utility>

namespace vendrel {
namespace {

std::vector<int> Framed(const std::vector<int>& sides) {
    std::vector<int> framed(sides.size() + 2);
    std::ranges::copy(sides, framed.begin() + 1);
    return framed;
}

// Per column or row of the framed grid whether so many from there on are together wide enough; none
// of the frame's are.
std::vector<std::uint8_t> WhereItFits(const std::vector<int>& framed, int side, double narrowest) {
    std::vector<std::uint8_t> fits(framed.size());
    for (int i = 1; i + side < std::ssize(framed); ++i) {
        const auto first = framed.begin() + i;
        fits[static_cast<std::size_t>(i)] = std::accumulate(first, first + side, 0) >= narrowest;
    }
    return fits;
}

}  // namespace

AreaMap::AreaMap(const StipplePicture& picture, const SeenTable& table, const AreaTerms& terms)
    : table_(table),
      terms_(terms),
      paints_(table.PaintCount()),
      across_(picture.Paints.Across() + 1),
      down_(picture.Paints.Down() + 1),
      stride_(across_ + 2),
      widths_(Framed(terms.Sides.Widths)),
      heights_(Framed(terms.Sides.Heights)),
      blocks_{SizeBlock(terms.Limits.Narrowest), SizeBlock(terms.ProtectedLimits.Narrowest)},
      areaOf_(Index(stride_ * (down_ + 2)), kNoArea),
      colorOf_(areaOf_.size()),
      protected_(areaOf_.size()),
      placeOf_(areaOf_.size()) {
    Fill(picture);
}

// The stipples of usual size decide; those at the edge that are short are looked at one by one.
AreaMap::BlockSize AreaMap::SizeBlock(double narrowest) const {
    const int usual = across_ > 2 ? widths_[2] : std::max(1, widths_[1]);
    const int side = std::max(1, static_cast<int>(std::ceil(narrowest / usual)));
    return {side, WhereItFits(widths_, side, narrowest), WhereItFits(heights_, side, narrowest)};
}

void AreaMap::Fill(const StipplePicture& picture) {
    const Regions regions = FindRegions(picture.Paints);
    areas_.resize(regions.List.size());
    for (int id = 0; id < regions.Count(); ++id) {
        areas_[Index(id)].Paint = regions[id].Value;
        areas_[Index(id)].Sums.resize(Index(paints_));
    }
    const bool anyProtected = !picture.Protected.All().empty();
    for (int y = 0; y < down_; ++y) {
        for (int x = 0; x < across_; ++x) {
            const int cell = CellAt(x, y);
            const int id = regions.Ids(x, y);
            colorOf_[Index(cell)] = picture.Colors(x, y);
            protected_[Index(cell)] = anyProtected && picture.Protected(x, y) != 0 ? 1 : 0;
            Area& area = areas_[Index(id)];
            placeOf_[Index(cell)] = static_cast<int>(area.Cells.size());
            area.Cells.push_back(cell);
            areaOf_[Index(cell)] = id;
            for (int p = 0; p < paints_; ++p) {
                area.Sums[Index(p)] += CostOf(cell, p);
            }
            Take(cell, 1);
        }
    }
}

// Counts what a stipple brings its area, or takes from it.
void AreaMap::Take(int cell, int sign) {
    Area& area = areas_[Index(AreaAt(cell))];
    area.Pixels += sign * PixelsAt(cell);
    area.Protected += sign * protected_[Index(cell)];
    for (std::size_t which = 0; which < blocks_.size(); ++which) {
        area.Blocks.at(which) += sign * BlocksAround(cell, AreaAt(cell), which);
    }
}

// The squares that lie in an area all but for a stipple of its own.
int AreaMap::BlocksAround(int cell, int area, std::size_t which) const {
    const int side = blocks_.at(which).Side;
    int count = 0;
    for (int up = 0; up < side; ++up) {
        for (int left = 0; left < side; ++left) {
            const int first = cell - up * stride_ - left;
            if (!HoldsNarrowest(first, which == 1)) {
                continue;
            }
            bool isWhole = true;
            for (int i = 0; i < side * side && isWhole; ++i) {
                const int at = first + i / side * stride_ + i % side;
                isWhole = at == cell || AreaAt(at) == area;
            }
            count += isWhole ? 1 : 0;
        }
    }
    return count;
}

bool AreaMap::IsLargeEnough(int area) const {
    const Area& a = areas_[Index(area)];
    return a.Pixels >= LimitsOf(a.Protected > 0).Smallest;
}

bool AreaMap::IsBroadEnough(int area) const {
    const Area& a = areas_[Index(area)];
    return a.Blocks[a.Protected > 0 ? 1 : 0] > 0;
}

int AreaMap::BlockOf(int area) const {
    return blocks_[areas_[Index(area)].Protected > 0 ? 1 : 0].Side;
}

// Looks at the ring around the stipple alone: where the area hangs together by a long way round,
// this says no, which costs nothing but a choice.
bool AreaMap::IsWholeWithout(int cell) const {
    const std::array<int, 8> ring = {
        cell - stride_ - 1, cell - stride_, cell - stride_ + 1, cell + 1,
        cell + stride_ + 1, cell + stride_, cell + stride_ - 1, cell - 1};
    const int area = AreaAt(cell);
    int pieces = 0;
    int sides = 0;
    for (std::size_t i = 1; i < ring.size(); i += 2) {
        if (AreaAt(ring[i]) != area) {
            continue;
        }
        ++sides;
        const std::size_t corner = (i + 1) % 8;
        const std::size_t next = (i + 2) % 8;
        const bool goesOn = AreaAt(ring[corner]) == area && AreaAt(ring[next]) == area;
        pieces += goesOn ? 0 : 1;
    }
    return pieces <= 1 || sides == 0;
}

bool AreaMap::MayLeave(int cell) const {
    if (!IsWholeWithout(cell)) {
        return false;
    }
    const int number = AreaAt(cell);
    if (!IsPaintable(number)) {
        return true;
    }
    const Area& area = areas_[Index(number)];
    const bool isProtected = area.Protected > protected_[Index(cell)];
    const std::size_t which = isProtected ? 1 : 0;
    return area.Pixels - PixelsAt(cell) >= LimitsOf(isProtected).Smallest &&
           area.Blocks.at(which) > BlocksAround(cell, number, which);
}

SeenSum AreaMap::CostOfMove(int cell, int area) const {
    const int from = AreaAt(cell);
    int sides = 0;
    for (const int beside : Beside(cell)) {
        sides += AreaAt(beside) == from ? 1 : AreaAt(beside) == area ? -1 : 0;
    }
    return CostOf(cell, PaintOf(area)) - CostOf(cell, PaintOf(from)) + sides * kSideCost;
}

void AreaMap::Move(int cell, int area) {
    Take(cell, -1);
    std::vector<int>& from = areas_[Index(AreaAt(cell))].Cells;
    const int place = placeOf_[Index(cell)];
    from[Index(place)] = from.back();
    placeOf_[Index(from.back())] = place;
    from.pop_back();
    std::vector<int>& to = areas_[Index(area)].Cells;
    placeOf_[Index(cell)] = static_cast<int>(to.size());
    to.push_back(cell);
    areaOf_[Index(cell)] = area;
    Take(cell, 1);
}

void AreaMap::SettleSums(int cell, int from, int to) {
    std::vector<SeenSum>& less = areas_[Index(from)].Sums;
    std::vector<SeenSum>& more = areas_[Index(to)].Sums;
    for (int p = 0; p < paints_; ++p) {
        const SeenSum cost = CostOf(cell, p);
        less[Index(p)] -= cost;
        more[Index(p)] += cost;
    }
}

void AreaMap::Unite(int area, int into) {
    const std::vector<int> cells = areas_[Index(area)].Cells;
    for (const int cell : cells) {
        Move(cell, into);
    }
    for (int p = 0; p < paints_; ++p) {
        areas_[Index(into)].Sums[Index(p)] += areas_[Index(area)].Sums[Index(p)];
    }
    areas_[Index(area)] = {};
}

int AreaMap::JoinTwins(int area, std::span<const int> cells) {
    std::vector<int> twins;
    for (const int cell : cells) {
        for (const int beside : Beside(cell)) {
            const int other = AreaAt(beside);
            if (other != kNoArea && other != area && PaintOf(other) == PaintOf(area)) {
                twins.push_back(other);
            }
        }
    }
    std::ranges::sort(twins);
    twins.erase(std::unique(twins.begin(), twins.end()), twins.end());
    for (int twin : twins) {
        if (CellsOf(twin).size() > CellsOf(area).size()) {
            std::swap(twin, area);
        }
        Unite(twin, area);
    }
    return area;
}

ValueGrid AreaMap::Paints() const {
    ValueGrid paints(across_ - 1, down_ - 1);
    for (int y = 0; y < down_; ++y) {
        for (int x = 0; x < across_; ++x) {
            paints(x, y) = PaintOf(AreaAt(CellAt(x, y)));
        }
    }
    return paints;
}

}  // namespace vendrel
