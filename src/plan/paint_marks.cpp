#include "plan/paint_marks.h"

#include <algorithm>

#include "shelf/labels.h"

namespace vendrel {

OwnLabels LabelsOnShelf(const Shelf& shelf) {
    OwnLabels labels;
    for (const ShelfPaint& paint : shelf.Paints) {
        if (!paint.Label.empty()) {
            labels[IdOf(paint)] = {paint.Label, false};
        }
    }
    return labels;
}

std::vector<OwnLabel> LabelsFor(const OwnLabels& known, const PaintList& palette) {
    std::vector<std::string> taken;
    for (const auto& [paint, label] : known) {
        taken.push_back(label.Text);
    }
    std::vector<OwnLabel> labels;
    for (const PaintColor& paint : palette) {
        const auto found = IdOf(paint).Named() ? known.find(IdOf(paint)) : known.end();
        // Of two entries that are one paint the first is the pot's.
        if (found != known.end() && std::ranges::find(labels, found->second) == labels.end()) {
            labels.push_back(found->second);
        } else {
            labels.push_back({NextFreeLabel(taken), true});
            taken.push_back(labels.back().Text);
        }
    }
    return labels;
}

PaintMarks MarksFor(SymbolStyle style, const OwnLabels& known, const PaintList& palette) {
    PaintMarks marks{style, palette.Count()};
    if (style == SymbolStyle::Mine) {
        marks.Labels = LabelsFor(known, palette);
    }
    return marks;
}

}  // namespace vendrel
