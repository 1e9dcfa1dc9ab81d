#pragma once

#include <string>
#include <string_view>

#include "touchup/cell_set.h"
#include "touchup/edit_pen.h"

namespace vendrel {

/// Stipples cut out of a sheet, with the paints they have there.
struct CellPatch {
    PaintList Paints;  // without counts
    Grid<int> Cells;   // of Paints, 0 for none: a patch may have any outline

    [[nodiscard]] bool Empty() const { return Cells.Across() < 1; }
    bool operator==(const CellPatch&) const = default;
};

enum class MirrorWay { LeftRight, UpsideDown };

/// Those of the set, in the rectangle round it; only paints that are used.
[[nodiscard]] CellPatch CutPatch(const EditSheet& sheet, const CellSet& cells);
[[nodiscard]] CellPatch Mirrored(const CellPatch& patch, MirrorWay way);
/// The stipples of a sheet that the patch covers with its corner at `corner`.
[[nodiscard]] CellSet CellsOf(const CellPatch& patch, CellPos corner, const EditSheet& sheet);

/// Per paint of the patch that of the list: of the same identity, else the one that looks most like
/// it.
[[nodiscard]] OneBased<int> PaintsIn(const PaintList& paints, const CellPatch& patch);
/// The paints of the patch that a list lacks, as many as a kit has room for.
[[nodiscard]] PaintList MissingPaints(const PaintList& paints, const CellPatch& patch);

/// Puts the patch down with its corner there.
void PlacePatch(EditPen& pen, const CellPatch& patch, CellPos corner);
/// Stipples that were taken away take the paint of the nearest left in place, along the sides. A
/// whole sheet stays as it is.
void CloseHole(EditPen& pen, const CellSet& hole);

/// A patch as text for the clipboard, paints by identity, for another kit or program to read.
[[nodiscard]] std::string PatchText(const CellPatch& patch);
/// Reads it. Throws FormatError when it is none.
[[nodiscard]] CellPatch ReadPatch(std::string_view text);

}  // namespace vendrel
