#include "desktop/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QSessionManager>
#include <QShortcut>
#include <QWindow>
#include <memory>

#include "desktop/arrivals.h"
#include "desktop/dialogs.h"
#include "desktop/text.h"
#include "forms/paint_source.h"
#include "support/error.h"

namespace vendrel {
namespace {

constexpr QSize kFirstSize(1000, 800);
constexpr int kNarrowestSource = 60;
// Title bar and borders as window managers draw them; known exactly only once shown.
constexpr QSize kWindowFrame(16, 48);

}  // namespace

MainWindow::MainWindow(Workplace& place, MainForm& form, QtUi& ui)
    : place_(place),
      form_(form),
      ui_(ui),
      edge_(this),
      actions_(new MenuActions(place.MainMenu, place.State->Chosen, *menuBar())),
      pages_(new QStackedWidget),
      workFrame_(new ZoomView(place.Frames->WorkFrame.Picture)),
      captureFrame_(new ZoomView(place.Frames->CaptureFrame.Picture)),
      emptyPage_(new QWidget),
      zoom_(MakeZoom()),
      source_(new QPushButton),
      hint_(new ValueLabel("StatusHint", tr("Status"))),
      progress_(new QProgressBar) {
    setObjectName(QStringLiteral("Main"));
    setAcceptDrops(true);
    Arrange();
    MakeRecentKits();
    ui_.Attach({[this] { Mirror(); }, [this](FormId id) { OpenForm(id); },
                [this](FormId id) { CloseForm(id); }, this});
    connect(new QShortcut(QKeySequence::Paste, this), &QShortcut::activated, this,
            [this] { TakeIn(*QGuiApplication::clipboard()->mimeData()); });
    connect(actions_, &MenuActions::Chosen, this, &MainWindow::Choose);
    connect(workFrame_, &ZoomView::Clicked, this, [this] { ui_.EndShow(); });
    connect(&edge_, &Edge::Started, this, [this] { ui_.StartWork(); });
    connect(&edge_, &Edge::Finished, this, [this] {
        if (!edge_.Busy()) {
            ui_.FinishWork();
        }
        Mirror();
    });
    connect(&edge_, &Edge::Ended, this, &MainWindow::End);
    connect(qApp, &QGuiApplication::commitDataRequest, this, &MainWindow::EndSession,
            Qt::DirectConnection);
}

// How a picture is looked at is no step of the kit, so the View menu is the window's own.
ZoomControls* MainWindow::MakeZoom() {
    auto* menu = new QMenu(tr("&View"), this);
    menuBar()->insertMenu(actions_->ActionOf(MenuId::ShowAbout), menu);
    return new ZoomControls(*menu);
}

// Files come and go, so they are listed when the painter looks.
void MainWindow::MakeRecentKits() {
    auto* recent = new QMenu(tr("&Recent Kits"), this);
    recent->setObjectName(QStringLiteral("RecentKits"));
    QAction* const open = actions_->ActionOf(MenuId::OpenKit);
    auto* const menu = qobject_cast<QMenu*>(open->parent());
    menu->insertMenu(actions_->ActionOf(MenuId::SaveKit), recent);
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { ListRecentKits(*recent); });
}

void MainWindow::ListRecentKits(QMenu& menu) {
    menu.clear();
    int number = 0;
    for (const std::filesystem::path& kit : form_.Kits().Recent()) {
        QString title = Text(kit.stem().string());
        title.replace(QLatin1Char('&'), QStringLiteral("&&"));
        menu.addAction(QStringLiteral("&%1  %2").arg(++number).arg(title), this,
                       [this, kit] { Open(kit); });
    }
    if (number == 0) {
        menu.addAction(tr("No kit was saved yet"))->setEnabled(false);
    }
}

void MainWindow::Arrange() {
    workFrame_->setObjectName(QStringLiteral("WorkFrame"));
    workFrame_->setAccessibleName(tr("Work picture"));
    captureFrame_->setObjectName(QStringLiteral("CaptureFrame"));
    captureFrame_->setAccessibleName(tr("Sample picture"));
    emptyPage_->setBackgroundRole(QPalette::Mid);
    emptyPage_->setAutoFillBackground(true);
    for (QWidget* page :
         {static_cast<QWidget*>(workFrame_), static_cast<QWidget*>(captureFrame_), emptyPage_}) {
        pages_->addWidget(page);
    }
    hint_->WrapWhole();
    progress_->setObjectName(QStringLiteral("Progress"));
    progress_->setAccessibleName(tr("Progress"));
    progress_->setFixedWidth(120);
    progress_->setTextVisible(false);
    progress_->hide();
    source_->setObjectName(QStringLiteral("PaintsFrom"));
    source_->setFlat(true);
    // Long names must not keep the window wide.
    source_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    source_->setMinimumWidth(kNarrowestSource);
    source_->setToolTip(tr("Where paints come from"));
    connect(source_, &QPushButton::clicked, this, [this] { Choose(MenuId::ChoosePaintSource); });
    setCentralWidget(MakeMiddle());
    resize(kFirstSize.boundedTo(screen()->availableSize() - kWindowFrame));
}

// No QStatusBar: it gives a sentence one line, and pointing at menus wipes it.
QWidget* MainWindow::MakeMiddle() {
    auto* status = new QHBoxLayout;
    status->setContentsMargins(6, 2, 6, 2);
    status->addWidget(hint_, 1);
    status->addWidget(source_);
    status->addWidget(progress_);
    status->addWidget(zoom_);
    auto* middle = new QWidget;
    auto* rows = new QVBoxLayout(middle);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(pages_, 1);
    rows->addLayout(status);
    return middle;
}

void MainWindow::Choose(MenuId entry) {
    // The action has checked itself; the menu data decides.
    const bool always = entry == MenuId::ShowAbout;
    const Outcome outcome = edge_.Run([this, entry] { form_.Click(entry); },
                                      always ? Edge::Entry::Always : Edge::Entry::WhenIdle);
    if (outcome == Outcome::Refused) {
        actions_->Mirror();
    }
}

void MainWindow::OpenForm(FormId form) {
    const QWidget* below = QApplication::activeModalWidget();
    std::unique_ptr<FormDialog>& dialog = dialogs_[form];
    const QSize before = dialog ? dialog->size() : QSize();
    dialog = MakeDialog(form, {place_, form_, edge_}, this);
    if (dialog) {
        dialog->Prepare();
        const QSize wanted = before.isValid() ? before : dialog->size();
        dialog->resize(wanted.boundedTo(screen()->availableSize() - kWindowFrame));
        if (below != nullptr) {
            // Over the dialog it was opened from, which waits for it.
            dialog->winId();
            dialog->windowHandle()->setTransientParent(below->windowHandle());
        }
        if (maximized_.contains(form)) {
            dialog->setWindowState(Qt::WindowMaximized);
        }
        dialog->open();
        dialog->Load();
        dialog->Mirror();
    }
}

void MainWindow::CloseForm(FormId form) {
    // Kept until it is opened again: the caller may be one of its own handlers.
    if (const auto found = dialogs_.find(form); found != dialogs_.end() && found->second) {
        if (found->second->isMaximized()) {  // hidden it no longer tells
            maximized_.insert(form);
        } else {
            maximized_.erase(form);
        }
        found->second->hide();
    }
}

void MainWindow::Mirror() {
    MirrorTitle();
    form_.NameTouchUps();
    actions_->Mirror();
    MirrorPictures();
    MirrorStatus();
    for (const auto& [form, dialog] : dialogs_) {
        if (dialog && dialog->isVisible()) {
            dialog->Mirror();
        }
    }
}

// A star marks a kit that is not saved.
void MainWindow::MirrorTitle() {
    const bool unsaved = form_.Kits().Unsaved();
    QString title = ui_.Display().Caption;
    title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));  // a photo's name may hold it
    setWindowTitle(unsaved ? title + QStringLiteral("[*]") : title);
    setWindowModified(unsaved);
}

void MainWindow::MirrorPictures() {
    const Surfaces& frames = place_.Frames;
    ZoomView* const view = frames.WorkFrame.Visible      ? workFrame_
                           : frames.CaptureFrame.Visible ? captureFrame_
                                                         : nullptr;
    if (view != nullptr) {
        view->Refresh();
    }
    zoom_->Follow(view);
    pages_->setCurrentWidget(view != nullptr ? view : emptyPage_);
}

void MainWindow::MirrorStatus() {
    const WorkDisplay& display = ui_.Display();
    hint_->Show(display.ShowRuns ? tr("Escape or a click on the picture ends the show.")
                                 : Text(form_.StatusHint()));
    const QString source = Text(PaintSourceText(place_.State));
    source_->setText(tr("Paints: %1").arg(WithoutMnemonics(source)));
    source_->setAccessibleName(tr("Paints come from: %1").arg(source));
    source_->setEnabled(place_.MainMenu[MenuId::TemplateMenu].Enabled);
    progress_->setVisible(display.Total > 0);
    if (display.Total > 0) {
        progress_->setRange(0, display.Total);
        progress_->setValue(display.Done);
    }
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        ui_.EndShow();
    }
    QMainWindow::keyPressEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!edge_.Busy() && MayBePhoto(*event->mimeData())) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void MainWindow::dropEvent(QDropEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
    TakeIn(*event->mimeData());
}

void MainWindow::TakeIn(const QMimeData& arriving) {
    if (edge_.Busy()) {
        return;
    }
    // Later: whoever is dragging waits until the drop has been answered.
    const auto arrival = std::make_shared<Arrival>(ArrivalOf(arriving));
    QMetaObject::invokeMethod(
        this,
        [this, arrival] {
            edge_.Run([&] {
                if (arrival->File.isEmpty()) {
                    form_.PastePicture(arrival->Picture);
                } else {
                    form_.TakePhoto(QFile::encodeName(arrival->File).toStdString());
                }
            });
        },
        Qt::QueuedConnection);
}

void MainWindow::Open(const std::filesystem::path& file) {
    edge_.Run([&] { form_.TakePhoto(file); });
}

bool MainWindow::MayEnd() {
    bool may = false;
    edge_.Run([&] { may = form_.MayEnd(); }, Edge::Entry::Always);
    return may;
}

void MainWindow::closeEvent(QCloseEvent* event) {
    const bool may = ending_ || MayEnd();
    const bool working = edge_.Busy();
    event->setAccepted(may && !working);
    if (may && working) {
        ui_.RequestStop();
    }
}

void MainWindow::EndSession(QSessionManager& session) {
    if (!session.allowsInteraction()) {
        // Without leave to ask there is no staying either.
        static_cast<void>(MayEndSession(Questions::Forbidden));
        return;
    }
    if (!MayEndSession(Questions::Allowed)) {
        session.cancel();
    }
    session.release();
}

bool MainWindow::MayEndSession(Questions questions) {
    if (questions == Questions::Allowed) {
        // Kept last: giving accepted stipples up removes the recovery file they share.
        return MayEnd() &&
               edge_.Run([this] { KeepOpenWork(); }, Edge::Entry::Always) == Outcome::Done;
    }
    try {
        KeepOpenWork();
        return true;
    } catch (const Error&) {
        return false;  // even telling it is a question
    }
}

void MainWindow::EndAtOnce() {
    static_cast<void>(MayEndSession(Questions::Forbidden));
    ending_ = true;
    if (edge_.Busy()) {
        ui_.RequestStop();
    }
    QCoreApplication::exit();
}

void MainWindow::KeepOpenWork() {
    for (const auto& [form, dialog] : dialogs_) {
        if (dialog) {
            dialog->KeepWork();
        }
    }
}

void MainWindow::End() {
    for (const auto& [form, dialog] : dialogs_) {
        if (dialog) {
            dialog->hide();
        }
    }
    close();  // the last window: the program ends
}

}  // namespace vendrel
