#pragma once

#include <optional>

#include "convert/seen_stipples.h"
#include "shell/workplace.h"

namespace vendrel {

/// Cuts the photo on the work picture into stipples, gives each the nearest paint, makes the paints
/// found the palette (in the order they were met) and reduces it to FinalColors, unless
/// KeepAllColors is set. Leaves each stipple's block black, with its dot drawn only for somebody
/// watching. Throws OverflowError and, before anything changes, Error when fewer than one final
/// paint is wanted or no paint is selected. Answers how many paints the photo matched before the
/// reduction.
int ApplyStipples(Workplace& place);

/// What matching found out about the photo on its way.
struct Matched {
    int Paints = 0;                    // before the reduction
    std::optional<SeenStipples> Seen;  // with the palette chosen, by eye alone
};

/// The part of ApplyStipples before areas are made paintable.
Matched MatchStipples(Workplace& place);

/// Of the photo loaded, with the palette and the stipples as they are.
[[nodiscard]] SeenStipples LookAtPhoto(const Workplace& place);

/// Draws the dot of every stipple from the grid and the palette, and keeps the drawing in
/// StippleFrame. What lies between the dots stays as it is.
void DrawStipplePicture(Workplace& place);

/// The whole way from the photo to the stipple picture, with the painter's edits laid on. Throws
/// and answers as ApplyStipples.
int ChangeToStipples_Click(Workplace& place);

/// The same, asked for by another window, with what is in hand kept: a paintable kit comes out
/// paintable, whatever the next photo is made into.
int AutoChangeToStipples(Workplace& place);

}  // namespace vendrel
