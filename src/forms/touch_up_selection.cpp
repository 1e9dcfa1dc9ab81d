#include "forms/touch_up_selection.h"

#include <utility>

#include "forms/counted.h"
#include "touchup/selecting.h"

namespace vendrel {

CellSet TouchUpSelection::Nothing() const {
    return {editor_.Sheet().Across(), editor_.Sheet().Down()};
}

void TouchUpSelection::Select(CellSet cells) {
    cells_ = std::move(cells);
    editor_.KeepWithin(Any() ? std::make_shared<const CellSet>(cells_) : nullptr);
}

std::string TouchUpSelection::Text() const {
    if (floating_) {
        return "Drag the stipples where they belong; Enter puts them down";
    }
    return Any() ? Counted(cells_.Count(), "stipple selected", "stipples selected") : "";
}

void TouchUpSelection::BeginChoosing(SelectBy by, CellPos at, Joining how) {
    drag_ = Drag::Choose;
    by_ = by;
    how_ = how;
    before_ = cells_;
    line_ = {at};
    cells_ = Join(before_, ChosenTo(at), how_);
}

CellSet TouchUpSelection::ChosenTo(CellPos at) const {
    switch (by_) {
        case SelectBy::Lasso:
            return CellsInside(editor_.Sheet(), line_);
        case SelectBy::Paint:
            return CellsLike(editor_.Sheet(), at);
        case SelectBy::Area:
            return AreaAround(editor_.Sheet(), at);
        default:
            return CellsBetween(editor_.Sheet(), line_.front(), at);
    }
}

bool TouchUpSelection::FloatsAt(CellPos at) const {
    return floating_ && at.X >= floating_->Corner.X && at.Y >= floating_->Corner.Y &&
           at.X < floating_->Corner.X + floating_->Patch.Cells.Across() &&
           at.Y < floating_->Corner.Y + floating_->Patch.Cells.Down();
}

bool TouchUpSelection::BeginMoving(CellPos at, bool leaveCopy) {
    if (!floating_ && cells_.Has(at)) {
        const CellRect bounds = cells_.Bounds();
        floating_ = {CutPatch(editor_.Sheet(), cells_),
                     {bounds.Left, bounds.Top},
                     leaveCopy ? Nothing() : cells_};
    } else if (!FloatsAt(at)) {
        return false;
    }
    drag_ = Drag::Move;
    line_ = {at};
    return true;
}

void TouchUpSelection::DragTo(CellPos at) {
    if (drag_ == Drag::Move) {
        const CellPos from = std::exchange(line_.back(), at);
        floating_->Corner.X += at.X - from.X;
        floating_->Corner.Y += at.Y - from.Y;
    } else if (drag_ == Drag::Choose) {
        line_.push_back(at);
        cells_ = Join(before_, ChosenTo(at), how_);
    }
}

CellRect TouchUpSelection::EndDrag() {
    const Drag drag = std::exchange(drag_, Drag::None);
    if (drag == Drag::Choose) {
        // A mere click with a box or lasso lets go of what was selected.
        const bool clicked = line_.size() == 1 && how_ == Joining::Instead &&
                             (by_ == SelectBy::Box || by_ == SelectBy::Lasso);
        Select(clicked ? Nothing() : std::exchange(cells_, {}));
    }
    // What was pasted floats on, to be dragged again; what was lifted has arrived.
    return drag == Drag::Move && Any() ? PutDown() : CellRect{};
}

void TouchUpSelection::SelectAll() {
    Select(Inverted(Nothing()));
}

CellRect TouchUpSelection::EditFreely(const std::string& name,
                                      const std::function<void(EditPen&)>& work) {
    editor_.KeepWithin(nullptr);
    return editor_.Edit(name, EditIntent::Paint, work);
}

CellRect TouchUpSelection::Fill(int paint) {
    return editor_.Edit("Fill Selection", EditIntent::Paint, [&](EditPen& pen) {
        for (const CellPos& at : cells_.Cells()) {
            pen.Paint(at, paint);
        }
    });
}

CellRect TouchUpSelection::Erase() {
    return editor_.Erase(cells_.Cells(), "Erase Selection");
}

CellRect TouchUpSelection::Mirror(MirrorWay way) {
    if (floating_) {
        floating_->Patch = Mirrored(floating_->Patch, way);
        return {};
    }
    if (!Any()) {
        return {};
    }
    const CellRect bounds = cells_.Bounds();
    const CellPos corner{bounds.Left, bounds.Top};
    const CellPatch patch = Mirrored(CutPatch(editor_.Sheet(), cells_), way);
    const CellRect dirty = EditFreely("Mirror", [&](EditPen& pen) {
        CloseHole(pen, cells_);
        PlacePatch(pen, patch, corner);
    });
    Select(CellsOf(patch, corner, editor_.Sheet()));
    return dirty;
}

CellRect TouchUpSelection::Nudge(CellPos by) {
    if (floating_) {
        floating_->Corner.X += by.X;
        floating_->Corner.Y += by.Y;
        return {};
    }
    const CellRect bounds = cells_.Bounds();
    if (!Any() || !BeginMoving(cells_.Cells().front(), false)) {
        return {};
    }
    drag_ = Drag::None;
    floating_->Corner = {bounds.Left + by.X, bounds.Top + by.Y};
    return PutDown();
}

std::string TouchUpSelection::Copy() const {
    return Any() ? PatchText(CutPatch(editor_.Sheet(), cells_)) : "";
}

void TouchUpSelection::Paste(std::string_view text, CellPos middle) {
    CellPatch patch = ReadPatch(text);
    SelectNone();
    const CellPos corner{middle.X - patch.Cells.Across() / 2, middle.Y - patch.Cells.Down() / 2};
    floating_ = {std::move(patch), corner, Nothing()};
}

CellRect TouchUpSelection::PutDown() {
    if (!floating_) {
        return {};
    }
    drag_ = Drag::None;
    const FloatingPatch floating = *std::exchange(floating_, std::nullopt);
    const char* name = !Any() ? "Paste" : floating.Source.Empty() ? "Copy" : "Move";
    const PaintList fresh = MissingPaints(editor_.Sheet().Paints(), floating.Patch);
    CellRect dirty;
    if (!fresh.Empty()) {
        editor_.ChangePalette("Add Paints", EditIntent::Paint, WithPaints(editor_.Sheet(), fresh));
        dirty = editor_.Sheet().Bounds();
    }
    const CellRect painted = EditFreely(name, [&](EditPen& pen) {
        CloseHole(pen, floating.Source);
        PlacePatch(pen, floating.Patch, floating.Corner);
    });
    Select(CellsOf(floating.Patch, floating.Corner, editor_.Sheet()));
    return dirty.Empty() ? painted : dirty;
}

bool TouchUpSelection::Drop() {
    drag_ = Drag::None;
    if (floating_) {
        floating_.reset();
        return true;
    }
    const bool had = Any();
    SelectNone();
    return had;
}

void TouchUpSelection::Follow() {
    const EditSheet& sheet = editor_.Sheet();
    if (cells_.Across() != sheet.Across() || cells_.Down() != sheet.Down()) {
        floating_.reset();
        drag_ = Drag::None;
        SelectNone();
    }
}

}  // namespace vendrel
