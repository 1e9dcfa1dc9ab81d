#pragma once

#include <filesystem>

#include "kitfile/kit_file.h"
#include "shell/workplace.h"

namespace vendrel {

/// The kit in hand as its file will have it. What it took from the file that it was opened from or
/// saved to `before`, which may be null, stays: what other versions know, and while photo and
/// source are the same, the crop and the paints it was chosen from. Throws FileError, FormatError
/// when its template cannot be read.
[[nodiscard]] KitFile KitOf(const Workplace& place, const KitPhoto& photo,
                            const PlanSettings& print, const KitFile* before);

/// Stipples that are no kit's own yet, as the editor has them.
struct KitStipples {
    const PaintList& Paints;
    const Grid<StippleCell>& Cells;
    const KitEdits& Layer;
};
/// Makes them those of the file to be.
void TakeStipples(KitFile& kit, const KitStipples& stipples);

/// The paints in force come from there.
[[nodiscard]] PaintSource SourceOf(const Catalogue& catalogue, const PaintChoice& choice);
/// The paints of new conversions come from there; sets that the catalogue lacks are left out.
void TakeSource(Catalogue& catalogue, PaintChoice& choice, const PaintSource& source);

/// The paints that go before others where the kit was chosen so.
[[nodiscard]] PaintList OwnedOf(const KitFile& kit);

/// Takes up a kit as it was finished, with its settings and the photo in that file, and draws its
/// stipples, to be painted as if it had just been converted. Throws FileError, FormatError when the
/// photo cannot be read; nothing has changed then.
void TakeKit(Workplace& place, const KitFile& kit, const std::filesystem::path& photo);

}  // namespace vendrel
