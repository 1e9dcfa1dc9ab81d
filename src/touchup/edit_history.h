#pragma once

#include <memory>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "shell/kit_edits.h"
#include "touchup/edit_pen.h"

namespace vendrel {

/// What a step asks for, beyond the paints that its stipples have now.
enum class EditIntent {
    Paint,      // these paints in these places
    Neighbors,  // what lies around these places
    Exchange,   // another paint wherever there is the one
    Erase,      // what the conversion gave these places
    Order,      // the paints in this order
    NewBase,    // a grid to go on from as if converted so
    Layer,      // the edits of its layer in place of all until then
};

/// One step that can be taken back: the stipples it repainted, or, for a load, the copies as they
/// were on the step's other side.
struct EditStep {
    std::string Name;
    std::variant<std::vector<CellChange>, SheetContents> What;
    EditIntent Intent = EditIntent::Paint;
    std::shared_ptr<const EditLayer> Layer{};
    int Id = 0;  // given by the history; no two steps of a session share one
};

/// The steps done and undone, without a limit.
class EditHistory {
  public:
    /// Appends a step that is done already. What could be redone until now is gone.
    void Push(EditStep step);

    [[nodiscard]] bool CanUndo() const { return done_ > 0; }
    [[nodiscard]] bool CanRedo() const { return done_ < steps_.size(); }
    /// Names of the steps that Undo and Redo would take; empty when there is none.
    [[nodiscard]] std::string UndoName() const;
    [[nodiscard]] std::string RedoName() const;
    /// Of all steps, the first one first; those from Done() on are undone.
    [[nodiscard]] std::vector<std::string> Names() const;
    [[nodiscard]] int Done() const { return static_cast<int>(done_); }
    /// Both do nothing when there is no such step; they answer what changed on the sheet.
    CellRect Undo(EditSheet& sheet);
    CellRect Redo(EditSheet& sheet);

    /// The steps done, the first one first.
    [[nodiscard]] std::span<const EditStep> DoneSteps() const { return {steps_.data(), done_}; }

    /// Whether the step of that Id is done and not undone or forgotten since.
    [[nodiscard]] bool IsDone(int id) const;

    /// Tells states of the sheet apart: the last step done, 0 before the first.
    [[nodiscard]] int StateId() const { return done_ == 0 ? 0 : steps_[done_ - 1].Id; }

  private:
    std::vector<EditStep> steps_;
    std::size_t done_ = 0;
    int lastId_ = 0;
};

}  // namespace vendrel
