#include <QCheckBox>
#include <QSpinBox>
#include <algorithm>
#include <sstream>
#include <string_view>
#include <vector>

#include "desktop/crop_view.h"
#include "desktop/paint_rows.h"
#include "desktop/studio.h"
#include "desktop/touch_up_canvas.h"
#include "edits/paint_index.h"
#include "export/qt_exporter.h"
#include "kit/command_line.h"

namespace vendrel::test {
namespace {

namespace fs = std::filesystem;

void Press(QWidget& window, const char* button) {
    QTest::mouseClick(&Find<QPushButton>(window, button), Qt::LeftButton);
}

QWidget& Front() {
    return *QApplication::activeModalWidget();
}

std::string OutputOf(const std::vector<std::string_view>& words) {
    std::ostringstream out;
    const int status = RunCommandLine(
        words, {.Out = out, .Err = out, .Shipped = Studio::Source(), .MakeExporter = [] {
                    return std::make_unique<QtExporter>();
                }});
    return status == 0 ? std::string() : out.str();
}

}  // namespace

// One kit from the photo to the files, all by mouse and keyboard.
class WindowKitTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }
    void TheCommandMakesTheWindowsKitAgainToTheByte();

  private:
    void CropAndTurn();
    void TouchUp();
    void SaveAll();

    Studio studio_;
    std::unique_ptr<Desktop> desktop_ = std::make_unique<Desktop>(studio_.Folder());
};

void WindowKitTest::CropAndTurn() {
    QVERIFY(Choose(desktop_->Window(), "LoadBMP"));
    QWidget& chooser = Front();
    Find<QListWidget>(chooser, "ImportFile").setCurrentRow(0);
    Press(chooser, "CropButton");
    QWidget& crop = Front();
    auto& view = Find<CropView>(crop, "CropView");
    Press(crop, "TurnRight");
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(&view, Qt::Key_Left, Qt::ShiftModifier);
        QTest::keyClick(&view, Qt::Key_Down);
    }
    QTest::keyClick(&view, Qt::Key_Return);
    QVERIFY(!crop.isVisible());
    Press(chooser, "OKButton");
    QVERIFY(!chooser.isVisible());
}

void WindowKitTest::TouchUp() {
    QTRY_COMPARE(QApplication::activeWindow(), &desktop_->Window());
    QVERIFY(Choose(desktop_->Window(), "ColorPickerSelect"));
    QWidget& editor = Front();
    auto& canvas = Find<TouchUpCanvas>(editor, "Canvas");
    QTRY_COMPARE(QApplication::activeWindow(), &editor);
    auto& rows = Find<PaintRows>(editor, "Palette");
    rows.setCurrentItem(rows.topLevelItem(30));
    QTest::keyClick(&canvas, Qt::Key_3);
    QTest::mousePress(canvas.viewport(), Qt::LeftButton, {}, canvas.MiddleOf({5, 9}));
    QTest::mouseMove(canvas.viewport(), canvas.MiddleOf({25, 30}));
    QTest::mouseRelease(canvas.viewport(), Qt::LeftButton, {}, canvas.MiddleOf({25, 30}));
    for (int up = 0; up < 6; ++up) {
        QTest::keyClick(&canvas, Qt::Key_Up, Qt::AltModifier);
    }
    QCOMPARE(desktop_->Place().State->FoundColors[25].PaintName,
             desktop_->Place().State->PaintColors[31].PaintName);
    Find<QSpinBox>(editor, "MergeBelow").setValue(3);
    Find<QPushButton>(editor, "MergeAreas").click();
    Press(editor, "Accept");
    QVERIFY(!editor.isVisible());
}

void WindowKitTest::SaveAll() {
    MainWindow& window = desktop_->Window();
    QVERIFY(Choose(window, "SaveItAll"));
    QTest::keyClick(&Find<QCheckBox>(Front(), "SaveGrid"), Qt::Key_Space);
    NextMessage saved;
    Press(Front(), "SaveEverything");
    QVERIFY2(saved.Text.contains(".stp"), qPrintable(saved.Text));
}

void WindowKitTest::TheCommandMakesTheWindowsKitAgainToTheByte() {
    QVERIFY(!desktop_->Start());
    MainWindow& window = desktop_->Window();
    QVERIFY(Choose(window, "WatchItPaint"));
    CropAndTurn();
    QVERIFY(Choose(window, "ChangeToStipples"));
    TouchUp();
    // Another final count brings another palette under the edits and their order.
    QVERIFY(Choose(window, "Set40Colors") && Choose(window, "ChangeToStipples"));
    const WorkState& state = desktop_->Place().State;
    const PaintIndex order(state.Edits.Order);
    int last = 0;
    for (const PaintColor& paint : state.PaintColors) {
        const int place = order.Find(paint);
        QVERIFY2(place == 0 || place > last, paint.PaintName.c_str());
        last = std::max(last, place);
    }
    QVERIFY(last > 40);
    QVERIFY(Choose(window, "PaintItNow"));
    SaveAll();
    QVERIFY(Choose(window, "SaveKit"));

    const TempFolder other;
    fs::copy(studio_.Files / "Pictures", other / "Pictures");
    const std::string folder = other.Path().string();
    const std::string kit = (studio_.Files / "Kits/PBNLady crop.kit").string();
    const std::string wrong = OutputOf({"kit", kit, "--folder", folder});
    QVERIFY2(wrong.empty(), wrong.c_str());
    int compared = 0;
    for (const char* place : {"Results", "Saved Stipples"}) {
        for (const auto& file : fs::directory_iterator(other / place)) {
            const std::string name = place + ("/" + file.path().filename().string());
            QVERIFY2(other.Read(name) == studio_.Files.Read(name), name.c_str());
            ++compared;
        }
    }
    QCOMPARE(compared, 6);
}

}  // namespace vendrel::test

QTEST_MAIN(vendrel::test::WindowKitTest)
#include "window_kit_test.moc"
