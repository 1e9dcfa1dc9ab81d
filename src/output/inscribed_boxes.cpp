#include "output/inscribed_boxes.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <tuple>
#include <utility>

namespace vendrel {
namespace {

// For every index the piece it falls into, 0 before the first cut.
std::vector<int> PieceOfEach(std::span<const int> cuts, int count) {
    std::vector<int> pieces(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        pieces[static_cast<std::size_t>(i)] =
            static_cast<int>(std::ranges::upper_bound(cuts, i) - cuts.begin());
    }
    return pieces;
}

double AreaOf(const InscribedBox& box) {
    return static_cast<double>(box.Right - box.Left) * (box.Bottom - box.Top);
}

// Walks the picture row by row and keeps for every column how far the pixel's piece reaches up. All
// boxes that can grow no further show up where a shorter column ends them.
class BoxSearch {
  public:
    BoxSearch(const PixelGrid& ids, const PixelCuts& cuts,
              const std::function<double(int)>& aspectOf)
        : ids_(ids),
          aspectOf_(aspectOf),
          columnPiece_(PieceOfEach(cuts.Columns, ids.Across() + 1)),
          rowPiece_(PieceOfEach(cuts.Rows, ids.Down() + 1)),
          reach_(static_cast<std::size_t>(ids.Across()) + 1) {}

    std::vector<InscribedBox> Run() {
        for (int y = 0; y <= ids_.Down(); ++y) {
            UpdateReach(y);
            for (int x = 0; x <= ids_.Across();) {
                x = SearchRun(x, y);
            }
        }
        std::vector<InscribedBox> boxes;
        for (const auto& [key, box] : best_) {
            boxes.push_back(box);
        }
        return boxes;
    }

  private:
    struct Open {
        int Left;
        int Reach;
    };

    void UpdateReach(int y) {
        const bool fresh = y == 0 || PieceOfRow(y) != PieceOfRow(y - 1);
        for (int x = 0; x <= ids_.Across(); ++x) {
            int& reach = reach_[static_cast<std::size_t>(x)];
            reach = !fresh && ids_(x, y) == ids_(x, y - 1) ? reach + 1 : 1;
        }
    }

    // One run of pixels of the same piece, from column x on; answers where the next one begins.
    int SearchRun(int x, int y) {
        const int id = ids_(x, y);
        const int piece = PieceOfColumn(x);
        const double aspect = aspectOf_(id);
        InscribedBox* const best = &BestOf(id, x, y);
        open_.clear();
        int end = x;
        for (; end <= ids_.Across() && ids_(end, y) == id && PieceOfColumn(end) == piece; ++end) {
            const int left = Close(end, reach_[static_cast<std::size_t>(end)], y, aspect, *best);
            open_.push_back({left, reach_[static_cast<std::size_t>(end)]});
        }
        (void)Close(end, 0, y, aspect, *best);
        return end;
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

    InscribedBox& BestOf(int id, int x, int y) {
        InscribedBox& best = best_[{id, PieceOfRow(y), PieceOfColumn(x)}];
        best.Region = id;
        return best;
    }
    [[nodiscard]] int PieceOfRow(int y) const { return rowPiece_[static_cast<std::size_t>(y)]; }
    [[nodiscard]] int PieceOfColumn(int x) const {
        return columnPiece_[static_cast<std::size_t>(x)];
    }

    const PixelGrid& ids_;
    const std::function<double(int)>& aspectOf_;
    std::vector<int> columnPiece_;
    std::vector<int> rowPiece_;
    std::vector<int> reach_;
    std::vector<Open> open_;
    std::map<std::tuple<int, int, int>, InscribedBox> best_;
};

}  // namespace

std::vector<InscribedBox> FindRoomiestBoxes(const PixelGrid& ids, const PixelCuts& cuts,
                                            const std::function<double(int)>& aspectOf) {
    return BoxSearch(ids, cuts, aspectOf).Run();
}

}  // namespace vendrel
