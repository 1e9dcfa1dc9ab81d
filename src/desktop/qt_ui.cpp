#include "desktop/qt_ui.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>
#include <QUrl>
#include <algorithm>

#include "desktop/text.h"
#include "export/qt_image.h"
#include "support/disk.h"

namespace vendrel {
namespace {

constexpr qint64 kFrame = 16;  // milliseconds: about 60 repaints a second

}  // namespace

QWidget* QtUi::MessageParent() const {
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog != nullptr ? dialog : host_.Window;
}

void QtUi::SetCaption(std::string_view caption) {
    display_.Caption = Text(caption);
}

void QtUi::ReportProgress(int done, int total) {
    display_.Done = done;
    display_.Total = total;
}

void QtUi::SetPointer(Pointer pointer) {
    const bool busy = pointer == Pointer::Busy;
    if (busy == busyPointer_) {
        return;
    }
    busyPointer_ = busy;
    if (busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void QtUi::ShowMessage(std::string_view title, std::string_view sentence) {
    host_.Mirror();  // what stands behind the message is the state it speaks of
    QMessageBox::information(MessageParent(), Text(title), Text(sentence));
}

bool QtUi::Ask(std::string_view title, std::string_view question) {
    host_.Mirror();
    // Most questions are about losing work: Enter pressed in haste must not say yes.
    return QMessageBox::question(MessageParent(), Text(title), Text(question),
                                 QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

SaveAnswer QtUi::AskToSave(std::string_view title, std::string_view question) {
    host_.Mirror();
    QMessageBox box(QMessageBox::Question, Text(title), Text(question),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                    MessageParent());
    box.setDefaultButton(QMessageBox::Save);
    // Some desktops give these buttons no letters to press.
    box.button(QMessageBox::Save)->setText(QObject::tr("&Save"));
    box.button(QMessageBox::Discard)->setText(QObject::tr("&Discard"));
    box.button(QMessageBox::Cancel)->setText(QObject::tr("&Cancel"));
    switch (box.exec()) {
        case QMessageBox::Save:
            return SaveAnswer::Save;
        case QMessageBox::Discard:
            return SaveAnswer::Discard;
        default:
            return SaveAnswer::Cancel;
    }
}

void QtUi::Yield() {
    if (!sincePump_.isValid() || sincePump_.elapsed() >= kFrame) {
        Pump();
    }
}

void QtUi::Pump() {
    if (pumping_) {
        return;
    }
    pumping_ = true;
    host_.Mirror();
    QCoreApplication::processEvents();
    pumping_ = false;
    sincePump_.start();
    if (stopRequested_) {
        throw Stop{};
    }
}

bool QtUi::Watched() const {
    return settings_.WatchItPaint && !pace_.Ended();
}

void QtUi::ShowStep(int done, int total) {
    display_.ShowRuns = true;
    ReportProgress(done, total);
    Yield();
    // Waits shorter than a frame are left to the next steps.
    for (qint64 wait = pace_.WaitAfter(done, total); wait >= kFrame;
         wait = pace_.WaitAfter(done, total)) {
        QThread::msleep(static_cast<unsigned long>(std::min(wait, kFrame)));
        Pump();
    }
}

bool QtUi::PutOnClipboard(const Surface& picture) {
    QApplication::clipboard()->setImage(ToImage(picture));
    return true;
}

void QtUi::ShowFolder(const std::filesystem::path& folder) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(Text(FullPath(folder).string())));
}

void QtUi::StartWork() {
    pace_.Reset();
    sincePump_.start();
}

void QtUi::FinishWork() {
    display_.ShowRuns = false;
    ReportProgress(0, 0);
    SetPointer(Pointer::Normal);
}

}  // namespace vendrel
