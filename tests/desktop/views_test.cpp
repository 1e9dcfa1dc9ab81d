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
        desktop.Place().State->Chosen.Level = Difficulty::Medium;
        desktop.Window().Mirror();
        for (const MenuEntry& entry : menu.Entries()) {
            const auto* action = desktop.Window().findChild<QAction*>(Text(entry.Name));
            QVERIFY2(action != nullptr, entry.Name.data());
            QCOMPARE(action->text().remove('&'), Text(entry.Caption));
            QCOMPARE(action->isChecked(), IsChecked(desktop.Place().State->Chosen, entry.Id));
            QCOMPARE(action->isEnabled(), entry.Enabled);
        }
    }

    void ThePictureIsSeenWholeOrZoomed() {
        Surface surface(60, 40, Rgb(200, 100, 50));
        surface.Set(3, 3, kWhite);
        QCOMPARE(ToSurface(ToImage(surface)), surface);
        ZoomView view(surface);
        view.resize(200, 220);
        view.show();
        view.Refresh();
        view.resize(300, 220);
        QCOMPARE(view.PictureRect(), QRectF(0, 10, 300, 200));
        view.ZoomTo(100);
        QCOMPARE(view.viewport()
                     ->grab(QRect(120, 90, 60, 40))
                     .toImage()
                     .convertToFormat(QImage::Format_RGB32),
                 ToImage(surface));
        view.ZoomTo(800);
        QCOMPARE(view.PictureRect().topLeft(), QPointF(-90, -50));
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, QPoint(100, 100));
        QTest::mouseMove(view.viewport(), QPoint(190, 140));
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, QPoint(190, 140));
        QCOMPARE(view.PictureRect().topLeft(), QPointF(0, -10));
        const QImage shown = view.viewport()->grab().toImage();
        for (const auto& [x, white] : {std::pair(23, false), {24, true}, {31, true}, {32, false}}) {
            QCOMPARE(shown.pixel(x, 20) == qRgb(255, 255, 255), white);  // crisp to the edge
        }
        view.resize(300, 204);
        view.Fit();
        QCoreApplication::processEvents();
        QCOMPARE(view.PictureRect(), QRectF(0, 2, 300, 200));  // the bars are gone
        for (const auto& [ratio, scale] : {std::pair(1.0, 1), {1.5, 1}, {2.0, 2}, {3.5, 3}}) {
            QCOMPARE(ZoomView::Scale(ratio), scale);
        }
    }

    void ZoomingKeepsWhatIsUnderThePointer() {
        const Surface surface(600, 400, kWhite);
        ZoomView view(surface);
        view.resize(300, 220);
        view.show();
        view.Refresh();
        const QPointF at(200, 120);
        const auto spot = [&] { return (at - view.PictureRect().topLeft()) / view.Percent(); };
        const QPointF before = spot();
        for (const auto& [turn, percent] : {std::pair(240, 80.0), {6000, 800.0}, {-6000, 10.0}}) {
            QWheelEvent event(at, view.viewport()->mapToGlobal(at), {}, {0, turn}, Qt::NoButton,
                              Qt::ControlModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(view.viewport(), &event);
            QCOMPARE(view.Percent(), percent);
            QVERIFY(percent < 50 || ((spot() - before) * percent).manhattanLength() <= 2);
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
        QVERIFY(Choose(window, "ZoomFit") && view.Fits());
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
        for (const auto& [width, oneLine] : {std::pair(900, true), {420, false}, {340, false}}) {
            desktop.Window().resize(width, 500);
            QCoreApplication::processEvents();
            QVERIFY(hint.height() >= hint.heightForWidth(hint.width()));
            QCOMPARE(hint.height() < 2 * hint.fontMetrics().lineSpacing(), oneLine);
            QCOMPARE(desktop.Window().width(), width);
        }
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
