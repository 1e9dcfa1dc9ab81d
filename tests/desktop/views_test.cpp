#include <QAbstractButton>
#include <QAccessible>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QWheelEvent>

#include "desktop/about_dialog.h"
#include "desktop/studio.h"
#include "desktop/text.h"
#include "export/qt_image.h"

namespace vendrel::test {

class ViewsTest : public QObject {
    Q_OBJECT

  private slots:
    void TheMenuBarIsTheMenuData() {
        const Studio studio;
        Desktop desktop(studio.Folder());
        QVERIFY(!desktop.Start());
        Menu& menu = desktop.Place().MainMenu;
        menu[MenuId::Difficulty].Enabled = false;
        desktop.Place().State.Chosen.Level = Difficulty::Medium;
        desktop.Window().Mirror();
        for (const MenuEntry& entry : menu.Entries()) {
            const auto* action = desktop.Window().findChild<QAction*>(Text(entry.Name));
            QVERIFY2(action != nullptr, entry.Name.data());
            QCOMPARE(action->text().remove('&'), Text(entry.Caption));
            QCOMPARE(action->isChecked(), IsChecked(desktop.Place().State.Chosen, entry.Id));
            QCOMPARE(action->isEnabled(), entry.Enabled);
        }
    }

    void ThePictureIsSeenWholeOrZoomed() {
        Surface surface(60, 40, Rgb(200, 100, 50));
        surface.Set(1, 2, Rgb(1, 2, 3));
        QCOMPARE(ToSurface(ToImage(surface)), surface);
        ZoomView view(surface);
        const auto shown = [&view] { return view.viewport()->grab().toImage(); };
        view.resize(300, 220);
        view.show();
        view.Refresh();
        QCOMPARE(view.Percent(), 500.0);
        QCOMPARE(view.PictureRect(), QRectF(0, 10, 300, 200));
        view.resize(200, 220);
        QVERIFY2(view.Fits() && view.Percent() < 400, "it follows the window");
        view.resize(300, 220);
        view.ZoomTo(100);
        QCOMPARE(view.PictureRect(), QRectF(120, 90, 60, 40));
        QCOMPARE(shown().copy(120, 90, 60, 40).convertToFormat(QImage::Format_RGB32),
                 ToImage(surface));
        surface.Set(3, 3, kWhite);
        view.Refresh();
        view.ZoomTo(800);
        QVERIFY2(view.horizontalScrollBar()->value() == 90, "the middle stays in the middle");
        view.horizontalScrollBar()->setValue(0);
        view.verticalScrollBar()->setValue(0);
        for (const QPoint edge : {QPoint(24, 24), QPoint(31, 31)}) {
            QCOMPARE(shown().pixel(edge), qRgb(255, 255, 255));  // crisp to the edge
        }
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, QPoint(100, 100));
        QTest::mouseMove(view.viewport(), QPoint(40, 70));
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, QPoint(40, 70));
        QCOMPARE(view.PictureRect().topLeft(), QPointF(-60, -30));
        for (const auto& [ratio, scale] : {std::pair(1.0, 1), {1.5, 1}, {2.0, 2}, {3.5, 3}}) {
            QCOMPARE(ZoomView::Scale(ratio), scale);
        }
    }

    void ZoomingKeepsWhatIsUnderThePointer() {
        const Surface surface(600, 400, Rgb(200, 100, 50));
        ZoomView view(surface);
        view.resize(300, 220);
        view.show();
        view.Refresh();
        const QPointF at(200, 120);
        const auto spot = [&] { return (at - view.PictureRect().topLeft()) / view.Percent(); };
        const QPointF before = spot();
        for (const auto& [turn, percent] :
             {std::pair(120, 67.0), {240, 100.0}, {6000, 800.0}, {-6000, 10.0}}) {
            QWheelEvent event(at, view.viewport()->mapToGlobal(at), {}, {0, turn}, Qt::NoButton,
                              Qt::ControlModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(view.viewport(), &event);
            QCOMPARE(view.Percent(), percent);
            const QPointF way = (spot() - before) * percent;
            QVERIFY2(percent < 50 || way.manhattanLength() <= 2, qPrintable(QString::number(turn)));
        }
    }

    void TheViewMenuZoomsAndTheWindowsKeepTheirSize() {
        const Studio studio;
        Desktop desktop(studio.Folder());
        QVERIFY(!desktop.Start());
        MainWindow& window = desktop.Window();
        window.resize(640, 500);
        QVERIFY(LoadFirstPhoto(window));
        QCOMPARE(window.size(), QSize(640, 500));
        auto& view = Find<ZoomView>(window, "WorkFrame");
        auto& shown = Find<QSpinBox>(window, "Zoom");
        QVERIFY(view.Fits() && view.Percent() < 100);
        for (const auto& [entry, keys, percent] : {std::tuple("ZoomPixels", "Ctrl+1", 100),
                                                   {"ZoomIn", "Ctrl++", 125},
                                                   {"ZoomOut", "Ctrl+-", 100}}) {
            auto* action = window.findChild<QAction*>(QString::fromLatin1(entry));
            QCOMPARE(action->shortcut(), QKeySequence(QString::fromLatin1(keys)));
            QVERIFY(Choose(window, entry));
            QCOMPARE(view.Percent(), percent);
            const auto* read = QAccessible::queryAccessibleInterface(&shown);
            QCOMPARE(read->text(QAccessible::Name), QStringLiteral("Zoom"));
            QCOMPARE(read->text(QAccessible::Value), QString::number(percent) + " %");
        }
        shown.setValue(300);
        QCOMPARE(view.Percent(), 300.0);
        QVERIFY(Choose(window, "MediumSet"));
        QCOMPARE(view.Percent(), 300.0);
        QVERIFY(Choose(window, "ZoomFit"));
        QVERIFY(view.Fits());
        QCOMPARE(window.size(), QSize(640, 500));
        QVERIFY(Choose(window, "ChangeToStipples"));
        for (const QSize size : {QSize(), QSize(760, 610)}) {
            QVERIFY(Choose(window, "ColorPickerSelect"));
            QWidget& editor = *QApplication::activeModalWidget();
            QVERIFY(size.isEmpty() || editor.size() == size);
            editor.resize(760, 610);
            QTest::keyClick(&editor, Qt::Key_Escape);
        }
    }

    void ALongHintIsShownWhole() {
        const Studio studio;
        Desktop desktop(studio.Folder());
        QVERIFY(!desktop.Start());
        QVERIFY(LoadFirstPhoto(desktop.Window()));
        auto& hint = Find<QLabel>(desktop.Window(), "StatusHint");
        for (const int width : {900, 420, 340}) {
            desktop.Window().resize(width, 500);
            QCoreApplication::processEvents();
            QVERIFY2(hint.height() >= hint.heightForWidth(hint.width()),
                     qPrintable(QString::number(width)));
            const int lines = hint.height() / hint.fontMetrics().lineSpacing();
            QVERIFY2(width == 900 ? lines == 1 : lines > 1, qPrintable(QString::number(lines)));
            QCOMPARE(desktop.Window().width(), width);
        }
    }

    void ThePictureOfTheProgramIsSetAndItsFolderIsAmongTheDocuments() {
        QVERIFY(!ProgramIcon().pixmap(48).isNull());
        const auto folder = DocumentsFolder();
        QCOMPARE(folder.filename(), std::filesystem::path("Vendrel"));
        QVERIFY(folder.is_absolute() && folder.parent_path().filename() != "Vendrel");
    }

    void AShowIsSpreadOverItsTimeUntilItIsEnded() {
        ShowPace pace;
        QCOMPARE(pace.WaitAfter(0, 100), 0);
        const qint64 half = pace.WaitAfter(50, 100);
        QVERIFY(half > ShowPace::kDuration / 4 && half <= ShowPace::kDuration / 2);
        pace.EndShow();
        QCOMPARE(pace.WaitAfter(100, 100), 0);
        pace.Reset();
        QVERIFY(pace.WaitAfter(100, 100) > half);
    }

    void ThePaintShopAddsASetByMouseAndKeyboard() {
        const Studio studio;
        studio.Files.Write("Data/paintlist.txt", "Gouache\r\n");
        Desktop desktop(studio.Folder());
        QVERIFY(!desktop.Start());
        QVERIFY(LoadFirstPhoto(desktop.Window()));
        QVERIFY(Choose(desktop.Window(), "StartupPaintShop"));
        QWidget& shop = *QApplication::activeModalWidget();
        auto& selected = Find<QListWidget>(shop, "SelectedPaintsList");
        auto& sets = Find<QListWidget>(shop, "MfgList");
        QTest::keyClick(&sets, Qt::Key_Down);
        QCOMPARE(Find<QPushButton>(shop, "Transfer").text(), ">>");
        QTest::mouseClick(&Find<QPushButton>(shop, "Transfer"), Qt::LeftButton);
        QCOMPARE(selected.count(), 2);
        QCOMPARE(studio.Files.Read("Data/paintlist.txt"), "Artist Acrylics\r\nGouache\r\n");
        selected.setCurrentRow(1);
        QCOMPARE(Find<QPushButton>(shop, "Transfer").text(), "<<");
        QTest::keyClick(&shop, Qt::Key_Escape);
        QVERIFY(!shop.isVisible());
    }

    void EscapeInTheChooserChangesNothing() {
        const Studio studio;
        Desktop desktop(studio.Folder());
        QVERIFY(!desktop.Start());
        QVERIFY(Choose(desktop.Window(), "LoadBMP"));
        QWidget& chooser = *QApplication::activeModalWidget();
        QVERIFY(!Find<QWidget>(desktop.Window(), "CaptureFrame").isVisible());
        auto& folders = Find<QListWidget>(chooser, "ImportDir");
        folders.setCurrentRow(0);
        QTest::keyClick(&folders, Qt::Key_Return);
        QVERIFY2(chooser.isVisible(), "Enter on a folder opens it");
        QCOMPARE(Find<QListWidget>(chooser, "ImportFile").count(), 0);
        QTest::keyClick(&chooser, Qt::Key_Escape);
        QVERIFY(Find<QWidget>(desktop.Window(), "CaptureFrame").isVisible());
    }

    void EveryControlSaysWhatItIs() {
        const Studio studio;
        Desktop desktop(studio.Folder());
        QVERIFY(!desktop.Start());
        QVERIFY(LoadFirstPhoto(desktop.Window()));
        for (const char* entry : {"LoadBMP", "StartupPaintShop", "ShowAbout"}) {
            QVERIFY(Choose(desktop.Window(), entry));
            QWidget& dialog = *QApplication::activeModalWidget();
            for (const QWidget* control : dialog.findChildren<QWidget*>()) {
                const auto* button = qobject_cast<const QAbstractButton*>(control);
                QVERIFY2((control->focusPolicy() & Qt::TabFocus) == 0 ||
                             !control->accessibleName().isEmpty() ||
                             (button != nullptr && !button->text().isEmpty()) ||
                             control->objectName().startsWith("qt_"),
                         qPrintable(control->objectName() + control->metaObject()->className()));
            }
            QVERIFY2(dialog.width() <= 1366 && dialog.height() <= 700, entry);
            QTest::keyClick(&dialog, Qt::Key_Escape);
            QVERIFY(!dialog.isVisible());
        }
    }
};

}  // namespace vendrel::test

QTEST_MAIN(vendrel::test::ViewsTest)
#include "views_test.moc"
