#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "touchup/cell_patch.h"
#include "touchup/touch_up.h"

namespace vendrel {

/// How the pointer chooses stipples.
enum class SelectBy { Box, Lasso, Paint, Area };

/// Stipples that were lifted or pasted and are not put down yet.
struct FloatingPatch {
    CellPatch Patch;
    CellPos Corner;
    CellSet Source;  // where they were lifted from, and leave a hole; empty for copies
};

/// The editor's selection: while there is one, all tools keep within it.
class TouchUpSelection {
  public:
    explicit TouchUpSelection(TouchUp& editor) : editor_(editor) { Select(Nothing()); }

    [[nodiscard]] const CellSet& Cells() const { return cells_; }
    [[nodiscard]] bool Any() const { return !cells_.Empty(); }
    [[nodiscard]] const FloatingPatch* Floating() const {
        return floating_ ? &*floating_ : nullptr;
    }
    /// "212 stipples selected".
    [[nodiscard]] std::string Text() const;

    // The pointer: choosing, or moving what is selected or floats. Each answers what it changed on
    // the sheet.
    void BeginChoosing(SelectBy by, CellPos at, Joining how);
    /// False where nothing lies there to be moved. `leaveCopy`: without a hole.
    [[nodiscard]] bool BeginMoving(CellPos at, bool leaveCopy);
    void DragTo(CellPos at);
    CellRect EndDrag();
    [[nodiscard]] bool Dragging() const { return drag_ != Drag::None; }
    [[nodiscard]] bool FloatsAt(CellPos at) const;

    void SelectAll();
    void SelectNone() { Select(Nothing()); }
    void Invert() { Select(Inverted(cells_)); }
    void Grow() { Select(Grown(cells_)); }
    void Shrink() { Select(Shrunk(cells_)); }
    CellRect Fill(int paint);
    CellRect Erase();
    CellRect Mirror(MirrorWay way);
    CellRect Nudge(CellPos by);

    /// As text; empty when nothing is selected.
    [[nodiscard]] std::string Copy() const;
    /// Floats round that stipple until it is put down. Throws FormatError for a text that is no
    /// patch.
    void Paste(std::string_view text, CellPos middle);
    /// What floats becomes a step, its paints joining the palette as far as there is room.
    CellRect PutDown();
    /// Gives up what floats, or else the selection. False when there is neither.
    bool Drop();
    /// The sheet was replaced: one of another size has no selection.
    void Follow();

  private:
    enum class Drag { None, Choose, Move };

    [[nodiscard]] CellSet Nothing() const;
    [[nodiscard]] CellSet ChosenTo(CellPos at) const;
    void Select(CellSet cells);
    /// A step that the selection does not bound.
    CellRect EditFreely(const std::string& name, const std::function<void(EditPen&)>& work);

    TouchUp& editor_;
    CellSet cells_;
    std::optional<FloatingPatch> floating_;
    Drag drag_ = Drag::None;
    SelectBy by_ = SelectBy::Box;
    Joining how_ = Joining::Instead;
    CellSet before_;             // the choosing
    std::vector<CellPos> line_;  // of the pointer
};

}  // namespace vendrel
