#include "touchup/markers.h"

#include <algorithm>
#include <tuple>

#include "cleanup/area_search.h"

namespace vendrel {
namespace {

template <class Wanted>
std::vector<CellPos> FindStipples(const EditSheet& sheet, Wanted wanted) {
    std::vector<CellPos> found;
    for (int y = 1; y <= sheet.Down(); ++y) {
        for (int x = 1; x <= sheet.Across(); ++x) {
            if (wanted(CellPos{x, y})) {
                found.push_back({x, y});
            }
        }
    }
    return found;
}

}  // namespace

std::vector<CellPos> FindLoners(const EditSheet& sheet) {
    return FindStipples(sheet, [&](CellPos at) {
        return CheckLoner(sheet.Cells(), at.X, at.Y, sheet.PaintAt(at));
    });
}

std::vector<CellPos> FindStipplesOf(const EditSheet& sheet, int paint) {
    return FindStipples(sheet, [&](CellPos at) { return sheet.PaintAt(at) == paint; });
}

std::optional<LonerStep> NextLoner(const EditSheet& sheet, CellPos from) {
    const std::vector<CellPos> loners = FindLoners(sheet);
    if (loners.empty()) {
        return std::nullopt;
    }
    const auto next = std::upper_bound(
        loners.begin(), loners.end(), from,
        [](CellPos a, CellPos b) { return std::tie(a.Y, a.X) < std::tie(b.Y, b.X); });
    return LonerStep{next == loners.end() ? loners.front() : *next,
                     static_cast<int>(loners.size())};
}

}  // namespace vendrel
