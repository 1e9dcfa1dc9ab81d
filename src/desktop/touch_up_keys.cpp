#include "desktop/touch_up_keys.h"

#include <QShortcut>
#include <utility>

namespace vendrel {
namespace {

void AddKey(QWidget& window, const QKeySequence& keys, const std::function<void()>& work) {
    QObject::connect(new QShortcut(keys, &window), &QShortcut::activated, &window, work);
}

void ChangeBrush(TouchUpForm& form, int by) {
    form.BrushSize_Click(form.Controls().Brush.Size + by);
}

void MoveChosenPaint(TouchUpForm& form, int by) {
    const int paint = form.Controls().Brush.Paint;
    if (form.Controls().Order == PaintOrder::Symbol) {
        form.MovePaint_Click(paint, paint + by);
    }
}

}  // namespace

void AddTouchUpKeys(QWidget& window, TouchUpToolBar& tools, const EditorWork& work) {
    const std::pair<QKeySequence, const char*> takes[] = {
        {Qt::Key_1, "Brush1"}, {Qt::Key_2, "Brush2"},    {Qt::Key_3, "Brush3"},
        {Qt::Key_F, "Fill"},   {Qt::Key_R, "Replace"},   {Qt::Key_V, "Select"},
        {Qt::Key_L, "Lasso"},  {Qt::Key_W, "SamePaint"}, {Qt::SHIFT | Qt::Key_W, "SameArea"},
        {Qt::Key_M, "Move"},
    };
    for (const auto& [keys, tool] : takes) {
        AddKey(window, keys, [&tools, tool = tool] { tools.Take(tool); });
    }
    const std::pair<QKeySequence, std::function<void(TouchUpForm&)>> works[] = {
        {Qt::CTRL | Qt::Key_Z, &TouchUpForm::Undo_Click},
        {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, &TouchUpForm::Redo_Click},
        {Qt::CTRL | Qt::Key_Y, &TouchUpForm::Redo_Click},
        {Qt::CTRL | Qt::Key_S, &TouchUpForm::SaveKit_Click},
        {Qt::CTRL | Qt::SHIFT | Qt::Key_S, &TouchUpForm::SaveIt_Click},
        {Qt::Key_X, &TouchUpForm::SwapPaints_Click},
        {Qt::Key_B, [](TouchUpForm& form) { form.Tool_Click(TouchUpTool::Brush); }},
        {Qt::Key_Q, &TouchUpForm::BrushShape_Click},
        {Qt::Key_BracketLeft, [](TouchUpForm& form) { ChangeBrush(form, -1); }},
        {Qt::Key_BracketRight, [](TouchUpForm& form) { ChangeBrush(form, 1); }},
        {Qt::Key_A, &TouchUpForm::Alone_Click},
        {Qt::Key_O, &TouchUpForm::Outlines_Click},
        {Qt::Key_E, &TouchUpForm::ShowEdits_Click},
        {Qt::CTRL | Qt::Key_A, &TouchUpForm::SelectAll_Click},
        {Qt::CTRL | Qt::Key_D, &TouchUpForm::SelectNone_Click},
        {Qt::CTRL | Qt::Key_I, &TouchUpForm::InvertSelection_Click},
        {Qt::Key_G, &TouchUpForm::GrowSelection_Click},
        {Qt::SHIFT | Qt::Key_G, &TouchUpForm::ShrinkSelection_Click},
        {Qt::SHIFT | Qt::Key_F, &TouchUpForm::FillSelection_Click},
        {Qt::Key_Delete, &TouchUpForm::EraseSelection_Click},
        {Qt::Key_H, &TouchUpForm::MirrorAcross_Click},
        {Qt::SHIFT | Qt::Key_H, &TouchUpForm::MirrorDown_Click},
        {Qt::ALT | Qt::Key_Up, [](TouchUpForm& form) { MoveChosenPaint(form, -1); }},
        {Qt::ALT | Qt::Key_Down, [](TouchUpForm& form) { MoveChosenPaint(form, 1); }},
    };
    for (const auto& [keys, handler] : works) {
        AddKey(window, keys, [work, handler = handler] { work(handler); });
    }
    const std::pair<QKeySequence, QAbstractButton*> clicks[] = {
        {Qt::Key_Plus, tools.ZoomIn}, {Qt::Key_Equal, tools.ZoomIn}, {Qt::Key_Minus, tools.ZoomOut},
        {Qt::Key_0, tools.Fit},       {Qt::Key_9, tools.ActualSize},
    };
    for (const auto& [keys, button] : clicks) {
        AddKey(window, keys, [button = button] { button->click(); });
    }
}

}  // namespace vendrel
