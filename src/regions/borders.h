#pragma once

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "regions/labelling.h"

namespace vendrel {

/// What a region shares with another one beside it.
struct Border {
    int Beside = 0;  // the other region
    int Length = 0;  // sides of places
    bool operator==(const Border&) const = default;
};

/// The borders of all regions.
class Borders {
  public:
    /// `starts`: per region where its borders begin in `list`, and where the last one's end.
    Borders(std::vector<std::size_t> starts, std::vector<Border> list)
        : starts_(std::move(starts)), list_(std::move(list)) {}

    /// With every region beside it, ascending by its number. The grid's edge is no border.
    [[nodiscard]] std::span<const Border> Of(int region) const {
        const auto at = static_cast<std::size_t>(region);
        return std::span(list_).subspan(starts_[at], starts_[at + 1] - starts_[at]);
    }

  private:
    std::vector<std::size_t> starts_;
    std::vector<Border> list_;
};

[[nodiscard]] Borders FindBorders(const Regions& regions);

}  // namespace vendrel
