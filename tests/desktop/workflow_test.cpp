#include <sstream>
#include <string_view>
#include <vector>

#include "desktop/studio.h"
#include "kit/command_line.h"

namespace vendrel::test {
namespace {

namespace fs = std::filesystem;

// The sheet that the command line makes of the same photo, whatever the screen here.
std::string SheetOfTheCommandLine(const char* difficulty, const std::string& sheet) {
    const Studio studio;
    const std::string folder = studio.Files.Path().string();
    const std::vector<std::string_view> words = {
        "kit", "PBNLady.bmp", "--folder", folder, "--difficulty", difficulty, "--outputs", "sheet"};
    std::ostringstream out;
    if (RunCommandLine(words, {.Out = out, .Err = out, .Shipped = Studio::Source()}) != 0) {
        return out.str();
    }
    return studio.Files.Read(sheet);
}

}  // namespace

class WorkflowTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }

    void FromStartUpToTheSheetOfTheCommandLine_data() {
        QTest::addColumn<QString>("level");
        QTest::addColumn<QString>("word");
        QTest::addColumn<bool>("watched");
        QTest::newRow("easy, watched until Escape") << ""
                                                    << "Easy" << true;
        QTest::newRow("difficult, unwatched") << "HardSet"
                                              << "Difficult" << false;
    }

    void FromStartUpToTheSheetOfTheCommandLine() {
        QFETCH(QString, level);
        QFETCH(QString, word);
        QFETCH(bool, watched);
        const Studio studio;
        Desktop desktop(studio.Folder());
        QVERIFY(!desktop.Start());
        MainWindow& window = desktop.Window();
        QVERIFY(level.isEmpty() || Choose(window, level.toLatin1().constData()));
        QVERIFY(LoadFirstPhoto(window));
        QVERIFY(watched || Choose(window, "WatchItPaint"));
        QVERIFY(Choose(window, "ChangeToStipples"));
        bool ended = !watched;
        QTimer::singleShot(150, &window, [&] {
            QTest::keyClick(&window, Qt::Key_Escape);
            ended = !desktop.Place().Screen.Watched();
        });
        QVERIFY(Choose(window, "PaintItNow"));
        QVERIFY2(ended, "Escape ends the show");
        QVERIFY(Choose(window, "PrintAll"));
        const std::string sheet = "Results/PBNLady " + word.toStdString() + " PBS.BMP";
        QVERIFY(Find<QLabel>(window, "StatusHint").text().contains(QString::fromStdString(sheet)));
        const std::string bytes = studio.Files.Read(sheet);
        QVERIFY(bytes.size() > 100000);
        const std::string same =
            SheetOfTheCommandLine(word.toLower().toLatin1().constData(), sheet);
        QVERIFY2(bytes == same, same.substr(0, 200).c_str());
    }

    void WhileItPaintsOnlyAboutAndClosingPass() {
        const Studio studio;
        Desktop desktop(studio.Folder());
        QVERIFY(!desktop.Start());
        MainWindow& window = desktop.Window();
        QVERIFY(LoadFirstPhoto(window));
        QVERIFY(Choose(window, "ChangeToStipples"));
        bool refused = false;
        bool told = false;
        QTimer::singleShot(100, &window, [&] {
            window.findChild<QAction*>("LoadBMP")->trigger();
            refused = QApplication::activeModalWidget() == nullptr;
            told = Choose(window, "ShowAbout");
            QWidget* about = QApplication::activeModalWidget();
            told = told && about != nullptr && about->close();
            QTimer::singleShot(50, &window, &QWidget::close);
        });
        QVERIFY(Choose(window, "PaintItNow"));
        QVERIFY(refused);
        QVERIFY(told);
        QVERIFY(!window.isVisible());
        QVERIFY(!desktop.Place().State->PaintingDone);
        QVERIFY(fs::is_empty(studio.Files / "Results"));
    }

    void AFailureAtStartUpIsToldAndEndsWithStatusOne() {
        const Studio studio;
        studio.Files.Write("Data/studiopaint.csv", "3\r\n1,2,oops\r\n");
        Desktop desktop(studio.Folder());
        NextMessage message;
        QCOMPARE(desktop.Start(), std::optional<int>(1));
        QVERIFY2(message.Text.contains("studiopaint.csv, line 2"), qPrintable(message.Text));
        QVERIFY(!desktop.Window().isVisible());
    }

    void TheFirstRunSaysSoAndEndsWell() {
        const TempFolder files;
        Desktop desktop(ProgramFolder(files.Path(), Studio::Source()));
        NextMessage message;
        QCOMPARE(desktop.Start(), std::optional<int>(0));
        QVERIFY(message.Text.startsWith("First Time Ran.."));
        QVERIFY(!ProgramIcon().pixmap(48).isNull());
        QVERIFY(DocumentsFolder().is_absolute() && DocumentsFolder().filename() == "Vendrel");
    }

    void ALaterFailureIsToldAndTheWorkGoesOn() {
        const Studio studio;
        studio.Files.Write("Pictures/A.bmp", "no bitmap");
        Desktop desktop(studio.Folder());
        QVERIFY(!desktop.Start());
        {
            NextMessage message;
            LoadFirstPhoto(desktop.Window());
            QVERIFY2(message.Text.contains("A.bmp"), qPrintable(message.Text));
        }
        QVERIFY(Find<QWidget>(desktop.Window(), "CaptureFrame").isVisible());
        QVERIFY(QApplication::overrideCursor() == nullptr);
        QVERIFY2(!Choose(desktop.Window(), "TemplateMenu"), "nothing is on that was off");
        fs::remove(studio.Files / "Pictures/A.bmp");
        QVERIFY(LoadFirstPhoto(desktop.Window()));
        QVERIFY(Find<QWidget>(desktop.Window(), "WorkFrame").isVisible());
    }
};

}  // namespace vendrel::test

QTEST_MAIN(vendrel::test::WorkflowTest)
#include "workflow_test.moc"
