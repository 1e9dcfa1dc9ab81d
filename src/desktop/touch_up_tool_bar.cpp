#include "desktop/touch_up_tool_bar.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include "desktop/paint_items.h"
#include "desktop/text.h"

namespace vendrel {
namespace {

/// A tool: what it is called, what its key is.
struct ToolLook {
    const char* Name;
    const char* Caption;
    const char* Hint;
    TouchUpTool Tool;
    int Size = 0;  // of a brush that is a tool of its own
};

constexpr std::array<ToolLook, 10> kTools = {{
    {"Brush1", "1", "Brush of one stipple (1); B takes the brush as it was", TouchUpTool::Brush, 1},
    {"Brush2", "2", "Brush of two by two stipples (2)", TouchUpTool::Brush, 2},
    {"Brush3", "3", "Brush of three by three stipples (3)", TouchUpTool::Brush, 3},
    {"Fill", "Fill", "Fill an area with the chosen paint (F)", TouchUpTool::Fill},
    {"Replace", "Replace", "Replace a paint everywhere by the chosen one (R)",
     TouchUpTool::Replace},
    {"Select", "Box", "Select a rectangle (V); Shift adds, Ctrl+Shift takes away",
     TouchUpTool::Box},
    {"Lasso", "Lasso", "Select by a line around (L); Shift adds, Ctrl+Shift takes away",
     TouchUpTool::Lasso},
    {"SamePaint", "Same Paint",
     "Select all stipples of one paint (W); Shift adds, Ctrl+Shift takes away",
     TouchUpTool::SamePaint},
    {"SameArea", "Same Area", "Select an area (Shift+W); Shift adds, Ctrl+Shift takes away",
     TouchUpTool::SameArea},
    {"Move", "Move", "Move the selection (M); with Shift a copy of it", TouchUpTool::Move},
}};

// Some styles hardly show which button is down, dark ones above all.
void MirrorTool(QToolButton& button, bool inHand) {
    button.setChecked(inHand);
    QPalette look;
    if (inHand) {
        look.setBrush(QPalette::Button, look.highlight());
        look.setBrush(QPalette::ButtonText, look.highlightedText());
    }
    button.setPalette(look);
}

}  // namespace

TouchUpToolBar::TouchUpToolBar(EditorWork work, QWidget* parent)
    : QWidget(parent),
      Undo(EditorButton("Undo", tr("Undo"), tr("Undo (Ctrl+Z)"), work, &TouchUpForm::Undo_Click)),
      Redo(EditorButton("Redo", tr("Redo"), tr("Redo (Ctrl+Shift+Z)"), work,
                        &TouchUpForm::Redo_Click)),
      ZoomIn(EditorButton<QToolButton>("ZoomIn", QStringLiteral("+"), tr("Zoom in (+)"))),
      ZoomOut(
          EditorButton<QToolButton>("ZoomOut", QStringLiteral("\u2212"), tr("Zoom out (\u2212)"))),
      Fit(EditorButton<QToolButton>("Fit", tr("Fit"), tr("Show the whole picture (0)"))),
      ActualSize(EditorButton<QToolButton>("ActualSize", QStringLiteral("1:1"),
                                           tr("The photo's own size (9)"))),
      work_(std::move(work)),
      size_(Named<QSpinBox>("BrushSize", tr("Brush size in stipples"))),
      round_(EditorButton("BrushRound", tr("Round"), tr("Round brush (Q)"), work_,
                          &TouchUpForm::BrushShape_Click)),
      swap_(EditorButton("SwapPaints", {}, {}, work_, &TouchUpForm::SwapPaints_Click)),
      zoom_(new ValueLabel("Zoom", tr("Zoom"))) {
    rows_ = new QBoxLayout(QBoxLayout::LeftToRight, this);
    rows_->setContentsMargins(0, 0, 0, 0);
    for (QHBoxLayout*& half : halves_) {
        half = new QHBoxLayout;
        half->setSpacing(3);
        rows_->addLayout(half);
    }
    rows_->setStretch(1, 1);
    AddTools();
    AddSteps();
    AddZoom();
}

void TouchUpToolBar::AddTools() {
    swap_->setIconSize({40, 20});
    halves_[0]->addWidget(swap_);
    halves_[0]->addWidget(new QLabel(tr("Brush")));
    halves_[1]->addWidget(new QLabel(tr("Select")));
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        tools_.push_back(
            EditorButton<QToolButton>(kTools[i].Name, tr(kTools[i].Caption), tr(kTools[i].Hint)));
        tools_[i]->setCheckable(true);
        connect(tools_[i], &QToolButton::clicked, this, [this, i] { Use(i); });
        if (kTools[i].Tool == TouchUpTool::Fill) {
            AddBrush();
        }
        halves_[kTools[i].Tool >= TouchUpTool::Box ? 1 : 0]->addWidget(tools_[i]);
    }
}

// As wide as the longest of the steps' names, so that nothing moves with each of them.
void TouchUpToolBar::AddSteps() {
    halves_[0]->addSpacing(8);
    for (QToolButton* button : {Undo, Redo}) {
        button->setMinimumWidth(
            button->fontMetrics().horizontalAdvance(QStringLiteral("Undo Erase Selection")) + 12);
        halves_[0]->addWidget(button);
    }
    halves_[0]->addStretch(1);
}

void TouchUpToolBar::AddZoom() {
    zoom_->setMinimumWidth(
        zoom_->fontMetrics().horizontalAdvance(QStringLiteral("24.0 pixels a stipple ")));
    zoom_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    halves_[1]->addStretch(1);
    for (QWidget* widget : {static_cast<QWidget*>(zoom_), static_cast<QWidget*>(ZoomOut),
                            static_cast<QWidget*>(ZoomIn), static_cast<QWidget*>(Fit),
                            static_cast<QWidget*>(ActualSize)}) {
        halves_[1]->addWidget(widget);
    }
}

QSize TouchUpToolBar::minimumSizeHint() const {
    return {std::max(halves_[0]->minimumSize().width(), halves_[1]->minimumSize().width()),
            rows_->minimumSize().height()};
}

// One row where there is room, else two.
void TouchUpToolBar::resizeEvent(QResizeEvent* event) {
    const int needed = halves_[0]->sizeHint().width() + halves_[1]->sizeHint().width() + 12;
    rows_->setDirection(width() >= needed ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    QWidget::resizeEvent(event);
}

void TouchUpToolBar::AddBrush() {
    size_->setRange(1, kLargestBrush);
    size_->setToolTip(tr("Brush size ([ and ])"));
    size_->setFocusPolicy(Qt::ClickFocus);
    connect(size_, &QSpinBox::valueChanged, this,
            [this](int size) { work_([size](TouchUpForm& form) { form.BrushSize_Click(size); }); });
    // With the keyboard it would keep the keys of tools for itself; while a number is typed it may.
    const auto* const typed = size_->findChild<QLineEdit*>();
    connect(typed, &QLineEdit::returnPressed, this, &TouchUpToolBar::Sized);
    connect(size_, &QSpinBox::valueChanged, this, [this, typed] {
        if (!typed->isModified()) {
            emit Sized();
        }
    });
    round_->setCheckable(true);
    halves_[0]->addWidget(size_);
    halves_[0]->addWidget(round_);
    halves_[0]->addSpacing(8);
}

void TouchUpToolBar::Use(std::size_t tool) {
    const ToolLook& look = kTools.at(tool);
    work_([&look](TouchUpForm& form) {
        if (look.Size > 0) {
            form.BrushSize_Click(look.Size);
        } else {
            form.Tool_Click(look.Tool);
        }
    });
}

void TouchUpToolBar::Take(const char* tool) {
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        if (std::strcmp(kTools[i].Name, tool) == 0) {
            Use(i);
        }
    }
}

void TouchUpToolBar::Mirror(const TouchUpControls& shown) {
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        MirrorTool(*tools_[i], kTools[i].Tool == shown.Tool &&
                                   (kTools[i].Size == 0 || kTools[i].Size == shown.Brush.Size));
    }
    MirrorPaints(shown);
    const QSignalBlocker quiet(size_);
    size_->setValue(shown.Brush.Size);
    MirrorTool(*round_, shown.Brush.Round);
    Undo->setText(Text(shown.UndoCaption));
    Redo->setText(Text(shown.RedoCaption));
    Undo->setEnabled(shown.UndoEnabled);
    Redo->setEnabled(shown.RedoEnabled);
}

// Whatever panel shows: what the tools paint with, and what X would bring.
void TouchUpToolBar::MirrorPaints(const TouchUpControls& shown) {
    const OneBased<TouchUpPaint>& paints = shown.Palette;
    if (!paints.Holds(shown.Brush.Paint) || !paints.Holds(shown.PaintBefore)) {
        return;
    }
    const TouchUpPaint& now = paints[shown.Brush.Paint];
    const TouchUpPaint& before = paints[shown.PaintBefore];
    const QString hint = tr("%1 in hand; %2 before (X)").arg(Text(now.Label), Text(before.Label));
    if (swap_->toolTip() != hint) {
        swap_->setToolTip(hint);
        swap_->setAccessibleName(hint);
        swap_->setIcon(SwatchIcon(now.Swatch, before.Swatch));
    }
}

void TouchUpToolBar::ShowZoom(double edge) {
    zoom_->Show(edge == static_cast<int>(edge)
                    ? tr("%1 pixels a stipple").arg(static_cast<int>(edge))
                    : tr("%1 pixels a stipple").arg(edge, 0, 'f', 1));
}

}  // namespace vendrel
