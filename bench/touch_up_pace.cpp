// How fast the editor's window follows a hand: milliseconds of every move of a stroke and of a pan,
// of a stroke's begin and end, drawing included, at Difficult.
//
//   QT_QPA_PLATFORM=offscreen trial_touch_up [PHOTO.bmp]

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTreeWidget>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <functional>
#include <vector>

#include "convert/bitmap_writer.h"
#include "desktop/desktop.h"
#include "desktop/touch_up_canvas.h"
#include "scene.h"

namespace vendrel::bench {
namespace {

namespace fs = std::filesystem;

class Pace {
  public:
    void Time(const std::function<void()>& work) {
        const double start = Now();
        work();
        took_.push_back(Now() - start);
    }
    void Print(const char* what) {
        std::ranges::sort(took_);
        std::printf("%-44s median %6.2f ms, longest %6.2f ms of %zu\n", what,
                    took_[took_.size() / 2], took_.back(), took_.size());
    }

  private:
    // Milliseconds of this thread alone, whatever else the machine does.
    static double Now() {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    }

    std::vector<double> took_;
};

class Hand {
  public:
    explicit Hand(TouchUpCanvas& canvas) : canvas_(canvas) {}

    void Send(QEvent::Type type, QPoint at, Qt::MouseButton button) {
        const QPointF spot(at);
        QMouseEvent event(type, spot, canvas_.viewport()->mapToGlobal(spot), button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button, {});
        QApplication::sendEvent(canvas_.viewport(), &event);
        QApplication::processEvents();
    }
    // A zigzag over the whole view, as long as a second of painting.
    void Stroke(Qt::MouseButton button, Pace& moves, Pace& ends) {
        const QRect room = canvas_.viewport()->rect().adjusted(30, 30, -30, -30);
        constexpr int kMoves = 60;
        ends.Time([&] { Send(QEvent::MouseButtonPress, room.topLeft(), button); });
        for (int i = 1; i <= kMoves; ++i) {
            const QPoint at(room.left() + room.width() * i / kMoves,
                            room.top() + (i % 12) * room.height() / 12);
            moves.Time([&] { Send(QEvent::MouseMove, at, button); });
        }
        ends.Time([&] { Send(QEvent::MouseButtonRelease, room.bottomRight(), button); });
    }

  private:
    TouchUpCanvas& canvas_;
};

void Click(QWidget& window, const char* name) {
    window.findChild<QAction*>(QString::fromLatin1(name))->trigger();
}

void Measure(TouchUpCanvas& canvas, const char* what) {
    Hand hand(canvas);
    Pace moves;
    Pace ends;
    Pace pans;
    Pace panEnds;
    auto* editor = canvas.window();
    QApplication::processEvents();
    for (int i = 0; i < 8; ++i) {
        editor->findChild<QTreeWidget*>(QStringLiteral("Palette"))
            ->setCurrentItem(
                editor->findChild<QTreeWidget*>(QStringLiteral("Palette"))->topLevelItem(i));
        QApplication::processEvents();
        hand.Stroke(Qt::LeftButton, moves, ends);
        hand.Stroke(Qt::MiddleButton, pans, panEnds);
    }
    std::printf("%s, %.1f pixels a stipple\n", what, canvas.Edge());
    moves.Print("  a move of the brush");
    ends.Print("  a stroke's begin and end");
    pans.Print("  a move of the picture");
}

/// What the editor shows, by the buttons clicked for it since the one before.
struct Shown {
    const char* What;
    const char* Buttons = "";
    double Edge = 0;
    int Photo = 0;
};
constexpr Shown kShown[] = {
    {"whole, largest brush"},
    {"whole, edits", "ShowEdits"},
    {"whole, edits and outlines", "Outlines"},
    {"grid, symbols, edits and outlines", "GridLines Symbols", 12},
    {"the same, one paint alone", "Alone", 12},
    {"the same, hard areas and merging shown", "MarkHard MergePreview", 12},
    {"the same, the photo over it", "", 12, 40},
    {"the same, blinking", "BlinkPaint BlinkLoners", 12},
    {"the same, larger", "Alone", 32},
};

void Run(const fs::path& photo, const fs::path& folder) {
    fs::create_directories(folder / "Pictures");
    if (photo.empty()) {
        WriteBitmap(folder / "Pictures/scene.bmp", Scene::Paint(960, 720));
    } else {
        fs::copy(photo, folder / "Pictures/scene.bmp");
    }
    Desktop desktop(ProgramFolder(folder, VENDREL_SOURCE_DIR));
    (void)desktop.Start();
    MainWindow& window = desktop.Window();
    desktop.Place().State->Chosen.WatchItPaint = false;
    Click(window, "LoadBMP");
    QWidget* chooser = QApplication::activeModalWidget();
    chooser->findChild<QListWidget*>(QStringLiteral("ImportFile"))->setCurrentRow(0);
    chooser->findChild<QPushButton*>(QStringLiteral("OKButton"))->click();
    Click(window, "HardSet");
    Click(window, "ChangeToStipples");
    Click(window, "ColorPickerSelect");
    auto& canvas = *window.findChild<TouchUpCanvas*>(QStringLiteral("Canvas"));
    canvas.window()->resize(1860, 1010);
    QApplication::processEvents();
    const EditSheet& sheet = canvas.Stipples();
    std::printf("%d x %d stipples, a view of %d x %d pixels\n", sheet.Across(), sheet.Down(),
                canvas.viewport()->width(), canvas.viewport()->height());
    canvas.window()->findChild<QSpinBox*>(QStringLiteral("BrushSize"))->setValue(kLargestBrush);
    for (const Shown& shown : kShown) {
        for (const QString& button :
             QString::fromLatin1(shown.Buttons).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            canvas.window()->findChild<QAbstractButton*>(button)->click();
        }
        canvas.window()
            ->findChild<QSlider*>(QStringLiteral("PhotoStrength"))
            ->setValue(shown.Photo);
        canvas.Fit();
        while (canvas.Edge() < shown.Edge) {
            canvas.ZoomIn();
        }
        Measure(canvas, shown.What);
    }
    canvas.window()->findChild<QPushButton*>(QStringLiteral("Accept"))->click();
}

}  // namespace
}  // namespace vendrel::bench

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        ("vendrel-pace-" + std::to_string(QApplication::applicationPid()));
    vendrel::bench::Run(argc > 1 ? argv[1] : "", folder);
    std::filesystem::remove_all(folder);
}
