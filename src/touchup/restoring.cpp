#include "touchup/restoring.h"

#include <utility>

#include "edits/lay_edits.h"
#include "edits/paint_index.h"

namespace vendrel {
namespace {

// However the palettes are sorted.
bool LooksLike(const LaidEdits& laid, const LoadedGrid& kept) {
    const Grid<StippleCell>& cells = laid.Cells;
    if (cells.Across() != kept.Cells.Across() || cells.Down() != kept.Cells.Down()) {
        return false;
    }
    const PaintIndex index(laid.Paints);
    OneBased<int> places;
    for (const PaintColor& paint : kept.Palette) {
        places.Add(index.Find(paint));
    }
    for (int y = 1; y <= cells.Down(); ++y) {
        for (int x = 1; x <= cells.Across(); ++x) {
            if (cells(x, y).ColorIndex != places[kept.Cells(x, y).ColorIndex]) {
                return false;
            }
        }
    }
    return true;
}

SheetContents ContentsOf(PaintList paints, Grid<StippleCell> cells, int finalColors) {
    const SheetSizes sizes{paints.Count(), cells.Across(), cells.Down()};
    return {std::move(paints), {}, std::move(cells), sizes, finalColors};
}

}  // namespace

RestoredWork RestoreOver(const KitEdits& present, LoadedGrid kept, int finalColors) {
    if (kept.Edits) {
        auto layer = std::make_shared<const EditLayer>(*std::move(kept.Edits));
        LaidEdits laid = LayEdits({present.BasePaints, present.Base}, *layer);
        if (!LooksLike(laid, kept)) {
            return {ContentsOf(std::move(laid.Paints), std::move(laid.Cells), finalColors),
                    EditIntent::Layer, std::move(layer), Sentence(laid.Report)};
        }
        return {ContentsOf(std::move(kept.Palette), std::move(kept.Cells), kept.Header.FinalColors),
                EditIntent::Layer,
                std::move(layer),
                {}};
    }
    // What differs from the conversion was painted, and lasts as such.
    const bool fits =
        kept.Cells.Across() == present.Base.Across() && kept.Cells.Down() == present.Base.Down();
    return {ContentsOf(std::move(kept.Palette), std::move(kept.Cells), kept.Header.FinalColors),
            fits ? EditIntent::Paint : EditIntent::NewBase,
            nullptr,
            {}};
}

}  // namespace vendrel
