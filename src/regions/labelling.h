#pragma once

#include <cstddef>
#include <vector>

#include "support/grid.h"

namespace vendrel {

/// Whether places hang together by their sides alone, or by their corners too.
enum class Connection { Sides, Corners };

/// A connected patch of one value.
struct Region {
    int Value = 0;
    int Size = 0;  // places
    bool operator==(const Region&) const = default;
};

/// A grid cut into regions, numbered from 0 in the order of their first places, row by row.
struct Regions {
    ValueGrid Ids;  // index into List per place
    std::vector<Region> List;

    [[nodiscard]] Region& operator[](int id) { return List[static_cast<std::size_t>(id)]; }
    [[nodiscard]] const Region& operator[](int id) const {
        return List[static_cast<std::size_t>(id)];
    }
    [[nodiscard]] int Count() const { return static_cast<int>(List.size()); }
};

[[nodiscard]] Regions FindRegions(const ValueGrid& values,
                                  Connection connection = Connection::Sides);

}  // namespace vendrel
