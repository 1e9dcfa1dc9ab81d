#include "edits/neighbor_wishes.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace vendrel {
namespace {

class NeighborWishes {
  public:
    NeighborWishes(Grid<StippleCell>& cells, std::span<const NeighborWish> wishes)
        : cells_(cells),
          waiting_(wishes.begin(), wishes.end()),
          open_(cells.Across(), cells.Down()) {
        for (const NeighborWish& wish : wishes) {
            open_(wish.At.X, wish.At.Y) = 1;
        }
    }

    void Fulfill() {
        while (TakeLiked()) {
        }
        while (TakeMost()) {
        }
    }

  private:
    template <class Visit>
    void ForNeighbors(CellPos at, const Visit& visit) const {
        for (int y = std::max(at.Y - 1, 1); y <= std::min(at.Y + 1, cells_.Down()); ++y) {
            for (int x = std::max(at.X - 1, 1); x <= std::min(at.X + 1, cells_.Across()); ++x) {
                if (open_(x, y) == 0) {
                    visit(cells_(x, y).ColorIndex);
                }
            }
        }
    }

    [[nodiscard]] bool HasNeighbor(const NeighborWish& wish) const {
        bool found = false;
        ForNeighbors(wish.At, [&](int paint) { found = found || paint == wish.Paint; });
        return found;
    }

    // 0 when all neighbors wait themselves.
    [[nodiscard]] int MostAround(CellPos at) const {
        std::map<int, int> counts;
        ForNeighbors(at, [&](int paint) { ++counts[paint]; });
        const auto most = std::ranges::max_element(counts, {}, &std::pair<const int, int>::second);
        return most == counts.end() ? 0 : most->first;
    }

    void Set(CellPos at, int paint) {
        cells_(at.X, at.Y).ColorIndex = paint;
        open_(at.X, at.Y) = 0;
    }

    // Each fulfilled wish may be the neighbor that another one waits for.
    bool TakeLiked() {
        return std::erase_if(waiting_, [this](const NeighborWish& wish) {
                   const bool fulfilled = wish.Paint > 0 && HasNeighbor(wish);
                   if (fulfilled) {
                       Set(wish.At, wish.Paint);
                   }
                   return fulfilled;
               }) > 0;
    }

    // All of a round look at the same neighbors, so that no corner of the grid comes first.
    bool TakeMost() {
        std::vector<NeighborWish> taken;
        for (const NeighborWish& wish : waiting_) {
            taken.push_back({wish.At, MostAround(wish.At)});
        }
        std::erase_if(taken, [](const NeighborWish& wish) { return wish.Paint == 0; });
        for (const NeighborWish& wish : taken) {
            Set(wish.At, wish.Paint);
        }
        std::erase_if(waiting_, [this](const NeighborWish& wish) {
            return open_(wish.At.X, wish.At.Y) == 0;
        });
        return !taken.empty();
    }

    Grid<StippleCell>& cells_;
    std::vector<NeighborWish> waiting_;
    ValueGrid open_;
};

}  // namespace

void FulfillNeighborWishes(Grid<StippleCell>& cells, std::span<const NeighborWish> wishes) {
    NeighborWishes(cells, wishes).Fulfill();
}

}  // namespace vendrel
