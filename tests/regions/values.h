#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "regions/labelling.h"

namespace vendrel::test {

/// A grid of the digits of `rows`, and of letters from a = 10 on.
inline ValueGrid Values(const std::vector<std::string_view>& rows) {
    ValueGrid grid(static_cast<int>(rows[0].size()) - 1, static_cast<int>(rows.size()) - 1);
    auto to = grid.All().begin();
    for (const std::string_view row : rows) {
        for (const char value : row) {
            *to++ = value >= 'a' ? value - 'a' + 10 : value - '0';
        }
    }
    return grid;
}

/// The other way round.
inline std::vector<std::string> RowsOf(const ValueGrid& grid) {
    std::vector<std::string> rows;
    for (int y = 0; y <= grid.Down(); ++y) {
        rows.emplace_back();
        for (const int value : grid.Row(y)) {
            rows.back() += static_cast<char>(value < 10 ? '0' + value : 'a' + value - 10);
        }
    }
    return rows;
}

}  // namespace vendrel::test
