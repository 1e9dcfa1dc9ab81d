#include "desktop/touch_up_dialog.h"

#include <QAbstractSpinBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>
#include <chrono>

#include "desktop/named.h"
#include "desktop/text.h"
#include "desktop/touch_up_keys.h"

namespace vendrel {
namespace {

constexpr int kBlinkPause = 400;      // milliseconds
constexpr int kFiguresPause = 200;    // milliseconds
constexpr int kRecoveryPause = 1000;  // milliseconds
constexpr int kMostWaits = 4;         // of the recovery for a stroke's end
constexpr int kSideWidth = 330;
constexpr Qt::Key kPhotoKey = Qt::Key_P;

// On a low screen a panel scrolls, rather than that the window reaches beyond it.
QScrollArea* Scrolling(QWidget* panel) {
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(panel);
    return area;
}

// What a number takes for itself while it is typed. Letters and undoing stay the editor's.
bool IsOfNumber(const QKeyEvent& key) {
    const bool isUndo = key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
    const bool isTool = key.key() >= Qt::Key_A && key.key() <= Qt::Key_BracketRight &&
                        !key.modifiers().testFlag(Qt::ControlModifier);
    return !isUndo && !isTool;
}

}  // namespace

TouchUpDialog::TouchUpDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place, &context.Form.Kits()),
      canvas_(new TouchUpCanvas(form_)),
      tools_(new TouchUpToolBar(Work())),
      navigator_(new NavigatorView(*canvas_)),
      paints_(new TouchUpPaints(Work())),
      view_(new TouchUpViewPanel(*canvas_, Work())),
      areas_(new TouchUpAreasPanel(Work())),
      selection_(new TouchUpSelectionPanel(Work())),
      history_(new HistoryList(Work())),
      beside_(new BesideView(*canvas_)),
      painting_(new PaintingJob(form_, this)),
      keptWork_(EditorButton<QPushButton>(
          "KeptWork", tr("Kept &Work…"),
          tr("Restore work that ended without being saved, or throw it away"), Work(),
          &TouchUpForm::KeptWork_Click)),
      load_(EditorButton<QPushButton>("LoadIt", tr("Loa&d"), tr("Load the saved stipples"), Work(),
                                      &TouchUpForm::LoadIt_Click)),
      save_(EditorButton<QPushButton>("SaveIt", tr("&Save"),
                                      tr("Save the kit (Ctrl+S); Ctrl+Shift+S saves the stipples"),
                                      Work(), &TouchUpForm::SaveKit_Click)),
      accept_(EditorButton<QPushButton>("Accept", tr("&Accept"),
                                        tr("Take the touched-up stipples into the kit and close"),
                                        Work(), &TouchUpForm::Accept_Click)),
      cancel_(EditorButton<QPushButton>("Cancel", tr("Cancel"), tr("Cancel"))),
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
    AddTouchUpKeys(*this, *tools_, Work());
    canvas_->setFocus();
    const QSize room = screen()->availableSize();
    resize(QSize(1500, 960).boundedTo(room - QSize(60, 70)));
}

TouchUpDialog::~TouchUpDialog() {
    painting_->Stop();
}

void TouchUpDialog::Arrange() {
    canvas_->setObjectName(QStringLiteral("Canvas"));
    canvas_->setAccessibleName(tr("Stipples"));
    canvas_->setAccessibleDescription(
        tr("Arrow keys move, Enter uses the tool, I picks the paint, P shows the photo."));
    auto* middle = new QHBoxLayout;
    middle->addWidget(MakeMiddle(), 1);
    middle->addWidget(MakeSide());
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(tools_);
    rows->addLayout(middle, 1);
    rows->addLayout(MakeButtons());
}

QWidget* TouchUpDialog::MakeMiddle() {
    auto* split = new QSplitter;
    split->addWidget(canvas_);
    split->addWidget(beside_);
    split->setChildrenCollapsible(false);
    split->setStretchFactor(0, 1);
    split->setStretchFactor(1, 1);
    return split;
}

QWidget* TouchUpDialog::MakeSide() {
    auto* tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("Panels"));
    tabs->setAccessibleName(tr("Panels"));
    tabs->setDocumentMode(true);
    tabs->addTab(paints_, tr("Pain&ts"));
    tabs->addTab(Scrolling(view_), tr("&View"));
    tabs->addTab(Scrolling(areas_), tr("A&reas"));
    tabs->addTab(Scrolling(selection_), tr("Sele&ction"));
    tabs->addTab(history_, tr("&History"));
    connect(tabs, &QTabWidget::currentChanged, this, &TouchUpDialog::LeaveAreas);
    auto* side = new QSplitter(Qt::Vertical);
    side->setFixedWidth(kSideWidth);
    side->setChildrenCollapsible(false);
    side->addWidget(navigator_);
    side->addWidget(tabs);
    side->setStretchFactor(1, 1);
    return side;
}

QLayout* TouchUpDialog::MakeButtons() {
    auto* row = new QHBoxLayout;
    for (ValueLabel* label : {pointed_, status_}) {
        label->WrapWhole();
    }
    row->addWidget(pointed_, 3);
    row->addWidget(status_, 2);
    for (QPushButton* button : {keptWork_, load_, save_, accept_, cancel_}) {
        row->addWidget(button);
    }
    return row;
}

EditorWork TouchUpDialog::Work() {
    return [this](const std::function<void(TouchUpForm&)>& work) {
        RunOpen([this, &work] { work(form_); });
    };
}

// What merging would do hides what is painted: it is for whoever looks at the figures beside it.
void TouchUpDialog::LeaveAreas() {
    RunOpen([this] {
        if (!areas_->isVisible() && form_.Areas().Controls().Preview) {
            form_.MergePreview_Click();
        }
    });
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
    connect(cancel_, &QPushButton::clicked, this, &TouchUpDialog::reject);
    connect(areas_->NextLoner, &QPushButton::clicked, this,
            [this] { GoToNext(&TouchUpForm::NextLoner_Click); });
    connect(areas_->NextHard, &QPushButton::clicked, this,
            [this] { GoToNext(&TouchUpForm::NextHard_Click); });
    connect(selection_->Copy, &QPushButton::clicked, this, &TouchUpDialog::CopySelection);
    connect(selection_->Paste, &QPushButton::clicked, this, &TouchUpDialog::PasteSelection);
    connect(tools_->ZoomIn, &QToolButton::clicked, canvas_, &TouchUpCanvas::ZoomIn);
    connect(tools_->ZoomOut, &QToolButton::clicked, canvas_, &TouchUpCanvas::ZoomOut);
    connect(tools_->Fit, &QToolButton::clicked, canvas_, &TouchUpCanvas::Fit);
    connect(tools_->ActualSize, &QToolButton::clicked, canvas_, &TouchUpCanvas::ShowActualSize);
    connect(tools_, &TouchUpToolBar::Sized, canvas_, qOverload<>(&TouchUpCanvas::setFocus));
    connect(areas_, &TouchUpAreasPanel::Typed, canvas_, qOverload<>(&TouchUpCanvas::setFocus));
    connect(view_, &TouchUpViewPanel::BesideChosen, this, &TouchUpDialog::ShowBeside);
    connect(painting_, &PaintingJob::Painted, beside_, &BesideView::SetPainting);
    const std::pair<QKeySequence, QAbstractButton*> keys[] = {
        {Qt::Key_F3, areas_->NextLoner},
        {Qt::Key_F4, areas_->NextHard},
        {QKeySequence::Copy, selection_->Copy},
        {QKeySequence::Paste, selection_->Paste},
    };
    for (const auto& [key, button] : keys) {
        connect(new QShortcut(key, this), &QShortcut::activated, button, &QAbstractButton::click);
    }
    qApp->installEventFilter(this);
}

void TouchUpDialog::ConnectCanvas() {
    connect(canvas_, &TouchUpCanvas::Pressed, this, [this](CellPos at, PressKeys keys) {
        RunOpen([this, at, keys] { form_.PointerDown(at, keys); });
    });
    // Past the edge, which has the main window look after itself: a stroke repaints nothing but
    // what it touched.
    connect(canvas_, &TouchUpCanvas::Dragged, this, [this](CellPos at) {
        if (Ready()) {
            form_.PointerTo(at);
            canvas_->Follow();
            paints_->Mirror(form_.Controls());
            MirrorStatus();
        }
    });
    connect(canvas_, &TouchUpCanvas::Released, this,
            [this] { RunOpen([this] { form_.PointerUp(); }); });
    connect(canvas_, &TouchUpCanvas::Picked, this,
            [this](CellPos at) { RunOpen([this, at] { form_.PickPaint(at); }); });
    connect(canvas_, &TouchUpCanvas::PutDown, this,
            [this] { RunOpen([this] { form_.PutDown_Click(); }); });
    connect(canvas_, &TouchUpCanvas::Nudged, this,
            [this](CellPos by) { RunOpen([this, by] { form_.NudgeSelection_Click(by); }); });
    connect(canvas_, &TouchUpCanvas::Pointed, this, &TouchUpDialog::PointedAt);
    connect(canvas_, &TouchUpCanvas::Zoomed, this, [this] { tools_->ShowZoom(canvas_->Edge()); });
}

void TouchUpDialog::ConnectTimers() {
    blink_.setInterval(kBlinkPause);
    connect(&blink_, &QTimer::timeout, this, [this] {
        if (canvas_->HandIsDown()) {
            return;  // marks everywhere would stop it
        }
        blinkOn_ = !blinkOn_;
        canvas_->Blink(blinkOn_);
    });
    figures_.setInterval(kFiguresPause);
    figures_.setSingleShot(true);
    connect(&figures_, &QTimer::timeout, this, [this] {
        if (canvas_->HandIsDown()) {
            figures_.start();
        } else if (Ready()) {
            form_.FollowFigures();
            canvas_->Follow();
            navigator_->Follow();
            areas_->Mirror(form_.Controls(), form_.Areas().Controls());
        }
    });
    recovery_.setInterval(kRecoveryPause);
    connect(&recovery_, &QTimer::timeout, this, [this] {
        const bool waits = canvas_->HandIsDown() && ++recoveryWaits_ < kMostWaits;
        if (Ready() && !waits) {
            recoveryWaits_ = 0;
            form_.KeepRecovery(std::chrono::steady_clock::now());
            MirrorStatus();
        }
    });
}

void TouchUpDialog::ConnectKeptWork() {
    connect(kept_, &KeptWorkDialog::Chosen, this,
            [this](int row) { RunOpen([this, row] { form_.KeptList_Click(row); }); });
    const auto start = [this](EditorHandler handler) {
        return [this, handler] { RunOpen([this, handler] { (form_.*handler)(); }); };
    };
    connect(kept_, &KeptWorkDialog::Restored, this, start(&TouchUpForm::RestoreKept_Click));
    connect(kept_, &KeptWorkDialog::ThrownAway, this, start(&TouchUpForm::ThrowKeptAway_Click));
    connect(kept_, &KeptWorkDialog::Closed, this, start(&TouchUpForm::CloseKept_Click));
}

void TouchUpDialog::Load() {
    form_.Form_Load();
    painting_->Start(Context().Place);
    canvas_->Start(Context().Place.Frames->CaptureFrame.Picture,
                   Context().Place.State->StippleSize);
    beside_->SetPainting({}, {});
    ShowBeside();
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
        figures_.stop();
        blink_.stop();
        painting_->Stop();
        return;
    }
    if (canvas_->Follow()) {
        painting_->NoteChange();
    }
    figures_.start();
    const TouchUpControls& shown = form_.Controls();
    paints_->Mirror(shown);
    view_->Mirror(shown);
    tools_->Mirror(shown);
    areas_->Mirror(shown, form_.Areas().Controls());
    selection_->Mirror(form_);
    history_->Mirror(shown);
    MirrorStatus();
    MirrorBlinking();
    load_->setEnabled(shown.LoadEnabled);
    keptWork_->setEnabled(shown.KeptEnabled);
    kept_->Mirror(shown.Kept);
    setWindowModified(shown.Unsaved);
}

void TouchUpDialog::MirrorBlinking() {
    const bool blinking = form_.Controls().BlinkLoners || form_.Controls().BlinkPaint;
    if (blinking && !blink_.isActive()) {
        blink_.start();
    } else if (!blinking && blink_.isActive()) {
        blink_.stop();
        canvas_->Blink(false);
    }
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

void TouchUpDialog::GoToNext(std::optional<CellPos> (TouchUpForm::*next)()) {
    RunOpen([this, next] {
        if (const auto at = (form_.*next)()) {
            canvas_->GoTo(*at);
        }
    });
}

void TouchUpDialog::CopySelection() {
    RunOpen([this] {
        if (const std::string text = form_.Copy_Click(); !text.empty()) {
            QGuiApplication::clipboard()->setText(Text(text));
        }
    });
}

// Where the mouse is, as far as it is over the picture.
void TouchUpDialog::PasteSelection() {
    RunOpen([this] {
        const CellRect shown = canvas_->Shown();
        const CellPos middle = pointedAt_ != CellPos{} ? pointedAt_
                                                       : CellPos{(shown.Left + shown.Right) / 2,
                                                                 (shown.Top + shown.Bottom) / 2};
        form_.Paste_Click(QGuiApplication::clipboard()->text().toStdString(), middle);
    });
}

void TouchUpDialog::ShowBeside() {
    beside_->Show(view_->WhatBeside());
    static_cast<QSplitter*>(beside_->parentWidget())->setSizes({width(), width()});
    painting_->Want(view_->WhatBeside() == Beside::Painting);
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
    bool dropped = false;
    if (event->key() == Qt::Key_Escape) {
        RunOpen([this, &dropped] { dropped = form_.Escape_Click(); });
    }
    if (!dropped) {
        FormDialog::keyPressEvent(event);
    }
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
    const bool isNumber = qobject_cast<const QAbstractSpinBox*>(watched) != nullptr;
    if (isNumber && event->type() == QEvent::ShortcutOverride && widget->window() == this &&
        !IsOfNumber(static_cast<QKeyEvent&>(*event))) {
        event->ignore();
        return true;
    }
    if ((!pressed && event->type() != QEvent::KeyRelease) || widget == nullptr ||
        widget->window() != this) {
        return FormDialog::eventFilter(watched, event);
    }
    auto& key = static_cast<QKeyEvent&>(*event);
    if (key.key() == Qt::Key_Space && !key.isAutoRepeat()) {
        canvas_->HoldSpace(pressed);
    }
    // The palette would search its rows for them, and a number take no notice.
    const bool inList = watched == &paints_->List() || watched == history_ || isNumber;
    if (inList && pressed && key.key() == kPhotoKey) {
        keyPressEvent(&key);
    }
    return inList && (key.key() == kPhotoKey || key.key() == Qt::Key_Space) && pressed;
}

}  // namespace vendrel
