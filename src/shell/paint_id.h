#pragma once

#include <compare>
#include <string>

#include "shell/records.h"
#include "support/letter_case.h"

namespace vendrel {

/// What a painter orders a paint by, whatever its color looks like on a screen: set, name and code.
/// Set and code alone are not enough, for a range may give two of its paints one code. Where a
/// list has several paints of one identity, the first stands. The case of letters makes no other
/// paint: kept in small letters, not for showing.
struct PaintId {
    std::string Set;
    std::string Name;
    std::string Code;

    /// False for a bare color of a set: nothing tells it from the others.
    [[nodiscard]] bool Named() const { return !Name.empty() || !Code.empty(); }
    auto operator<=>(const PaintId&) const = default;
};

[[nodiscard]] inline PaintId IdOf(const PaintColor& paint) {
    return {ToLower(paint.Mfg), ToLower(paint.PaintName), ToLower(paint.PaintCode)};
}

/// True when two entries are the same paint: one identity, and one color where they have no name.
[[nodiscard]] inline bool SamePaint(const PaintColor& a, const PaintColor& b) {
    const PaintId id = IdOf(a);
    return id == IdOf(b) && (id.Named() || ColorOf(a) == ColorOf(b));
}

}  // namespace vendrel
