#include "edits/paint_index.h"

namespace vendrel {
namespace {

std::pair<PaintId, Color> KeyOf(const PaintColor& paint) {
    PaintId id = IdOf(paint);
    const Color color = id.Named() ? kBlack : ColorOf(paint);
    return {std::move(id), color};
}

}  // namespace

PaintIndex::PaintIndex(const PaintList& paints) {
    for (const PaintColor& paint : paints) {
        Add(paint);
    }
}

int PaintIndex::Find(const PaintColor& paint) const {
    const auto found = numbers_.find(KeyOf(paint));
    return found == numbers_.end() ? 0 : found->second;
}

void PaintIndex::Add(const PaintColor& paint) {
    numbers_.try_emplace(KeyOf(paint), ++count_);
}

}  // namespace vendrel
