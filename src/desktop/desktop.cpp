#include "desktop/desktop.h"

#include <QApplication>
#include <utility>

namespace vendrel {

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

int RunDesktop(int& argc, char** argv, const ProgramFolder& folder, const PhotoDecoder& decoder) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Vendrel"));
    QApplication::setDesktopFileName(QStringLiteral("vendrel"));
    // A message that is answered before the window opens is not the end.
    QApplication::setQuitOnLastWindowClosed(false);
    Desktop desktop(folder, &decoder);
    if (const std::optional<int> status = desktop.Start()) {
        return *status;
    }
    QApplication::setQuitOnLastWindowClosed(true);
    return QApplication::exec();
}

}  // namespace vendrel
