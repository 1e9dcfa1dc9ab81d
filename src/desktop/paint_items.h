#pragma once

#include <QIcon>
#include <QListWidget>
#include <vector>

#include "shell/records.h"
#include "support/color.h"

namespace vendrel {

/// A line of a list that shows paints: one or two swatches and a text.
struct PaintItem {
    Color Swatch = kBlack;
    Color Second = kNoColor;  // beside the first, kNoColor for none
    QString Label;
    QString Spoken{};    // what is read out instead of the label, which leaves much to the swatches
    bool Owned = false;  // has a tick beside its swatch

    bool operator==(const PaintItem&) const = default;
};

/// Squares of paint, side by side when there are two.
[[nodiscard]] QIcon SwatchIcon(Color first, Color second = kNoColor);
/// A square of paint, and beside it a tick where the painter owns it.
[[nodiscard]] QIcon OwnedIcon(Color paint, bool owned, const QColor& ink);

/// Makes a list show `items` with `index` chosen (-1: none), without telling anybody. A list that
/// shows them already is left alone, so that it keeps its place, and so is what several lines of it
/// are chosen.
void MirrorPaints(QListWidget& list, const std::vector<PaintItem>& items, int index);

}  // namespace vendrel
