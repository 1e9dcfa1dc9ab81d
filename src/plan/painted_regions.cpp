#include "plan/painted_regions.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>

#include "support/error.h"

namespace vendrel {
namespace {

constexpr std::array<CellPos, 4> kSides = {{{0, -1}, {1, 0}, {0, 1}, {-1, 0}}};
constexpr int kNoRegion = -1;

class RegionSearch {
  public:
    explicit RegionSearch(const PixelGrid& paints)
        : paints_(paints), found_{PixelGrid(paints.Across(), paints.Down()), {}} {
        std::ranges::fill(found_.Ids.All(), kNoRegion);
    }

    PaintedRegions Run() {
        for (int y = 0; y <= paints_.Down(); ++y) {
            for (int x = 0; x <= paints_.Across(); ++x) {
                if (found_.Ids(x, y) == kNoRegion) {
                    Flood({x, y});
                }
            }
        }
        return std::move(found_);
    }

  private:
    void Flood(CellPos seed) {
        const int id = static_cast<int>(found_.List.size());
        Region region{paints_(seed.X, seed.Y), 0};
        Claim(seed, id);
        while (!open_.empty()) {
            const CellPos at = open_.back();
            open_.pop_back();
            ++region.Pixels;
            for (const CellPos step : kSides) {
                const CellPos next{at.X + step.X, at.Y + step.Y};
                if (paints_.Holds(next.X, next.Y) && paints_(next.X, next.Y) == region.Paint &&
                    found_.Ids(next.X, next.Y) == kNoRegion) {
                    Claim(next, id);
                }
            }
        }
        found_.List.push_back(region);
    }
    void Claim(CellPos at, int id) {
        found_.Ids(at.X, at.Y) = id;
        open_.push_back(at);
    }

    const PixelGrid& paints_;
    PaintedRegions found_;
    std::vector<CellPos> open_;
};

// Per crumb, how much edge it shares with each paint of a neighbour that is no crumb itself.
using SharedEdges = std::map<int, std::map<int, int>>;

SharedEdges EdgesOfCrumbs(const PaintedRegions& regions, int smallest) {
    SharedEdges edges;
    for (int y = 0; y <= regions.Ids.Down(); ++y) {
        for (int x = 0; x <= regions.Ids.Across(); ++x) {
            const int id = regions.Ids(x, y);
            if (regions.List[static_cast<std::size_t>(id)].Pixels >= smallest) {
                continue;
            }
            for (const CellPos step : kSides) {
                if (!regions.Ids.Holds(x + step.X, y + step.Y)) {
                    continue;
                }
                const int beside = regions.Ids(x + step.X, y + step.Y);
                const Region& neighbour = regions.List[static_cast<std::size_t>(beside)];
                if (neighbour.Pixels >= smallest) {
                    ++edges[id][neighbour.Paint];
                }
            }
        }
    }
    return edges;
}

int PaintOfLongestEdge(const std::map<int, int>& edges) {
    return std::ranges::max_element(edges, {}, [](const auto& edge) { return edge.second; })->first;
}

// Paints the crumbs over; answers whether any was.
bool DissolveCrumbs(PixelGrid& paints, const PaintedRegions& regions, int smallest) {
    std::map<int, int> paintOf;
    for (const auto& [id, edges] : EdgesOfCrumbs(regions, smallest)) {
        paintOf[id] = PaintOfLongestEdge(edges);
    }
    for (int y = 0; !paintOf.empty() && y <= paints.Down(); ++y) {
        for (int x = 0; x <= paints.Across(); ++x) {
            if (const auto found = paintOf.find(regions.Ids(x, y)); found != paintOf.end()) {
                paints(x, y) = found->second;
            }
        }
    }
    return !paintOf.empty();
}

int CellAt(int pixel, int stippleSize, int count) {
    return std::clamp((pixel - 1) / stippleSize + 1, 1, count);
}

}  // namespace

PixelGrid PaintPerPixel(const WorkState& state, int width, int height) {
    if (state.PixelMap.Across() < width || state.PixelMap.Down() < height ||
        state.CellsAcross < 1 || state.CellsDown < 1) {
        throw Error("The picture is not painted yet. Paint it before its plan is printed.");
    }
    PixelGrid paints(width - 1, height - 1);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int painted = x > 0 && y > 0 ? state.PixelMap(x, y).ColorIndex : 0;
            paints(x, y) = painted > 0
                               ? painted
                               : state
                                     .Stipples(CellAt(x, state.StippleSize, state.CellsAcross),
                                               CellAt(y, state.StippleSize, state.CellsDown))
                                     .ColorIndex;
        }
    }
    return paints;
}

PaintedRegions FindRegions(PixelGrid paints, int smallest) {
    PaintedRegions regions = RegionSearch(paints).Run();
    // A crumb among crumbs waits until one of its neighbours has grown together with a region.
    while (DissolveCrumbs(paints, regions, smallest)) {
        regions = RegionSearch(paints).Run();
    }
    return regions;
}

}  // namespace vendrel
