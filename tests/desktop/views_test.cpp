#include <QAbstractButton>
#include <QSignalSpy>

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

    void ThePictureIsShownPixelForPixel() {
        Surface surface(6, 4, Rgb(200, 100, 50));
        surface.Set(1, 2, Rgb(1, 2, 3));
        QCOMPARE(ToSurface(ToImage(surface)), surface);
        PictureView view(surface, PictureFit::Pixels);
        view.resize(view.sizeHint());
        QCOMPARE(view.grab().toImage().convertToFormat(QImage::Format_RGB32), ToImage(surface));
        surface.Set(3, 3, kWhite);
        view.Refresh();
        QCOMPARE(view.grab().toImage().pixel(3, 3), qRgb(255, 255, 255));
        for (const auto& [ratio, scale] : {std::pair(1.0, 1), {1.5, 1}, {2.0, 2}, {3.5, 3}}) {
            QCOMPARE(PictureView::Scale(ratio), scale);
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
