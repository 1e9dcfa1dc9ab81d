#include "desktop/desktop.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QStandardPaths>
#include <utility>

#include "desktop/end_signals.h"

// A macro that has to stand outside of every namespace.
static void TakeUpPictures() {
    Q_INIT_RESOURCE(pictures);
}

namespace vendrel {

QIcon ProgramIcon() {
    TakeUpPictures();
    return QIcon(QStringLiteral(":/vendrel.png"));
}

Desktop::Desktop(ProgramFolder folder, const PhotoDecoder* decoder)
    : folder_(std::move(folder)), form_(place_, &exporter_, decoder) {}

std::optional<int> Desktop::Start() {
    switch (window_.Works().Run([this] { form_.Form_Load(); })) {
        case Outcome::Done:
            window_.show();
            return std::nullopt;
        case Outcome::Failed:
            return 1;
        default:
            return 0;
    }
}

std::filesystem::path DocumentsFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return std::filesystem::path(QFile::encodeName(documents).toStdString()) / "Vendrel";
}

int RunDesktop(MainWords words, const ProgramFolder& folder, const PhotoDecoder& decoder,
               const std::filesystem::path& file) {
    QApplication application(words.Count, words.Words);
    QApplication::setApplicationName(QStringLiteral("Vendrel"));
    QApplication::setDesktopFileName(QStringLiteral("vendrel"));
    QApplication::setWindowIcon(ProgramIcon());
    // A message that is answered before the window opens is not the end.
    QApplication::setQuitOnLastWindowClosed(false);
    Desktop desktop(folder, &decoder);
    if (const std::optional<int> status = desktop.Start()) {
        return *status;
    }
    QApplication::setQuitOnLastWindowClosed(true);
    if (!file.empty()) {
        QMetaObject::invokeMethod(
            &desktop.Window(), [&] { desktop.Window().Open(file); }, Qt::QueuedConnection);
    }
    const EndSignals wishes;
    QObject::connect(&wishes, &EndSignals::Asked, &desktop.Window(), &MainWindow::EndAtOnce);
    return QApplication::exec();
}

}  // namespace vendrel
