#include "regions/inscribed_discs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>
#include <utility>

#include "support/in_parts.h"
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

// The largest discs of all regions whose centers are in some of the rows.
class DiscsInRows {
  public:
    DiscsInRows() = default;
    DiscsInRows(const Regions& regions, const Lattice& lattice, int first, int end)
        : squared_(regions.List.size()), discs_(regions.List.size()) {
        RowDistances distances(lattice.Width());
        for (int j = first; j < end; ++j) {
            const std::span<const int> ids = regions.Ids.Row(j / 2);
            const std::span<const int> squared = distances.Measure(lattice.UprightDistances(j));
            for (std::size_t i = 1; i + 1 < squared.size(); ++i) {
                const auto id = static_cast<std::size_t>(ids[i / 2]);
                if (squared[i] > squared_[id]) {
                    squared_[id] = squared[i];
                    discs_[id] = {static_cast<double>(i) / 2, j / 2.0, 0};
                }
            }
        }
    }
    /// Takes over those of rows below where they are larger.
    void Add(const DiscsInRows& below) {
        for (std::size_t id = 0; id < below.discs_.size(); ++id) {
            if (below.squared_[id] > squared_[id]) {
                squared_[id] = below.squared_[id];
                discs_[id] = below.discs_[id];
            }
        }
    }
    std::vector<InscribedDisc> Settle() {
        for (std::size_t id = 0; id < discs_.size(); ++id) {
            discs_[id].Radius = std::sqrt(static_cast<double>(squared_[id])) / 2;
        }
        return std::move(discs_);
    }

  private:
    std::vector<int> squared_;
    std::vector<InscribedDisc> discs_;
};

}  // namespace

std::vector<InscribedDisc> FindLargestDiscs(const Regions& regions) {
    const Lattice lattice(regions.Ids);
    const int rows = lattice.Height() - 2;
    std::array<DiscsInRows, kMostParts> parts;
    InParts(rows, [&](Slice part) {
        At(parts, part.Index) = DiscsInRows(regions, lattice, part.First + 1, part.End + 1);
    });
    for (int i = 1; i < kMostParts; ++i) {
        parts.front().Add(At(parts, i));
    }
    return parts.front().Settle();
}

}  // namespace vendrel
