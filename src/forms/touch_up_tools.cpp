// The editor's pointer, brush, steps, areas, selection and paints: what its tools do with a hand.

#include <algorithm>
#include <utility>

#include "edits/lay_edits.h"
#include "edits/paint_index.h"
#include "forms/touch_up_form.h"
#include "shell/paint_id.h"

namespace vendrel {
namespace {

Joining JoiningBy(PressKeys keys) {
    return keys.Alt || (keys.Ctrl && keys.Shift) ? Joining::Subtract
           : keys.Shift                          ? Joining::Add
                                                 : Joining::Instead;
}

}  // namespace

void TouchUpForm::Tool_Click(TouchUpTool tool) {
    controls_.Tool = tool;
}

void TouchUpForm::BrushSize_Click(int size) {
    controls_.Brush.Size = std::clamp(size, 1, kLargestBrush);
    controls_.Tool = TouchUpTool::Brush;
}

void TouchUpForm::BrushShape_Click() {
    controls_.Brush.Round = !controls_.Brush.Round;
    controls_.Tool = TouchUpTool::Brush;
}

void TouchUpForm::PaintList_Click(int paint) {
    if (Sheet().HoldsPaint(paint) && paint != controls_.Brush.Paint) {
        controls_.PaintBefore = std::exchange(controls_.Brush.Paint, paint);
        MarkAgain();
        FollowChosenPaint();
        TouchedAlone();
    }
}

void TouchUpForm::SwapPaints_Click() {
    PaintList_Click(controls_.PaintBefore);
}

void TouchUpForm::PointerDown(CellPos at, PressKeys keys) {
    controls_.Status.clear();
    if (selection_->FloatsAt(at) && !keys.Right) {
        (void)selection_->BeginMoving(at, false);
        return;
    }
    Touched(selection_->PutDown());
    const bool subtracts = keys.Ctrl && keys.Shift;
    if ((keys.Ctrl && !subtracts) || (keys.Right && !keys.Shift)) {
        PickPaint(at);
    } else {
        Press(at, keys);
    }
    FollowPalette();
}

void TouchUpForm::Press(CellPos at, PressKeys keys) {
    if (keys.Right) {
        Touched(editor_->BeginErasing(at, controls_.Brush));
        return;
    }
    const Joining how = JoiningBy(keys);
    switch (controls_.Tool) {
        case TouchUpTool::Brush:
            return PressBrush(at, keys);
        case TouchUpTool::Fill:
            return Touched(editor_->Fill(at, controls_.Brush.Paint));
        case TouchUpTool::Replace:
            if (Sheet().Holds(at)) {
                Touched(editor_->Replace(Sheet().PaintAt(at), controls_.Brush.Paint));
            }
            return;
        case TouchUpTool::Box:
            return selection_->BeginChoosing(SelectBy::Box, at, how);
        case TouchUpTool::Lasso:
            return selection_->BeginChoosing(SelectBy::Lasso, at, how);
        case TouchUpTool::SamePaint:
            return selection_->BeginChoosing(SelectBy::Paint, at, how);
        case TouchUpTool::SameArea:
            return selection_->BeginChoosing(SelectBy::Area, at, how);
        case TouchUpTool::Move:
            if (!selection_->BeginMoving(at, keys.Alt || keys.Shift)) {
                controls_.Status = "Select the stipples to be moved first (V).";
            }
            return;
    }
}

void TouchUpForm::PressBrush(CellPos at, PressKeys keys) {
    if (keys.Shift && lineFrom_) {
        Touched(editor_->Edit("Line", EditIntent::Paint, [&](EditPen& pen) {
            DrawStroke(pen, *lineFrom_, at, controls_.Brush);
        }));
    } else {
        Touched(editor_->BeginStroke(at, controls_.Brush));
    }
    lineFrom_ = at;
}

void TouchUpForm::PointerTo(CellPos at) {
    if (selection_->Dragging()) {
        selection_->DragTo(at);
        return;
    }
    const CellRect dirty = editor_->StrokeTo(at);
    if (editor_->Drawing()) {
        lineFrom_ = at;
    }
    if (!dirty.Empty()) {
        Touched(dirty);
        FollowPalette();
    }
}

void TouchUpForm::PointerUp() {
    editor_->EndStroke();
    Touched(selection_->EndDrag());
    FollowSteps();
    figuresStale_ = true;
}

// What was pasted and floats is the last that was done.
void TouchUpForm::Undo_Click() {
    if (selection_->Floating() != nullptr) {
        (void)Escape_Click();
        return;
    }
    controls_.Status = editor_->CanUndo() ? "Undone: " + editor_->UndoName() : "";
    KeepPaintInHand([this] { Touched(editor_->Undo()); });
    Follow();
}

void TouchUpForm::Redo_Click() {
    controls_.Status = editor_->CanRedo() ? "Done again: " + editor_->RedoName() : "";
    KeepPaintInHand([this] { Touched(editor_->Redo()); });
    Follow();
}

void TouchUpForm::Step_Click(int done) {
    controls_.Status.clear();
    KeepPaintInHand([this, done] { Touched(editor_->GoToStep(done)); });
    Follow();
}

void TouchUpForm::KeepPaintInHand(const std::function<void()>& step) {
    const PaintColor inHand = Sheet().Paints()[controls_.Brush.Paint];
    const PaintColor before = Sheet().Paints()[controls_.PaintBefore];
    step();
    const PaintList& paints = Sheet().Paints();
    const auto follow = [&paints](int& at, const PaintColor& paint) {
        if (!paints.Holds(at) || !SamePaint(paints[at], paint)) {
            at = std::max(1, PaintIndex(paints).Find(paint));
        }
    };
    follow(controls_.Brush.Paint, inHand);
    follow(controls_.PaintBefore, before);
}

void TouchUpForm::Do(const std::function<CellRect()>& step) {
    controls_.Status.clear();
    Touched(step());
    Follow();
}

void TouchUpForm::MergeBelow_Change(int below, AreaUnit unit) {
    areas_->SetBelow(below, unit);
}

void TouchUpForm::MergePreview_Click() {
    areas_->TogglePreview();
}

void TouchUpForm::MergeAreas_Click() {
    Do([this] { return areas_->Merge(); });
}

void TouchUpForm::Outlines_Click() {
    areas_->ToggleOutlines();
}

void TouchUpForm::MarkHard_Click() {
    areas_->ToggleHard();
}

std::optional<CellPos> TouchUpForm::NextHard_Click() {
    return areas_->NextHard();
}

void TouchUpForm::Reselect(const std::function<void()>& step) {
    Do([&] {
        const CellRect dirty = selection_->PutDown();
        step();
        return dirty;
    });
}

void TouchUpForm::SelectAll_Click() {
    Reselect([this] { selection_->SelectAll(); });
}

void TouchUpForm::SelectNone_Click() {
    Reselect([this] { selection_->SelectNone(); });
}

void TouchUpForm::InvertSelection_Click() {
    Reselect([this] { selection_->Invert(); });
}

void TouchUpForm::GrowSelection_Click() {
    Reselect([this] { selection_->Grow(); });
}

void TouchUpForm::ShrinkSelection_Click() {
    Reselect([this] { selection_->Shrink(); });
}

void TouchUpForm::FillSelection_Click() {
    Touched(selection_->PutDown());
    Do([this] { return selection_->Fill(controls_.Brush.Paint); });
}

void TouchUpForm::EraseSelection_Click() {
    Touched(selection_->PutDown());
    Do([this] { return selection_->Erase(); });
}

void TouchUpForm::MirrorAcross_Click() {
    Do([this] { return selection_->Mirror(MirrorWay::LeftRight); });
}

void TouchUpForm::MirrorDown_Click() {
    Do([this] { return selection_->Mirror(MirrorWay::UpsideDown); });
}

void TouchUpForm::NudgeSelection_Click(CellPos by) {
    Do([&] { return selection_->Nudge(by); });
}

std::string TouchUpForm::Copy_Click() {
    controls_.Status =
        selection_->Any() ? "Copied." : "Select the stipples to be copied first (V).";
    return selection_->Copy();
}

void TouchUpForm::Paste_Click(std::string_view text, CellPos middle) {
    Touched(selection_->PutDown());
    selection_->Paste(text, middle);
    Follow();
    controls_.Status = controls_.Selected + ", Escape gives them up.";
}

void TouchUpForm::PutDown_Click() {
    Do([this] { return selection_->PutDown(); });
}

bool TouchUpForm::Escape_Click() {
    controls_.Status.clear();
    const bool dropped = selection_->Drop();
    Follow();
    return dropped;
}

void TouchUpForm::Alone_Click() {
    controls_.Alone = !controls_.Alone;
    Touched(Sheet().Bounds());
}

// Which stipples are paled hangs on the paint in hand.
void TouchUpForm::TouchedAlone() {
    if (controls_.Alone) {
        Touched(Sheet().Bounds());
    }
}

void TouchUpForm::PaintOrder_Click(PaintOrder order) {
    controls_.Order = order;
    FollowPalette();
}

std::vector<PaintColor> TouchUpForm::OfferPaints(const std::string& words) const {
    return vendrel::OfferPaints(place_.State->MasterColors, Sheet().Paints(), words,
                                Sheet().Paints()[controls_.Brush.Paint]);
}

void TouchUpForm::ChangePalette(const char* name, EditIntent intent, SheetContents sheet) {
    KeepPaintInHand([&] { editor_->ChangePalette(name, intent, std::move(sheet)); });
    Touched(Sheet().Bounds());
    controls_.Status.clear();
    Follow();
}

void TouchUpForm::AddPaint_Click(const PaintColor& paint) {
    if (controls_.AddEnabled && PaintIndex(Sheet().Paints()).Find(paint) == 0) {
        ChangePalette("Add Paint", EditIntent::Paint, WithPaints(Sheet(), {paint}));
        PaintList_Click(Sheet().PaintCount());
    }
}

void TouchUpForm::RemovePaint_Click() {
    if (!controls_.RemoveEnabled) {
        return;
    }
    const int paint = controls_.Brush.Paint;
    const PaintColor removed = Sheet().Paints()[paint];
    const PaintColor heir = Sheet().Paints()[StandInByEye(Sheet().Paints(), removed, paint)];
    ChangePalette("Remove Paint", EditIntent::Exchange, WithoutPaint(Sheet(), paint));
    PaintList_Click(PaintIndex(Sheet().Paints()).Find(heir));
    controls_.Status =
        removed.PaintName + " is left out; its stipples have " + heir.PaintName + " now.";
}

void TouchUpForm::MovePaint_Click(int from, int to) {
    if (Sheet().HoldsPaint(from) && Sheet().HoldsPaint(to) && from != to) {
        ChangePalette("Move Paint", EditIntent::Order, WithPaintMoved(Sheet(), from, to));
    }
}

}  // namespace vendrel
