#pragma once

#include <string>
#include <vector>

#include "shell/kit_edits.h"
#include "shell/settings.h"

namespace vendrel {

/// Edits that took another paint, since the one they want is not in the palette and has no room.
struct StandIn {
    PaintColor Wanted;
    PaintColor Took;
    int Edits = 0;
};

/// What became of the edits. An exchange is one edit, and counts where there is what to exchange.
struct LayReport {
    int Edits = 0;
    int Kept = 0;
    int Joined = 0;                 // paints more than the base has
    std::vector<StandIn> StandIns;  // most edits first
};

/// "All 214 edits kept", "All 214 edits kept, 8 more paints for them", "212 of 214 edits kept, 2
/// took Warm Flesh instead of Light Flesh"; empty when there was none.
[[nodiscard]] std::string Sentence(const LayReport& report);

/// The paint that looks most like `wanted`, from 1; of those alike the first. `skip` is left out, 0
/// for none. 0 when no paint is left.
[[nodiscard]] int StandInByEye(const PaintList& paints, const PaintColor& wanted, int skip = 0);

/// A grid as converted.
struct ConvertedGrid {
    const PaintList& Paints;
    const Grid<StippleCell>& Cells;
};

/// Paints that exchanges have left without stipples.
enum class ExchangedPaints { Stay, Leave };

struct LayTerms {
    int Room = kFinalPaints.back();  // so many paints the palette may have
    ExchangedPaints Exchanged = ExchangedPaints::Stay;
};

/// The grid with the edits over it.
struct LaidEdits {
    PaintList Paints;  // the base's in their places, then those that joined; or by the order
    Grid<StippleCell> Cells;
    LayReport Report;
};

/// Lays the exchanges on, then the stipples; places are taken by share where the layer was made on
/// another grid. A paint that is missing joins while there is room, the one with most stipples
/// first; one that an exchange brings takes the place of the one it replaces wholly. Without room
/// it takes the place of a paint without stipples, and without such a place the nearest by eye
/// stands in. What no stipple uses does not join.
[[nodiscard]] LaidEdits LayEdits(const ConvertedGrid& base, const EditLayer& layer,
                                 const LayTerms& terms = {});

}  // namespace vendrel
