#include "regions/inscribed_discs.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>

#include "support/list.h"

namespace vendrel {
namespace {

// Distances are between the points of a lattice twice as fine as the grid: middles of places are
// odd in both coordinates, corners even. From any such point the nearest point of a border is one
// of the lattice too.
class Lattice {
  public:
    explicit Lattice(const ValueGrid& ids)
        : width_(2 * ids.Across() + 3),
          height_(2 * ids.Down() + 3),
          above_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)) {
        for (int j = 0; j < height_; ++j) {
            MeasureDown(ids, j);
        }
        for (int j = height_ - 2; j >= 0; --j) {
            const std::span<const int> below = Row(j + 1);
            const std::span<int> row = Row(j);
            for (std::size_t i = 0; i < row.size(); ++i) {
                row[i] = std::min(row[i], below[i] + 1);
            }
        }
    }

    [[nodiscard]] int Width() const { return width_; }
    [[nodiscard]] int Height() const { return height_; }
    /// How far each point of a row is from the nearest border straight above or below it.
    [[nodiscard]] std::span<const int> UprightDistances(int j) const {
        return {above_.data() + At(j), static_cast<std::size_t>(width_)};
    }

  private:
    [[nodiscard]] std::size_t At(int j) const {
        return static_cast<std::size_t>(j) * static_cast<std::size_t>(width_);
    }
    std::span<int> Row(int j) { return {above_.data() + At(j), static_cast<std::size_t>(width_)}; }

    void MeasureDown(const ValueGrid& ids, int j) {
        const std::span<int> row = Row(j);
        if (j == 0 || j == height_ - 1) {
            std::ranges::fill(row, 0);
            return;
        }
        const std::span<const int> upper = ids.Row((j - 1) / 2);
        const std::span<const int> lower = ids.Row(j / 2);
        const std::span<const int> before = Row(j - 1);
        row.front() = 0;
        row.back() = 0;
        for (std::size_t i = 1; i + 1 < row.size(); ++i) {
            const std::size_t left = (i - 1) / 2;
            const std::size_t right = i / 2;
            const bool isBorder = upper[left] != lower[left] || upper[left] != upper[right] ||
                                  lower[left] != lower[right];
            row[i] = isBorder ? 0 : before[i] + 1;
        }
    }

    int width_;
    int height_;
    std::vector<int> above_;
};

// Per point of one row the squared distance to the nearest border: the lower envelope of the
// parabolas that stand on the upright distances.
class RowDistances {
  public:
    explicit RowDistances(int width)
        : squared_(static_cast<std::size_t>(width)), envelope_(static_cast<std::size_t>(width)) {}

    std::span<const int> Measure(std::span<const int> upright) {
        std::size_t last = 0;
        envelope_[0] = {0, 0};
        for (int i = 1; i < static_cast<int>(upright.size()); ++i) {
            int from = Crossing(upright, envelope_[last].Foot, i);
            while (last > 0 && from <= envelope_[last].From) {
                --last;
                from = Crossing(upright, envelope_[last].Foot, i);
            }
            if (from < static_cast<int>(upright.size())) {
                envelope_[++last] = {i, from};
            }
        }
        Fill(upright, last);
        return squared_;
    }

  private:
    struct Parabola {
        int Foot = 0;
        int From = 0;  // the first point for which it is the lowest
    };

    // The first point where the parabola of `right` lies below that of `left`. Both ends of a row
    // are borders, so it is never left of the second point.
    static int Crossing(std::span<const int> upright, int left, int right) {
        const int l = At(upright, left);
        const int r = At(upright, right);
        const int sum = right * right - left * left + r * r - l * l;
        return sum < 0 ? 0 : sum / (2 * (right - left)) + 1;
    }
    void Fill(std::span<const int> upright, std::size_t last) {
        for (int i = static_cast<int>(upright.size()) - 1; i >= 0; --i) {
            while (last > 0 && envelope_[last].From > i) {
                --last;
            }
            const int across = i - envelope_[last].Foot;
            const int up = At(upright, envelope_[last].Foot);
            At(squared_, i) = across * across + up * up;
        }
    }

    std::vector<int> squared_;
    std::vector<Parabola> envelope_;
};

}  // namespace

std::vector<InscribedDisc> FindLargestDiscs(const Regions& regions) {
    const Lattice lattice(regions.Ids);
    RowDistances distances(lattice.Width());
    std::vector<int> largest(regions.List.size());
    std::vector<InscribedDisc> discs(regions.List.size());
    for (int j = 1; j < lattice.Height() - 1; ++j) {
        const std::span<const int> ids = regions.Ids.Row(j / 2);
        const std::span<const int> squared = distances.Measure(lattice.UprightDistances(j));
        for (std::size_t i = 1; i + 1 < squared.size(); ++i) {
            const auto id = static_cast<std::size_t>(ids[i / 2]);
            if (squared[i] > largest[id]) {
                largest[id] = squared[i];
                discs[id] = {static_cast<double>(i) / 2, j / 2.0, 0};
            }
        }
    }
    for (std::size_t id = 0; id < discs.size(); ++id) {
        discs[id].Radius = std::sqrt(static_cast<double>(largest[id])) / 2;
    }
    return discs;
}

}  // namespace vendrel
