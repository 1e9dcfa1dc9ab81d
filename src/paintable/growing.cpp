#include "paintable/growing.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>

namespace vendrel {
namespace {

// Beyond these the next square is no nearer to a solution than to a muddle.
constexpr std::size_t kSquaresTried = 4;

class Growth {
  public:
    Growth(AreaMap& map, int area, SeenSum budget) : map_(map), area_(area), budget_(budget) {}

    bool Run() {
        bool done = map_.IsBroadEnough(area_) || TakeSquare();
        while (done && !map_.IsLargeEnough(area_) && !meetsTwin_) {
            done = TakeCheapest();
        }
        done = done && cost_ < budget_;
        if (!done) {
            UndoTo(0);
        }
        return done;
    }

    void Settle(std::vector<int>& touched) {
        std::vector<int> cells;
        for (const auto& [cell, from] : taken_) {
            map_.SettleSums(cell, from, area_);
            touched.push_back(from);
            cells.push_back(cell);
        }
        touched.push_back(map_.JoinTwins(area_, cells));
    }

  private:
    struct Taken {
        int Cell = 0;
        int From = 0;
    };

    void Take(int cell) {
        cost_ += map_.CostOfMove(cell, area_);
        taken_.push_back({cell, map_.AreaAt(cell)});
        map_.Move(cell, area_);
        for (const int beside : map_.Beside(cell)) {
            const int other = map_.AreaAt(beside);
            meetsTwin_ = meetsTwin_ || (other != area_ && other != AreaMap::kNoArea &&
                                        map_.PaintOf(other) == map_.PaintOf(area_));
        }
    }
    void UndoTo(std::size_t count) {
        while (taken_.size() > count) {
            map_.Move(taken_.back().Cell, taken_.back().From);
            taken_.pop_back();
        }
        meetsTwin_ = false;
    }

    bool TakeCheapest() {
        int best = -1;
        SeenSum least = budget_ - cost_;
        for (const int cell : map_.CellsOf(area_)) {
            for (const int beside : map_.Beside(cell)) {
                const int from = map_.AreaAt(beside);
                if (from == area_ || from == AreaMap::kNoArea) {
                    continue;
                }
                const SeenSum cost = map_.CostOfMove(beside, area_);
                const bool isBetter = cost < least || (cost == least && beside < best);
                if (isBetter && map_.MayLeave(beside)) {
                    best = beside;
                    least = cost;
                }
            }
        }
        if (best >= 0) {
            Take(best);
        }
        return best >= 0;
    }

    [[nodiscard]] std::vector<int> MissingOf(int first, int block) const {
        std::vector<int> missing;
        const int below = map_.CellAt(0, 1) - map_.CellAt(0, 0);
        for (int i = 0; i < block * block; ++i) {
            const int cell = first + i / block * below + i % block;
            if (map_.AreaAt(cell) != area_) {
                missing.push_back(cell);
            }
        }
        return missing;
    }

    // Every square that covers a stipple of the area, the cheapest first.
    [[nodiscard]] std::vector<std::pair<SeenSum, int>> Squares(int block) const {
        std::vector<std::pair<SeenSum, int>> squares;
        const int below = map_.CellAt(0, 1) - map_.CellAt(0, 0);
        for (const int cell : map_.CellsOf(area_)) {
            for (int i = 0; i < block * block; ++i) {
                const int first = cell - i / block * below - i % block;
                if (!map_.HoldsNarrowest(first, map_.IsProtected(area_))) {
                    continue;
                }
                SeenSum cost = 0;
                for (const int missing : MissingOf(first, block)) {
                    cost += map_.CostOfMove(missing, area_);
                }
                squares.emplace_back(cost, first);
            }
        }
        std::ranges::sort(squares);
        squares.erase(std::unique(squares.begin(), squares.end()), squares.end());
        return squares;
    }

    bool TakeSquare() {
        const int block = map_.BlockOf(area_);
        const auto squares = Squares(block);
        for (std::size_t i = 0; i < std::min(squares.size(), kSquaresTried); ++i) {
            if (squares[i].first < budget_ && TakeAll(MissingOf(squares[i].second, block))) {
                return true;
            }
        }
        return false;
    }
    bool TakeAll(const std::vector<int>& cells) {
        for (const int cell : cells) {
            if (!map_.MayLeave(cell)) {
                UndoTo(0);
                cost_ = 0;
                return false;
            }
            Take(cell);
        }
        return true;
    }

    AreaMap& map_;
    int area_;
    SeenSum budget_;
    SeenSum cost_ = 0;
    bool meetsTwin_ = false;
    std::vector<Taken> taken_;
};

}  // namespace

bool Grow(AreaMap& map, int area, SeenSum budget, std::vector<int>& touched) {
    Growth growth(map, area, budget);
    if (budget <= 0 || !growth.Run()) {
        return false;
    }
    growth.Settle(touched);
    return true;
}

}  // namespace vendrel
