#pragma once

#include <vector>

#include "touchup/cell_set.h"
#include "touchup/edit_sheet.h"

namespace vendrel {

/// The stipples of the sheet between two corners, both included.
[[nodiscard]] CellSet CellsBetween(const EditSheet& sheet, CellPos one, CellPos other);
/// The stipples that a closed line through the middles of others goes round or meets.
[[nodiscard]] CellSet CellsInside(const EditSheet& sheet, const std::vector<CellPos>& line);
/// All with the paint of one.
[[nodiscard]] CellSet CellsLike(const EditSheet& sheet, CellPos at);
/// The area of one paint that holds it, linked through sides and corners, as FillArea does.
[[nodiscard]] CellSet AreaAround(const EditSheet& sheet, CellPos at);

}  // namespace vendrel
