#include "touchup/edit_history.h"

#include <algorithm>
#include <utility>

namespace vendrel {
namespace {

// Swapping takes a load back and brings it again. The smaller of the two sheets leaves a margin on
// screen, so the larger one is what changed.
CellRect Swap(EditSheet& sheet, SheetContents& contents) {
    const CellRect before = sheet.Bounds();
    sheet.Exchange(contents);
    const CellRect after = sheet.Bounds();
    return {1, 1, std::max(before.Right, after.Right), std::max(before.Bottom, after.Bottom)};
}

}  // namespace

void EditHistory::Push(EditStep step) {
    steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(done_), steps_.end());
    step.Id = ++lastId_;
    steps_.push_back(std::move(step));
    done_ = steps_.size();
}

std::string EditHistory::UndoName() const {
    return CanUndo() ? steps_[done_ - 1].Name : std::string();
}

std::string EditHistory::RedoName() const {
    return CanRedo() ? steps_[done_].Name : std::string();
}

std::vector<std::string> EditHistory::Names() const {
    std::vector<std::string> names;
    names.reserve(steps_.size());
    for (const EditStep& step : steps_) {
        names.push_back(step.Name);
    }
    return names;
}

bool EditHistory::IsDone(int id) const {
    return std::any_of(steps_.begin(), steps_.begin() + static_cast<std::ptrdiff_t>(done_),
                       [id](const EditStep& step) { return step.Id == id; });
}

CellRect EditHistory::Undo(EditSheet& sheet) {
    if (!CanUndo()) {
        return {};
    }
    auto& what = steps_[--done_].What;
    if (const auto* changes = std::get_if<std::vector<CellChange>>(&what)) {
        return UndoChanges(sheet, *changes);
    }
    return Swap(sheet, std::get<SheetContents>(what));
}

CellRect EditHistory::Redo(EditSheet& sheet) {
    if (!CanRedo()) {
        return {};
    }
    auto& what = steps_[done_++].What;
    if (const auto* changes = std::get_if<std::vector<CellChange>>(&what)) {
        return DoChanges(sheet, *changes);
    }
    return Swap(sheet, std::get<SheetContents>(what));
}

}  // namespace vendrel
