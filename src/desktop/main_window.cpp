#include "desktop/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFile>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QSessionManager>
#include <QShortcut>
#include <QStatusBar>
#include <QStyle>
#include <QWindow>
#include <memory>

#include "desktop/arrivals.h"
#include "desktop/dialogs.h"
#include "desktop/text.h"
#include "support/error.h"

namespace vendrel {
namespace {

constexpr QSize kFirstSize(900, 620);
// Title bar and borders as window managers draw them; known exactly only once shown.
constexpr QSize kWindowFrame(16, 48);

}  // namespace

MainWindow::MainWindow(Workplace& place, MainForm& form, QtUi& ui)
    : place_(place),
      form_(form),
      ui_(ui),
      edge_(this),
      actions_(new MenuActions(place.MainMenu, place.State.Chosen, *menuBar())),
      pages_(new QStackedWidget),
      workPage_(new QScrollArea),
      workFrame_(new PictureView(place.Frames.WorkFrame.Picture, PictureFit::Pixels)),
      captureFrame_(new PictureView(place.Frames.CaptureFrame.Picture, PictureFit::Window)),
      emptyPage_(new QWidget),
      hint_(new QLabel),
      progress_(new QProgressBar) {
    setObjectName(QStringLiteral("Main"));
    setAcceptDrops(true);
    Arrange();
    ui_.Attach({[this] { Mirror(); }, [this](FormId id) { OpenForm(id); },
                [this](FormId id) { CloseForm(id); }, this});
    connect(new QShortcut(QKeySequence::Paste, this), &QShortcut::activated, this,
            [this] { TakeIn(*QGuiApplication::clipboard()->mimeData()); });
    connect(actions_, &MenuActions::Chosen, this, &MainWindow::Choose);
    connect(workFrame_, &PictureView::Clicked, this, [this] { ui_.EndShow(); });
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

void MainWindow::Arrange() {
    workFrame_->setObjectName(QStringLiteral("WorkFrame"));
    workFrame_->setAccessibleName(tr("Work picture"));
    captureFrame_->setObjectName(QStringLiteral("CaptureFrame"));
    captureFrame_->setAccessibleName(tr("Sample picture"));
    workPage_->setWidget(workFrame_);
    workPage_->setAlignment(Qt::AlignCenter);
    workPage_->setFrameShape(QFrame::NoFrame);
    for (QWidget* page :
         {static_cast<QWidget*>(workPage_), static_cast<QWidget*>(captureFrame_), emptyPage_}) {
        page->setBackgroundRole(QPalette::Mid);
        page->setAutoFillBackground(true);
        pages_->addWidget(page);
    }
    setCentralWidget(pages_);
    hint_->setObjectName(QStringLiteral("StatusHint"));
    progress_->setObjectName(QStringLiteral("Progress"));
    progress_->setAccessibleName(tr("Progress"));
    progress_->setFixedWidth(120);
    progress_->setTextVisible(false);
    progress_->hide();
    // Permanent, as pointing at menus would wipe an ordinary message.
    statusBar()->addPermanentWidget(hint_, 1);
    statusBar()->addPermanentWidget(progress_);
    resize(kFirstSize.boundedTo(screen()->availableSize() - kWindowFrame));
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
    dialog = MakeDialog(form, {place_, form_, edge_}, this);
    if (dialog) {
        dialog->resize(dialog->size().boundedTo(screen()->availableSize() - kWindowFrame));
        if (below != nullptr) {
            // Over the dialog it was opened from, which waits for it.
            dialog->winId();
            dialog->windowHandle()->setTransientParent(below->windowHandle());
        }
        dialog->open();
        dialog->Load();
        dialog->Mirror();
    }
}

void MainWindow::CloseForm(FormId form) {
    // Kept until it is opened again: the caller may be one of its own handlers.
    if (const auto found = dialogs_.find(form); found != dialogs_.end() && found->second) {
        found->second->hide();
    }
}

void MainWindow::Mirror() {
    MirrorTitle();
    actions_->Mirror();
    MirrorPictures();
    MirrorStatus();
    for (const auto& [form, dialog] : dialogs_) {
        if (dialog && dialog->isVisible()) {
            dialog->Mirror();
        }
    }
}

// A star marks stipples that are in no file yet.
void MainWindow::MirrorTitle() {
    const bool unsaved = place_.State.HasUnsavedWork;
    QString title = ui_.Display().Caption;
    title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));  // a photo's name may hold it
    setWindowTitle(unsaved ? title + QStringLiteral("[*]") : title);
    setWindowModified(unsaved);
}

void MainWindow::MirrorPictures() {
    const Surfaces& frames = place_.Frames;
    QWidget* page = emptyPage_;
    if (frames.WorkFrame.Visible) {
        page = workPage_;
        workFrame_->Refresh();
        workFrame_->resize(workFrame_->sizeHint());
        FitToPicture();
    } else if (frames.CaptureFrame.Visible) {
        page = captureFrame_;
        captureFrame_->Refresh();
    }
    pages_->setCurrentWidget(page);
}

void MainWindow::MirrorStatus() {
    const WorkDisplay& display = ui_.Display();
    hint_->setText(display.ShowRuns ? tr("Escape or a click on the picture ends the show.")
                                    : Text(form_.StatusHint()));
    progress_->setVisible(display.Total > 0);
    if (display.Total > 0) {
        progress_->setRange(0, display.Total);
        progress_->setValue(display.Done);
    }
}

// The window follows the picture's size, as far as the screen allows.
void MainWindow::FitToPicture() {
    const QSize picture = workFrame_->sizeHint();
    if (picture == fitted_ || isMaximized() || isFullScreen()) {
        return;
    }
    fitted_ = picture;
    const QRect available = screen()->availableGeometry();
    const QSize frame = isVisible() ? (frameGeometry().size() - size()) : kWindowFrame;
    const QSize bars(0, menuBar()->sizeHint().height() + statusBar()->sizeHint().height());
    const QSize room = available.size() - frame;
    // A bar for one direction takes room from the other.
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, workPage_);
    QSize wanted = picture + bars;
    wanted += QSize(wanted.height() > room.height() ? scrollBar : 0,
                    wanted.width() > room.width() ? scrollBar : 0);
    resize(wanted.boundedTo(room).expandedTo(minimumSizeHint()));
    const QRect outer(pos(), size() + frame);
    if (isVisible() && !available.contains(outer)) {
        move(std::max(available.left(), std::min(outer.left(), available.right() - outer.width())),
             std::max(available.top(), std::min(outer.top(), available.bottom() - outer.height())));
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
