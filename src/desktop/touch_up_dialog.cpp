#include "desktop/touch_up_dialog.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <chrono>

#include "desktop/named.h"
#include "desktop/text.h"

namespace vendrel {
namespace {

constexpr int kBlinkPause = 400;      // milliseconds
constexpr int kRecoveryPause = 1000;  // milliseconds
constexpr int kSideWidth = 330;
constexpr Qt::Key kPhotoKey = Qt::Key_P;

/// A tool: what it is called, what its key is.
struct ToolLook {
    const char* Name;
    const char* Caption;
    const char* Hint;
    TouchUpTool Tool;
    BrushSize Size;
};

constexpr std::array<ToolLook, 5> kTools = {{
    {"Brush1", "Brush 1", "Brush of one stipple (1)", TouchUpTool::Brush, BrushSize::One},
    {"Brush2", "Brush 2", "Brush of two by two stipples (2)", TouchUpTool::Brush, BrushSize::Two},
    {"Brush3", "Brush 3", "Brush of three by three stipples (3)", TouchUpTool::Brush,
     BrushSize::Three},
    {"Fill", "Fill", "Fill an area with the chosen paint (F)", TouchUpTool::Fill, BrushSize::One},
    {"Replace", "Replace", "Replace a paint everywhere by the chosen one (R)", TouchUpTool::Replace,
     BrushSize::One},
}};

QToolButton* Button(const char* name, const QString& caption, const QString& hint) {
    auto* button = Named<QToolButton>(name, hint);
    button->setText(caption);
    button->setToolTip(hint);
    // The keyboard stays with the picture when a tool is clicked.
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

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

TouchUpDialog::TouchUpDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place),
      canvas_(new TouchUpCanvas(form_)),
      undo_(Button("Undo", tr("Undo"), tr("Undo (Ctrl+Z)"))),
      redo_(Button("Redo", tr("Redo"), tr("Redo (Ctrl+Shift+Z)"))),
      zoomIn_(Button("ZoomIn", QStringLiteral("+"), tr("Zoom in (+)"))),
      zoomOut_(Button("ZoomOut", QStringLiteral("\u2212"), tr("Zoom out (\u2212)"))),
      fit_(Button("Fit", tr("Fit"), tr("Show the whole picture (0)"))),
      zoom_(new ValueLabel("Zoom", tr("Zoom"))),
      palette_(new PaintRows),
      tidy_(Named<QPushButton>("TidyPaints", tr("Tidy paints"))),
      blinkLoners_(Named<QCheckBox>("BlinkLoners", tr("Blink loners"))),
      blinkPaint_(Named<QCheckBox>("BlinkPaint", tr("Blink the chosen paint"))),
      nextLoner_(Named<QPushButton>("NextLoner", tr("Next loner"))),
      loners_(new ValueLabel("Loners", tr("Loners"))),
      lowerLevel_(Button("LowerLevel", QStringLiteral("\u2212"), tr("Lower the clean-up level"))),
      raiseLevel_(Button("RaiseLevel", QStringLiteral("+"), tr("Raise the clean-up level"))),
      cleanLevel_(new ValueLabel("CleanLevel", tr("Clean-up level"))),
      cleanPreview_(new ValueLabel("CleanPreview", tr("What a clean-up would do"))),
      cleanUp_(Named<QPushButton>("CleanUp", tr("Clean up"))),
      gridLines_(Named<QCheckBox>("GridLines", tr("Grid lines"))),
      symbols_(Named<QCheckBox>("Symbols", tr("Symbols"))),
      photo_(Named<QSlider>("PhotoStrength", tr("Strength of the photo"))),
      keptWork_(Named<QPushButton>("KeptWork", tr("Kept work"))),
      load_(Named<QPushButton>("LoadIt", tr("Load"))),
      save_(Named<QPushButton>("SaveIt", tr("Save"))),
      accept_(Named<QPushButton>("Accept", tr("Accept"))),
      cancel_(Named<QPushButton>("Cancel", tr("Cancel"))),
      pointed_(new ValueLabel("Pointed", tr("The stipple pointed at"))),
      status_(new ValueLabel("Status", tr("Status"))),
      kept_(new KeptWorkDialog(this)) {
    setWindowTitle(tr("Touch Up[*]"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    Arrange();
    Connect();
    ConnectCanvas();
    ConnectTimers();
    ConnectKeptWork();
    AddShortcuts();
    canvas_->setFocus();
    const QSize room = screen()->availableSize();
    resize(QSize(1500, 960).boundedTo(room - QSize(60, 70)));
}

void TouchUpDialog::Arrange() {
    canvas_->setObjectName(QStringLiteral("Canvas"));
    canvas_->setAccessibleName(tr("Stipples"));
    canvas_->setAccessibleDescription(
        tr("Arrow keys move, Enter uses the tool, I picks the paint, P shows the photo."));
    palette_->setObjectName(QStringLiteral("Palette"));
    palette_->setAccessibleName(tr("Paints"));
    auto* middle = new QHBoxLayout;
    middle->addWidget(canvas_, 1);
    middle->addWidget(MakeSide());
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(MakeToolRow());
    rows->addLayout(middle, 1);
    rows->addLayout(MakeButtons());
}

QLayout* TouchUpDialog::MakeToolRow() {
    auto* row = new QHBoxLayout;
    auto* group = new QButtonGroup(this);
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        tools_[i] = Button(kTools[i].Name, tr(kTools[i].Caption), tr(kTools[i].Hint));
        tools_[i]->setCheckable(true);
        group->addButton(tools_[i]);
        row->addWidget(tools_[i]);
    }
    row->addSpacing(16);
    row->addWidget(undo_);
    row->addWidget(redo_);
    row->addStretch(1);
    zoom_->setMinimumWidth(zoom_->fontMetrics().horizontalAdvance(QStringLiteral("24.0 pixels ")));
    zoom_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QWidget* widget : {static_cast<QWidget*>(zoom_), static_cast<QWidget*>(zoomOut_),
                            static_cast<QWidget*>(zoomIn_), static_cast<QWidget*>(fit_)}) {
        row->addWidget(widget);
    }
    return row;
}

QWidget* TouchUpDialog::MakeSide() {
    auto* side = new QWidget;
    side->setFixedWidth(kSideWidth);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(palette_, 1);
    tidy_->setText(tr("T&idy Paints"));
    tidy_->setToolTip(tr("Leave out the paints that no stipple uses; others get new symbols"));
    tidy_->setAutoDefault(false);
    column->addWidget(tidy_, 0, Qt::AlignRight);
    column->addWidget(MakeMarkers());
    column->addWidget(MakeCleanUp());
    column->addWidget(MakeView());
    return side;
}

QWidget* TouchUpDialog::MakeMarkers() {
    auto* box = new QGroupBox(tr("Markers"));
    blinkLoners_->setText(tr("Blink &loners"));
    blinkPaint_->setText(tr("Blin&k paint"));
    nextLoner_->setText(tr("&Next loner"));
    nextLoner_->setToolTip(tr("Go to the next loner (F3)"));
    nextLoner_->setAutoDefault(false);
    auto* checks = new QHBoxLayout;
    checks->addWidget(blinkLoners_);
    checks->addWidget(blinkPaint_);
    checks->addStretch(1);
    auto* row = new QHBoxLayout;
    row->addWidget(nextLoner_);
    row->addWidget(loners_, 1);
    auto* column = new QVBoxLayout(box);
    column->addLayout(checks);
    column->addLayout(row);
    return box;
}

QWidget* TouchUpDialog::MakeCleanUp() {
    auto* box = new QGroupBox(tr("Clean-up"));
    cleanUp_->setText(tr("Clean &up"));
    cleanUp_->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(cleanLevel_);
    row->addWidget(lowerLevel_);
    row->addWidget(raiseLevel_);
    row->addStretch(1);
    row->addWidget(cleanUp_);
    auto* column = new QVBoxLayout(box);
    column->addLayout(row);
    column->addWidget(cleanPreview_);
    return box;
}

QWidget* TouchUpDialog::MakeView() {
    auto* box = new QGroupBox(tr("View"));
    gridLines_->setText(tr("&Grid lines"));
    symbols_->setText(tr("S&ymbols"));
    symbols_->setToolTip(tr("Shown as soon as the stipples are large enough for them"));
    photo_->setOrientation(Qt::Horizontal);
    photo_->setRange(0, 100);
    photo_->setToolTip(tr("How far the photo shows through; hold P to see it alone"));
    auto* checks = new QHBoxLayout;
    checks->addWidget(gridLines_);
    checks->addWidget(symbols_);
    checks->addStretch(1);
    auto* row = new QHBoxLayout;
    row->addWidget(LabelFor(*photo_, tr("Ph&oto")));
    row->addWidget(photo_, 1);
    auto* column = new QVBoxLayout(box);
    column->addLayout(checks);
    column->addLayout(row);
    return box;
}

QLayout* TouchUpDialog::MakeButtons() {
    keptWork_->setText(tr("Kept &Work…"));
    keptWork_->setToolTip(tr("Restore work that ended without being saved, or throw it away"));
    load_->setText(tr("Loa&d"));
    load_->setToolTip(tr("Load the saved stipples"));
    save_->setText(tr("&Save"));
    save_->setToolTip(tr("Save the stipples (Ctrl+S)"));
    accept_->setText(tr("&Accept"));
    accept_->setToolTip(tr("Take the touched-up stipples into the kit and close"));
    cancel_->setText(tr("Cancel"));
    auto* row = new QHBoxLayout;
    // A long text takes more lines rather than widening the window.
    for (ValueLabel* label : {pointed_, status_, loners_, cleanPreview_}) {
        label->WrapWhole();
    }
    row->addWidget(pointed_, 3);
    row->addWidget(status_, 2);
    // Enter is the picture's key.
    for (QPushButton* button : {keptWork_, load_, save_, accept_, cancel_}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    return row;
}

std::function<void()> TouchUpDialog::Handler(void (TouchUpForm::*handler)()) {
    return [this, handler] { RunOpen([this, handler] { (form_.*handler)(); }); };
}

void TouchUpDialog::RunOpen(const std::function<void()>& work) {
    Run([this, &work] {
        if (form_.Open()) {
            work();
        }
    });
}

void TouchUpDialog::Dismiss() {
    if (form_.Open()) {
        form_.Cancel_Click();
    } else {
        hide();  // the opening failed
    }
}

void TouchUpDialog::Connect() {
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        connect(tools_[i], &QToolButton::clicked, this, [this, i] {
            if (kTools[i].Tool == TouchUpTool::Brush) {
                form_.BrushSize_Click(kTools[i].Size);
            } else {
                form_.Tool_Click(kTools[i].Tool);
            }
            MirrorTools();
        });
    }
    const auto onClick = [this](QAbstractButton* button, void (TouchUpForm::*handler)()) {
        connect(button, &QAbstractButton::clicked, this, Handler(handler));
    };
    onClick(undo_, &TouchUpForm::Undo_Click);
    onClick(redo_, &TouchUpForm::Redo_Click);
    onClick(blinkLoners_, &TouchUpForm::BlinkLoners_Click);
    onClick(blinkPaint_, &TouchUpForm::BlinkPaint_Click);
    onClick(lowerLevel_, &TouchUpForm::LowerCleanLevel_Click);
    onClick(raiseLevel_, &TouchUpForm::RaiseCleanLevel_Click);
    onClick(cleanUp_, &TouchUpForm::CleanUp_Click);
    onClick(tidy_, &TouchUpForm::TidyPaints_Click);
    onClick(keptWork_, &TouchUpForm::KeptWork_Click);
    onClick(load_, &TouchUpForm::LoadIt_Click);
    onClick(save_, &TouchUpForm::SaveIt_Click);
    onClick(accept_, &TouchUpForm::Accept_Click);
    connect(cancel_, &QPushButton::clicked, this, &TouchUpDialog::reject);
    connect(nextLoner_, &QPushButton::clicked, this, &TouchUpDialog::NextLoner);
    connect(zoomIn_, &QToolButton::clicked, canvas_, &TouchUpCanvas::ZoomIn);
    connect(zoomOut_, &QToolButton::clicked, canvas_, &TouchUpCanvas::ZoomOut);
    connect(fit_, &QToolButton::clicked, canvas_, &TouchUpCanvas::Fit);
    connect(gridLines_, &QCheckBox::toggled, this, &TouchUpDialog::ChooseLook);
    connect(symbols_, &QCheckBox::toggled, this, &TouchUpDialog::ChooseLook);
    connect(photo_, &QSlider::valueChanged, this, &TouchUpDialog::ChooseLook);
    connect(palette_, &PaintRows::Chosen, this,
            [this](int paint) { RunOpen([this, paint] { form_.PaintList_Click(paint); }); });
    qApp->installEventFilter(this);
}

void TouchUpDialog::ConnectCanvas() {
    connect(canvas_, &TouchUpCanvas::Pressed, this,
            [this](CellPos at) { RunOpen([this, at] { form_.PointerDown(at); }); });
    // Past the edge, which has the main window look after itself: a stroke repaints nothing but
    // what it touched.
    connect(canvas_, &TouchUpCanvas::Dragged, this, [this](CellPos at) {
        if (Ready()) {
            form_.PointerTo(at);
            canvas_->Follow();
            MirrorPalette();
            MirrorStatus();
        }
    });
    connect(canvas_, &TouchUpCanvas::Released, this,
            [this] { RunOpen([this] { form_.PointerUp(); }); });
    connect(canvas_, &TouchUpCanvas::Picked, this,
            [this](CellPos at) { RunOpen([this, at] { form_.PickPaint(at); }); });
    connect(canvas_, &TouchUpCanvas::Pointed, this, &TouchUpDialog::PointedAt);
    connect(canvas_, &TouchUpCanvas::Zoomed, this, [this] {
        const double edge = canvas_->Edge();
        zoom_->Show(edge == static_cast<int>(edge) ? tr("%1 pixels").arg(static_cast<int>(edge))
                                                   : tr("%1 pixels").arg(edge, 0, 'f', 1));
    });
}

void TouchUpDialog::ConnectTimers() {
    blink_.setInterval(kBlinkPause);
    connect(&blink_, &QTimer::timeout, this, [this] {
        blinkOn_ = !blinkOn_;
        canvas_->Blink(blinkOn_);
    });
    recovery_.setInterval(kRecoveryPause);
    connect(&recovery_, &QTimer::timeout, this, [this] {
        if (Ready()) {
            form_.KeepRecovery(std::chrono::steady_clock::now());
            MirrorStatus();
        }
    });
}

void TouchUpDialog::ConnectKeptWork() {
    connect(kept_, &KeptWorkDialog::Chosen, this,
            [this](int row) { RunOpen([this, row] { form_.KeptList_Click(row); }); });
    connect(kept_, &KeptWorkDialog::Restored, this, Handler(&TouchUpForm::RestoreKept_Click));
    connect(kept_, &KeptWorkDialog::ThrownAway, this, Handler(&TouchUpForm::ThrowKeptAway_Click));
    connect(kept_, &KeptWorkDialog::Closed, this, Handler(&TouchUpForm::CloseKept_Click));
}

void TouchUpDialog::AddShortcuts() {
    const auto add = [this](const QKeySequence& keys, const std::function<void()>& work) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, work);
    };
    const auto click = [](QAbstractButton* button) { return [button] { button->click(); }; };
    add(Qt::CTRL | Qt::Key_Z, click(undo_));
    add(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, click(redo_));
    add(Qt::CTRL | Qt::Key_Y, click(redo_));
    add(Qt::CTRL | Qt::Key_S, click(save_));
    add(Qt::Key_F3, click(nextLoner_));
    add(Qt::Key_Plus, click(zoomIn_));
    add(Qt::Key_Equal, click(zoomIn_));
    add(Qt::Key_Minus, click(zoomOut_));
    add(Qt::Key_0, click(fit_));
    add(Qt::Key_1, click(tools_[0]));
    add(Qt::Key_2, click(tools_[1]));
    add(Qt::Key_3, click(tools_[2]));
    add(Qt::Key_F, click(tools_[3]));
    add(Qt::Key_R, click(tools_[4]));
}

void TouchUpDialog::Load() {
    form_.Form_Load();
    canvas_->Start(Context().Place.Frames->CaptureFrame.Picture,
                   Context().Place.State->StippleSize);
    Mirror();
    recovery_.start();
    form_.OfferRecovery();
}

void TouchUpDialog::KeepWork() {
    if (form_.Open()) {
        form_.KeepRecoveryNow();
    }
}

void TouchUpDialog::Mirror() {
    if (!form_.Open()) {
        recovery_.stop();
        blink_.stop();
        return;
    }
    canvas_->Follow();
    MirrorPalette();
    MirrorTools();
    MirrorStatus();
    const TouchUpControls& shown = form_.Controls();
    loners_->Show(Text(shown.Loners));
    cleanLevel_->Show(tr("Level %1").arg(shown.CleanLevel));
    cleanPreview_->Show(Text(shown.CleanPreview));
    lowerLevel_->setEnabled(shown.LowerEnabled);
    raiseLevel_->setEnabled(shown.RaiseEnabled);
    cleanUp_->setEnabled(shown.CleanEnabled);
    load_->setEnabled(shown.LoadEnabled);
    keptWork_->setEnabled(shown.KeptEnabled);
    kept_->Mirror(shown.Kept);
    setWindowModified(shown.Unsaved);
    blinkLoners_->setChecked(shown.BlinkLoners);
    blinkPaint_->setChecked(shown.BlinkPaint);
    const bool blinking = shown.BlinkLoners || shown.BlinkPaint;
    if (blinking && !blink_.isActive()) {
        blink_.start();
    } else if (!blinking && blink_.isActive()) {
        blink_.stop();
        canvas_->Blink(false);
    }
}

void TouchUpDialog::MirrorPalette() {
    palette_->Follow(form_.Controls().Palette, form_.Controls().Brush.Paint);
    tidy_->setEnabled(form_.Controls().TidyEnabled);
}

void TouchUpDialog::MirrorTools() {
    const TouchUpControls& shown = form_.Controls();
    for (std::size_t i = 0; i < kTools.size(); ++i) {
        MirrorTool(*tools_[i],
                   kTools[i].Tool == shown.Tool &&
                       (shown.Tool != TouchUpTool::Brush || kTools[i].Size == shown.Brush.Size));
    }
    undo_->setText(Text(shown.UndoCaption));
    redo_->setText(Text(shown.RedoCaption));
    undo_->setEnabled(shown.UndoEnabled);
    redo_->setEnabled(shown.RedoEnabled);
}

void TouchUpDialog::MirrorStatus() {
    pointed_->Show(Text(form_.Describe(pointedAt_)));
    status_->Show(Text(form_.Controls().Status));
}

void TouchUpDialog::PointedAt(CellPos at) {
    if (form_.Open()) {
        pointedAt_ = at;
        MirrorStatus();
    }
}

void TouchUpDialog::NextLoner() {
    RunOpen([this] {
        if (const auto at = form_.NextLoner_Click()) {
            canvas_->GoTo(*at);
        }
    });
}

void TouchUpDialog::ChooseLook() {
    canvas_->SetLook({.GridLines = gridLines_->isChecked(),
                      .Symbols = symbols_->isChecked(),
                      .PhotoPercent = photo_->value(),
                      .PhotoOnly = canvas_->Look().PhotoOnly});
}

void TouchUpDialog::ShowPhoto(bool only) {
    EditorLook look = canvas_->Look();
    if (look.PhotoOnly != only) {
        look.PhotoOnly = only;
        canvas_->SetLook(look);
    }
}

void TouchUpDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == kPhotoKey && event->modifiers() == Qt::NoModifier) {
        ShowPhoto(true);
        return;
    }
    FormDialog::keyPressEvent(event);
}

void TouchUpDialog::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == kPhotoKey && !event->isAutoRepeat()) {
        ShowPhoto(false);
        return;
    }
    FormDialog::keyReleaseEvent(event);
}

// A key that is let go over another window is not heard of.
void TouchUpDialog::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && !isActiveWindow()) {
        ShowPhoto(false);
        canvas_->HoldSpace(false);
    }
    FormDialog::changeEvent(event);
}

// Space drags the picture wherever the keyboard is; a button has it for itself as well.
bool TouchUpDialog::eventFilter(QObject* watched, QEvent* event) {
    const bool pressed = event->type() == QEvent::KeyPress;
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if ((!pressed && event->type() != QEvent::KeyRelease) || widget == nullptr ||
        widget->window() != this) {
        return FormDialog::eventFilter(watched, event);
    }
    auto& key = static_cast<QKeyEvent&>(*event);
    if (key.key() == Qt::Key_Space && !key.isAutoRepeat()) {
        canvas_->HoldSpace(pressed);
    }
    // The palette would search its rows for them.
    if (watched == palette_ && pressed && key.key() == kPhotoKey) {
        keyPressEvent(&key);
    }
    return watched == palette_ && (key.key() == kPhotoKey || key.key() == Qt::Key_Space) && pressed;
}

}  // namespace vendrel
