#include <sys/time.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <cstdio>
#include <cstdlib>

#include "desktop/studio.h"

// save_and_die FOLDER PAINTS [MICROSECONDS]: makes the kit of PBNLady with so many final paints in
// the window, in the folder, over the one that is there; from when it begins to save it lives only
// so long. Without a time it says how long saving took.

namespace {

using namespace vendrel;
using namespace vendrel::test;

// No handler: the alarm ends the program where it stands.
void DieIn(long microseconds) {
    const itimerval alarm{{}, {microseconds / 1'000'000, microseconds % 1'000'000}};
    setitimer(ITIMER_REAL, &alarm, nullptr);
}

bool Make(MainWindow& window, const std::string& kit, const char* paints) {
    if (std::filesystem::exists(kit)) {
        window.Open(kit);
    } else if (!LoadFirstPhoto(window)) {
        return false;
    }
    const QByteArray entry = QByteArray("Set") + paints + "Colors";
    Choose(window, "WatchItPaint");
    return Choose(window, entry.constData()) && Choose(window, "ChangeToStipples") &&
           Choose(window, "PaintItNow");
}

// Says yes to replacing what stands there, and no to all else.
void Answer() {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        const bool replace = box->text().contains(QStringLiteral("eplace"));
        box->button(replace                                    ? QMessageBox::Yes
                    : box->standardButtons() & QMessageBox::No ? QMessageBox::No
                                                               : QMessageBox::Ok)
            ->click();
    }
}

bool Save(MainWindow& window) {
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, Answer);
    answers.start(5);
    if (!Choose(window, "SaveKit") || !Choose(window, "SaveItAll")) {
        return false;
    }
    QWidget& everything = *QApplication::activeModalWidget();
    QTest::keyClick(&Find<QCheckBox>(everything, "SaveGrid"), Qt::Key_Space);
    Find<QPushButton>(everything, "SaveEverything").click();
    return !everything.isVisible();
}

}  // namespace

int main(int count, char** words) {
    const QApplication application(count, words);
    if (count < 3) {
        return EXIT_FAILURE;
    }
    const std::filesystem::path folder = words[1];
    Desktop desktop(ProgramFolder(folder, Studio::Source()));
    if (desktop.Start() ||
        !Make(desktop.Window(), (folder / "Kits/PBNLady.kit").string(), words[2])) {
        return EXIT_FAILURE;
    }
    QElapsedTimer took;
    took.start();
    if (count > 3) {
        DieIn(std::atol(words[3]));
    }
    const bool saved = Save(desktop.Window());
    DieIn(0);
    std::printf("%lld\n", static_cast<long long>(took.nsecsElapsed() / 1000));
    return saved ? EXIT_SUCCESS : EXIT_FAILURE;
}
