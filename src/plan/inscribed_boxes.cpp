#include "plan/inscribed_boxes.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

#include "support/in_parts.h"
#include "support/list.h"

namespace vendrel {
namespace {

double AreaOf(const InscribedBox& box) {
    return static_cast<double>(box.Right - box.Left) * (box.Bottom - box.Top);
}

// Walks the picture row by row and keeps for every column how far the pixel's region reaches up.
// All boxes that can grow no further show up where a shorter column ends them. Looks at a part of
// the regions.
class BoxSearch {
  public:
    BoxSearch(const PixelGrid& ids, const std::function<double(int)>& aspectOf, const Slice& part,
              std::vector<InscribedBox>& best)
        : ids_(ids),
          aspectOf_(aspectOf),
          part_(part),
          reach_(static_cast<std::size_t>(ids_.Across()) + 1),
          best_(best) {}

    void Run() {
        for (int y = 0; y <= ids_.Down(); ++y) {
            UpdateReach(y);
            for (int x = 0; x <= ids_.Across();) {
                x = SearchRun(x, y);
            }
        }
    }

  private:
    struct Open {
        int Left;
        int Reach;
    };

    void UpdateReach(int y) {
        for (int x = 0; x <= ids_.Across(); ++x) {
            int& reach = At(reach_, x);
            reach = y > 0 && ids_(x, y) == ids_(x, y - 1) ? reach + 1 : 1;
        }
    }

    // One run of pixels of the same region, from column x on; answers where the next one begins.
    int SearchRun(int x, int y) {
        const int id = ids_(x, y);
        if (const int end = EndOfRun(x, y);
            id < part_.First || id >= part_.End || GoesOn(x, end, y)) {
            return end;
        }
        const double aspect = aspectOf_(id);
        InscribedBox& best = At(best_, id);
        open_.clear();
        int end = x;
        for (; end <= ids_.Across() && ids_(end, y) == id; ++end) {
            const int left = Close(end, At(reach_, end), y, aspect, best);
            open_.push_back({left, At(reach_, end)});
        }
        (void)Close(end, 0, y, aspect, best);
        return end;
    }

    [[nodiscard]] int EndOfRun(int x, int y) const {
        const std::span<const int> row = ids_.Row(y);
        const auto from = row.begin() + x;
        return static_cast<int>(
            std::find_if(from, row.end(), [id = *from](int other) { return other != id; }) -
            row.begin());
    }
    // Whether every box that ends in a run ends lower too.
    [[nodiscard]] bool GoesOn(int x, int end, int y) const {
        return y < ids_.Down() && std::equal(ids_.Row(y).begin() + x, ids_.Row(y).begin() + end,
                                             ids_.Row(y + 1).begin() + x);
    }

    // Ends every open box taller than `reach` before column `end`; answers where a box of that
    // reach begins.
    int Close(int end, int reach, int y, double aspect, InscribedBox& best) {
        int left = end;
        while (!open_.empty() && open_.back().Reach >= reach) {
            left = open_.back().Left;
            Offer({best.Region, left, y + 1 - open_.back().Reach, end, y + 1, 0}, aspect, best);
            open_.pop_back();
        }
        return left;
    }

    static void Offer(InscribedBox box, double aspect, InscribedBox& best) {
        box.Height = std::min<double>((box.Right - box.Left) / aspect, box.Bottom - box.Top);
        if (std::pair(box.Height, AreaOf(box)) > std::pair(best.Height, AreaOf(best))) {
            best = box;
        }
    }

    const PixelGrid& ids_;
    const std::function<double(int)>& aspectOf_;
    Slice part_;
    std::vector<int> reach_;
    std::vector<Open> open_;
    std::vector<InscribedBox>& best_;
};

}  // namespace

std::vector<InscribedBox> FindRoomiestBoxes(const PaintedRegions& regions,
                                            const std::function<double(int)>& aspectOf) {
    const int count = static_cast<int>(regions.List.size());
    std::vector<InscribedBox> best(regions.List.size());
    for (int i = 0; i < count; ++i) {
        At(best, i).Region = i;
    }
    InParts(count, [&](const Slice& part) { BoxSearch(regions.Ids, aspectOf, part, best).Run(); });
    return best;
}

}  // namespace vendrel
