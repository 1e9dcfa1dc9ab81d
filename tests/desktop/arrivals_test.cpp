#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QRadioButton>
#include <QUrl>

#include "convert/child_decoder.h"
#include "desktop/arrivals.h"
#include "desktop/crop_view.h"
#include "desktop/studio.h"
#include "desktop/text.h"
#include "export/qt_image.h"

namespace vendrel::test {

/// How photos come in: dropped, pasted, chosen and cropped.
class ArrivalsTest : public QObject {
    Q_OBJECT

  private:
    static QString Save(const QImage& picture, const std::filesystem::path& file) {
        picture.save(Text(file.string()));
        return Text(file.string());
    }
    static QImage Square() {
        QImage square(1200, 1200, QImage::Format_RGB32);
        square.fill(QColor(200, 120, 90));
        return square;
    }

  private slots:
    void AFileIsDroppedOnTheWindow() {
        const Studio studio;
        const ChildDecoder decoder(VENDREL_STUDIO);
        Desktop desktop(studio.Folder(), &decoder);
        QVERIFY(!desktop.Start());
        MainWindow& window = desktop.Window();
        QMimeData nothing;
        nothing.setText(QStringLiteral("no photo"));
        QDragEnterEvent refused(QPoint(5, 5), Qt::CopyAction, &nothing, Qt::LeftButton,
                                Qt::NoModifier);
        QApplication::sendEvent(&window, &refused);
        QVERIFY(!refused.isAccepted());

        QMimeData file;
        file.setUrls({QUrl::fromLocalFile(Save(Square(), studio.Files / "sea side.jpg"))});
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &enter);
        QVERIFY(enter.isAccepted());
        window.Works().Run([&] {
            QDropEvent busy(QPointF(5, 5), Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&window, &busy);
        });
        QApplication::processEvents();
        QVERIFY2(!desktop.Place().State->PictureLoaded, "not while work runs");
        QApplication::sendEvent(&window, &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &file, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &drop);
        QTRY_VERIFY(QApplication::activeModalWidget() != nullptr);
        QWidget& asking = *QApplication::activeModalWidget();
        auto& keep = Find<QRadioButton>(asking, "KeepWay");
        QTRY_VERIFY(keep.isChecked() && keep.hasFocus());
        QTest::keyClick(&keep, Qt::Key_Right);
        QTest::keyClick(&Find<QRadioButton>(asking, "CropWay"), Qt::Key_Right);
        QCOMPARE(desktop.Form().Chooser().Asking().Fit().Way(), PhotoFit::Stretch);
        QTest::keyClick(&asking, Qt::Key_Return);
        QVERIFY(!asking.isVisible());
        QVERIFY(desktop.Place().State->PictureLoaded);
        QCOMPARE(window.windowTitle(), "Vendrel - sea side");
        QVERIFY(std::filesystem::exists(studio.Files / "Pictures/sea side.bmp"));
    }

    void APictureIsPasted() {
        const Studio studio;
        const ChildDecoder decoder(VENDREL_STUDIO);
        Desktop desktop(studio.Folder(), &decoder);
        QVERIFY(!desktop.Start());
        QVERIFY(QTest::qWaitForWindowActive(&desktop.Window()));
        QApplication::clipboard()->setImage(Square());
        QTest::keySequence(&desktop.Window(), QKeySequence::Paste);
        QTRY_VERIFY(QApplication::activeModalWidget() != nullptr);
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        QVERIFY(!desktop.Place().State->PictureLoaded);
        const AsShown sizes;
        desktop.Form().PastePicture(ToSurface(Square()));
        QCoreApplication::processEvents();
        QCOMPARE(QApplication::activeModalWidget()->size(), sizes.Size);
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        NextMessage message;
        QMimeData text;
        text.setText(QStringLiteral("no photo"));
        desktop.Form().PastePicture(ArrivalOf(text).Picture);
        QVERIFY(message.Text.contains("Copy a picture"));
        QCOMPARE(desktop.Window().windowTitle(), "Vendrel - Pasted picture");
    }

    void AFrameIsDraggedOverTheChosenPhoto() {
        const Studio studio;
        Save(Square(), studio.Files / "Pictures/aaa.png");
        const ChildDecoder decoder(VENDREL_STUDIO);
        Desktop desktop(studio.Folder(), &decoder);
        QVERIFY(!desktop.Start());
        QVERIFY(Choose(desktop.Window(), "LoadBMP"));
        QWidget& chooser = *QApplication::activeModalWidget();
        Find<QListWidget>(chooser, "ImportFile").setCurrentRow(0);
        QTest::mouseClick(&Find<QPushButton>(chooser, "CropButton"), Qt::LeftButton);
        QWidget& crop = *QApplication::activeModalWidget();
        QVERIFY(&crop != &chooser);
        auto& view = Find<CropView>(crop, "CropView");
        const CropRect& frame = desktop.Form().Chooser().Crop().Controls().Frame;
        const CropRect start = frame;
        const QPoint corner = view.Shown({start.Left + start.Width, start.Top + start.Height});
        const QPoint middle =
            view.Shown({start.Left + start.Width / 2, start.Top + start.Height / 2});
        QTest::mousePress(&view, Qt::LeftButton, {}, corner);
        QMouseEvent move(QEvent::MouseMove, QPointF(middle), view.mapToGlobal(QPointF(middle)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &move);
        QTest::mouseRelease(&view, Qt::LeftButton, {}, middle);
        QVERIFY(frame.Width < start.Width * 6 / 10);
        const CropRect small = frame;
        QTest::keyClick(&view, Qt::Key_Right);
        QVERIFY(frame.Left > small.Left);
        QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
        QVERIFY(frame.Width > small.Width);
        QTest::keyClick(&view, Qt::Key_Return);
        QVERIFY(!crop.isVisible());
        QCOMPARE(Find<QListWidget>(chooser, "ImportFile").currentItem()->text(), "aaa crop.bmp");
        QTest::mouseClick(&Find<QPushButton>(chooser, "OKButton"), Qt::LeftButton);
        QCOMPARE(desktop.Window().windowTitle(), "Vendrel - aaa crop");
    }
};

}  // namespace vendrel::test

QTEST_MAIN(vendrel::test::ArrivalsTest)
#include "arrivals_test.moc"
