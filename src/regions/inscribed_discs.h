#pragma once

#include <vector>

#include "regions/labelling.h"

namespace vendrel {

/// A disc within one region, in places from the grid's upper left corner; a place is a square of
/// side 1.
struct InscribedDisc {
    double X = 0;  // of the center, in whole and half places
    double Y = 0;
    double Radius = 0;
    bool operator==(const InscribedDisc&) const = default;
};

/// The largest disc of every region, by region, the first of equals row by row. Centers are the
/// middles, the corners and the middles of the sides of places; the grid's edge bounds all discs.
/// Takes a time linear in the places.
[[nodiscard]] std::vector<InscribedDisc> FindLargestDiscs(const Regions& regions);

}  // namespace vendrel
