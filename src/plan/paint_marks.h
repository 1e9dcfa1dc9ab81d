#pragma once

#include <map>
#include <string>
#include <vector>

#include "plan/symbol_style.h"
#include "shelf/shelf.h"
#include "shell/paint_id.h"
#include "shell/records.h"

namespace vendrel {

/// What stands for a paint of the painter's own, in this kit as in every other.
struct OwnLabel {
    std::string Text;
    bool IsNew = false;  // the paint is not on the shelf, and the pot is still to be labeled

    bool operator==(const OwnLabel&) const = default;
};
using OwnLabels = std::map<PaintId, OwnLabel>;

/// The labels of the shelf.
[[nodiscard]] OwnLabels LabelsOnShelf(const Shelf& shelf);

/// The label of each paint of a palette, from the first on: those known, and for others the next
/// free ones.
[[nodiscard]] std::vector<OwnLabel> LabelsFor(const OwnLabels& known, const PaintList& palette);

/// How the plan marks the paints of a palette.
struct PaintMarks {
    SymbolStyle Style = SymbolStyle::Letters;
    int Paints = 0;
    std::vector<OwnLabel> Labels{};  // of each paint, for SymbolStyle::Mine alone
};
[[nodiscard]] PaintMarks MarksFor(SymbolStyle style, const OwnLabels& known,
                                  const PaintList& palette);

}  // namespace vendrel
