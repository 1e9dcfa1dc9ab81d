#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <memory>

#include "desktop/studio.h"
#include "paints/template_file.h"

namespace vendrel::test {

// The template shop and the colour matcher as mouse and keyboard meet them.
class ToolsTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }
    void init() {
        studio_ = std::make_unique<Studio>();
        desktop_ = std::make_unique<Desktop>(studio_->Folder());
        QVERIFY(!desktop_->Start());
        QVERIFY(LoadFirstPhoto(desktop_->Window()));
    }
    void TemplateShopKeepsWhatIsAddedAndRemoved();
    void ColorMatcherExchangesAndConverts();
    void KeysTickSeveralPaintsAndTheKitIsPaintedWithThem();
    void TheShoppingListFollowsKitsPotsAndPainting();
    void MakesAKitPaintableAsTheMouseProtectsIt();
    void AKitSavedUnderANameKeepsIt();
    void ThePdfWindowTellsWhatACanvasDoesToTheSymbols();
    void SaveEverythingShowsThePlanItPrints();
    void ValuesAreReadOutAndReachedByKeys();

  private:
    static void Press(QWidget& window, const char* button) {
        QTest::mouseClick(&Find<QPushButton>(window, button), Qt::LeftButton);
    }

    /// Answers the file dialog that comes next.
    static void NameNextFile(const std::filesystem::path& file) {
        QTimer::singleShot(0, qApp, [file] {
            auto& name = Find<QLineEdit>(*QApplication::activeModalWidget(), "fileNameEdit");
            name.setText(QString::fromStdString(file.string()));
            QTest::keyClick(&name, Qt::Key_Return);
        });
    }

    static QString Spoken(QObject& of) {
        return QAccessible::queryAccessibleInterface(&of)->text(QAccessible::Name);
    }

    std::unique_ptr<Studio> studio_;
    std::unique_ptr<Desktop> desktop_;
};

void ToolsTest::TemplateShopKeepsWhatIsAddedAndRemoved() {
    QVERIFY(Choose(desktop_->Window(), "RunTemplateShop"));
    QWidget& shop = *QApplication::activeModalWidget();
    QTimer::singleShot(0, &shop, [] {
        QWidget& question = *QApplication::activeModalWidget();
        question.findChild<QLineEdit*>()->setText(QStringLiteral("Sky"));
        static_cast<QInputDialog&>(question).accept();
    });
    Press(shop, "AddTemplate");
    auto& found = Find<QListWidget>(shop, "FoundPaints");
    Find<QLineEdit>(shop, "SearchText").setText(QStringLiteral("titanium"));
    QVERIFY(found.count() > 0 && found.count() < 20);
    found.setCurrentRow(0);
    Press(shop, "AddPaint");
    Press(shop, "AddPaint");  // not twice
    Find<QLineEdit>(shop, "SearchText").setText(QStringLiteral("sky"));
    found.setCurrentRow(0);
    Press(shop, "AddPaint");
    QCOMPARE(Find<QListWidget>(shop, "TemplatePaints").count(), 2);
    Find<QListWidget>(shop, "TemplatePaints").setCurrentRow(0);
    Press(shop, "RemovePaint");
    found.setFocus();
    QTest::keyClick(&found, Qt::Key_Home);
    QTest::keyClick(&found, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&found, Qt::Key_Return);
    auto& listed = Find<QListWidget>(shop, "TemplatePaints");
    const auto chosen = listed.selectedItems().size();
    QVERIFY(chosen > 0);
    Press(shop, "PaintUp");
    QCOMPARE(listed.selectedItems().size(), chosen);
    Press(shop, "RemovePaint");
    Press(shop, "TemplateShopDone");
    QVERIFY(!shop.isVisible());
    const auto paints = ReadTemplate(studio_->Files / "templates/Sky.csv");
    QCOMPARE(paints.Count(), 1);
    QVERIFY(paints[1].PaintName.find("Sky") != std::string::npos);
}

void ToolsTest::ColorMatcherExchangesAndConverts() {
    QVERIFY(Choose(desktop_->Window(), "ChangeToStipples"));
    const std::string before = desktop_->Place().State->PaintColors[1].PaintName;
    QVERIFY(Choose(desktop_->Window(), "NextBestColors"));
    QWidget& matcher = *QApplication::activeModalWidget();
    QCOMPARE(Find<QListWidget>(matcher, "MatcherPaints").count(), 50);
    QVERIFY(Find<QListWidget>(matcher, "NextBestPaints").count() >= 8);
    Press(matcher, "Exchange");
    QVERIFY(Find<QPushButton>(matcher, "PutBack").isEnabled());
    Press(matcher, "AcceptButton");
    QVERIFY(!matcher.isVisible());
    for (const PaintColor& paint : desktop_->Place().State->PaintColors) {
        QVERIFY(paint.PaintName != before);
    }
    QVERIFY(desktop_->Place().MainMenu[MenuId::PaintItNow].Enabled);
}

void ToolsTest::KeysTickSeveralPaintsAndTheKitIsPaintedWithThem() {
    QVERIFY(Choose(desktop_->Window(), "ChangeToStipples"));
    QVERIFY(Choose(desktop_->Window(), "ShowMyPaints"));
    QWidget* window = QApplication::activeModalWidget();
    auto& table = Find<QTreeView>(*window, "MyPaintsTable");
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Home);
    for (int i = 1; i < 5; ++i) {
        QTest::keyClick(&table, Qt::Key_Down, Qt::ShiftModifier);
    }
    QTest::keyClick(&table, Qt::Key_Space);
    QVERIFY(Find<QLabel>(*window, "MyPaintsSummary").text().startsWith(QLatin1String("5 paints")));
    QVERIFY(Spoken(Find<QLabel>(*window, "MyPaintsSummary")).contains(QLatin1String("5 paints")));
    QTest::keyClick(&table, Qt::Key_Space);  // none left
    Press(*window, "MyPaintsUndo");
    Press(*window, "MyPaintsDone");
    QVERIFY(Choose(desktop_->Window(), "ChoosePaintSource"));
    window = QApplication::activeModalWidget();
    QTRY_VERIFY(Find<QLabel>(*window, "SourceFigures").text().contains(QLatin1String("to buy")));
    QTest::mouseClick(&Find<QRadioButton>(*window, "FromOwned"), Qt::LeftButton, {}, {8, 8});
    Press(*window, "AcceptSource");
    QVERIFY(desktop_->Place().State->PaintCount <= 5);
    QVERIFY(Find<QPushButton>(desktop_->Window(), "PaintsFrom").text().contains("own"));
    QVERIFY(Choose(desktop_->Window(), "ShowMissingPaints"));
    window = QApplication::activeModalWidget();
    QVERIFY(Find<QLabel>(*window, "MissingSummary").text().contains(QLatin1String("have all")));
    Press(*window, "MissingDone");
}

void ToolsTest::TheShoppingListFollowsKitsPotsAndPainting() {
    MainWindow& main = desktop_->Window();
    const auto& files = studio_->Files;
    QVERIFY(Choose(main, "ChangeToStipples") && Choose(main, "SaveKit"));
    std::filesystem::copy(files / "Kits/PBNLady.kit", files / "Kits/again.kit");
    const PaintColor& first = desktop_->Place().State->PaintColors[1];
    files.Write("Data/mypaints.csv", "set,name,code,ml left\n" + first.Mfg + "," + first.PaintName +
                                         "," + first.PaintCode + ",500\n");
    QVERIFY(Choose(main, "ShowShopping"));
    QWidget& window = *QApplication::activeModalWidget();
    auto& kits = Find<QListWidget>(window, "ShoppedKits");
    const auto summary = [&window] { return Find<QLabel>(window, "ShoppingSummary").text(); };
    const QString one = summary();
    QVERIFY2(one.endsWith("Of 1 more you have enough."), qPrintable(one));
    NameNextFile(files / "Kits/again.kit");
    Press(window, "AddKits");
    QCOMPARE(kits.count(), 2);
    const QString both = summary();
    QVERIFY(both != one);
    kits.setFocus();
    QTest::keyClick(&kits, Qt::Key_Down);
    for (const QString& next : {one, both}) {
        QTest::keyClick(&kits, Qt::Key_Space);
        QTRY_COMPARE(summary(), next);
    }
    auto& pot = Find<QDoubleSpinBox>(window, "PotOf");
    pot.selectAll();
    QTest::keyClicks(&pot, "20");
    QTest::keyClick(&pot, Qt::Key_Tab);
    QVERIFY2(summary().contains(" pots with "), qPrintable(summary()));
    const auto shelf = [&files] { return files.Read("Data/mypaints.csv"); };
    Press(window, "IPaintedIt");
    const std::string painted = shelf();
    QVERIFY(painted.find("PBNLady") != painted.npos && kits.item(1)->text().endsWith("painted"));
    QVERIFY(!Find<QPushButton>(window, "IPaintedIt").isEnabled());
    Press(window, "UndoPainted");
    QVERIFY(shelf().find("PBNLady") == std::string::npos);
    std::string pages[2];
    for (std::string& page : pages) {
        NameNextFile(files / "list.pdf");
        Press(window, "SaveShoppingPage");
        page = files.Read("list.pdf");
        std::filesystem::remove(files / "list.pdf");
    }
    QVERIFY(pages[0].starts_with("%PDF") && pages[0] == pages[1]);
    QTest::keyClick(&kits, Qt::Key_Delete);
    QCOMPARE(kits.count(), 1);
    QTest::keyClick(&window, Qt::Key_Escape);
    QVERIFY(!window.isVisible());
}

void ToolsTest::MakesAKitPaintableAsTheMouseProtectsIt() {
    const WorkState& kit = desktop_->Place().State;
    QVERIFY(Choose(desktop_->Window(), "ChangeToStipples"));
    QVERIFY(Choose(desktop_->Window(), "MakeItPaintable"));
    QWidget* window = QApplication::activeModalWidget();
    const auto figures = [&window] { return Find<QLabel>(*window, "PaintableFigures").text(); };
    const QString usual = figures();
    Find<QDoubleSpinBox>(*window, "SmallestSpot").setValue(200);
    QTRY_VERIFY(figures() != usual);
    const QString large = figures();

    auto& view = Find<QWidget>(*window, "PaintableView");
    const auto stroke = [&view](Qt::MouseButton button) {
        const QPoint to(view.width() / 6, view.height() / 2);
        QTest::mousePress(&view, button, {}, to - QPoint(40, 40));
        QMouseEvent move(QEvent::MouseMove, to, view.mapToGlobal(to), Qt::NoButton, button, {});
        QApplication::sendEvent(&view, &move);
        QTest::mouseRelease(&view, button, {}, to);
    };
    stroke(Qt::LeftButton);
    QCOMPARE(figures(), large);  // it only dragged
    Find<QCheckBox>(*window, "ProtectParts").click();
    stroke(Qt::LeftButton);
    const QString held = figures();
    QVERIFY(held != large);
    Press(*window, "UndoProtect");
    QCOMPARE(figures(), large);
    Press(*window, "RedoProtect");
    QCOMPARE(figures(), held);
    stroke(Qt::RightButton);
    QCOMPARE(figures(), large);
    const QImage painted = view.grab().toImage();
    Find<QCheckBox>(*window, "OutlinesOnly").click();
    QVERIFY(view.grab().toImage() != painted);
    Press(*window, "CancelButton");
    QVERIFY(!window->isVisible() && !kit.PaintableKit && kit.Protected.All().empty());

    QVERIFY(Choose(desktop_->Window(), "MakeItPaintable"));
    window = QApplication::activeModalWidget();
    QCOMPARE(figures(), usual);
    Find<QDoubleSpinBox>(*window, "SmallestSpot").setValue(200);
    Press(*window, "OkButton");  // before the figures have followed
    QVERIFY(!window->isVisible() && kit.PaintableKit && kit.Chosen.Limits.SmallestMm2 == 200);

    QVERIFY(Choose(desktop_->Window(), "NextBestColors"));
    Press(*QApplication::activeModalWidget(), "AcceptButton");
    QVERIFY2(kit.PaintableKit && !kit.Chosen.Paintable, "matched again it stays paintable");
}

void ToolsTest::AKitSavedUnderANameKeepsIt() {
    MainWindow& main = desktop_->Window();
    QVERIFY(Choose(main, "WatchItPaint") && Choose(main, "ChangeToStipples"));
    QVERIFY(Choose(main, "PaintItNow") && Choose(main, "SaveItAll"));
    QWidget& window = *QApplication::activeModalWidget();
    auto& name = Find<QLineEdit>(window, "KitName");
    const auto type = [&name](const char* text) {
        name.clear();
        QTest::keyClicks(&name, QString::fromLatin1(text));
    };
    QCOMPARE(name.text(), QStringLiteral("PBNLady"));
    type("a/b");
    {
        NextMessage message;
        Press(window, "SaveEverything");
        QVERIFY2(message.Text.contains("without slashes"), qPrintable(message.Text));
    }
    type("Lady 2");
    QVERIFY(Find<QLabel>(window, "AlwaysSaved").text().contains("Lady 2 Easy Painting.BMP"));
    QCOMPARE(desktop_->Place().State->PictureName, std::string("PBNLady"));
    NextMessage saved;
    Press(window, "SaveEverything");
    QVERIFY(!window.isVisible());
    QVERIFY(std::filesystem::exists(studio_->Files / "Results/Lady 2 Easy Painting.BMP"));
    QVERIFY(!std::filesystem::exists(studio_->Files / "Results/PBNLady Easy Painting.BMP"));
    QCOMPARE(desktop_->Place().State->PictureName, std::string("Lady 2"));
    QVERIFY(Choose(main, "SaveKit") && Choose(main, "StartupPaintShop"));
    QVERIFY2(!main.isWindowModified(), "the shop shows paints of its own");
    QApplication::activeModalWidget()->close();
    QVERIFY(!main.isWindowModified());
    QVERIFY(LoadFirstPhoto(main));
    QCOMPARE(desktop_->Place().State->PictureName, std::string("PBNLady"));
}

void ToolsTest::ThePdfWindowTellsWhatACanvasDoesToTheSymbols() {
    MainWindow& main = desktop_->Window();
    QVERIFY(Choose(main, "WatchItPaint") && Choose(main, "ChangeToStipples"));
    QVERIFY(Choose(main, "PaintItNow") && Choose(main, "SaveKitPdf"));
    QWidget& window = *QApplication::activeModalWidget();
    const auto text = [&window](const char* label) { return Find<QLabel>(window, label).text(); };
    QTRY_VERIFY(text("PlanSmallest").startsWith("2."));
    QVERIFY(!text("PlanWarning").contains("no room"));
    const QString pages = text("PlanPages");
    Find<QRadioButton>(window, "ChosenCanvas").click();
    Find<QDoubleSpinBox>(window, "CanvasWidth").setValue(12);
    QVERIFY(text("PlanCanvas").startsWith("12.0"));
    QVERIFY(text("PlanPages") != pages);
    QTRY_VERIFY2(text("PlanWarning").contains("no room for a symbol"),
                 qPrintable(text("PlanWarning")));
    QCOMPARE(Spoken(Find<QLabel>(window, "PlanWarning")), text("PlanWarning"));
    Find<QRadioButton>(window, "SizedCanvas").click();
    auto& across = Find<QDoubleSpinBox>(window, "CanvasAcross");
    across.setFocus();
    across.selectAll();
    QTest::keyClicks(&across, "20");
    QTest::keyClick(&across, Qt::Key_Tab);
    QVERIFY2(text("PlanCanvas").startsWith("20.0 \u00d7 40.0 cm, the picture 20.0"),
             qPrintable(text("PlanCanvas")));
    auto& paper = Find<QComboBox>(window, "Paper");
    QVERIFY(!Find<QDoubleSpinBox>(window, "PlanBleed").isEnabled());
    QTest::keyClick(&paper, Qt::Key_T);
    QVERIFY(!Find<QDoubleSpinBox>(window, "PaperWidth").isEnabled());
    QTRY_VERIFY(!Find<QLabel>(window, "PlanPage").pixmap().isNull());
    const QImage letters = Find<QLabel>(window, "PlanPage").pixmap().toImage();
    QTest::keyClick(&Find<QComboBox>(window, "PlanSymbols"), Qt::Key_End);
    QTRY_VERIFY(Find<QLabel>(window, "PlanPage").pixmap().toImage() != letters);
    QCOMPARE(desktop_->Form().Everything().Plan().Settings().Symbols, SymbolStyle::Mine);
    Press(window, "CancelPdf");
}

void ToolsTest::SaveEverythingShowsThePlanItPrints() {
    MainWindow& main = desktop_->Window();
    QVERIFY(Choose(main, "WatchItPaint") && Choose(main, "ChangeToStipples"));
    QVERIFY(Choose(main, "PaintItNow") && Choose(main, "SaveItAll"));
    QWidget& window = *QApplication::activeModalWidget();
    QVERIFY(Spoken(Find<QLabel>(window, "AlwaysSaved")).contains("Easy PBS.BMP"));
    const auto& warning = Find<QLabel>(window, "PlanWarning");
    QVERIFY(!warning.isEnabled());
    for (const char* wanted : {"SaveGrid", "SavePdfToo"}) {
        QTest::keyClick(&Find<QCheckBox>(window, wanted), Qt::Key_Space);
    }
    QTRY_COMPARE(warning.text(), "All symbols can be read.");
    QVERIFY(warning.isEnabled());
    QTest::mouseClick(&Find<QRadioButton>(window, "ChosenCanvas"), Qt::LeftButton);
    auto& width = Find<QDoubleSpinBox>(window, "CanvasWidth");
    width.selectAll();
    QTest::keyClicks(&width, "12");
    QTest::keyClick(&width, Qt::Key_Tab);
    QTRY_VERIFY2(warning.text().contains("no room for a symbol"), qPrintable(warning.text()));
    {
        NextMessage saved;
        QTest::keyClick(&window, Qt::Key_Return);
        QVERIFY2(saved.Text.contains("PBNLady-Easy.stp"), qPrintable(saved.Text));
    }
    QVERIFY(!window.isVisible());
    QVERIFY(std::filesystem::exists(studio_->Files / "Results/PBNLady Easy Kit.pdf"));
    const AsShown sizes;
    for (const char* entry : {"SaveItAll", "SaveKitPdf"}) {
        QVERIFY(Choose(main, entry));
        QWidget& again = *QApplication::activeModalWidget();
        QCoreApplication::processEvents();
        QCOMPARE(again.size(), sizes.Size);
        QTest::keyClick(&again, Qt::Key_Escape);
    }
    QVERIFY(desktop_->Form().Everything().Grid());
    QCOMPARE(desktop_->Form().Everything().Plan().Settings().CanvasCm, 12.0);
}

void ToolsTest::ValuesAreReadOutAndReachedByKeys() {
    MainWindow& main = desktop_->Window();
    QVERIFY(Choose(main, "StartupPaintShop"));
    QWidget& shop = *QApplication::activeModalWidget();
    auto& swatches = Find<QWidget>(shop, "PaintPalette");
    QVERIFY(QTest::qWaitForWindowActive(&shop));
    swatches.setFocus();
    QTest::keyClick(&swatches, Qt::Key_Right);
    QVERIFY2(Spoken(swatches).contains(", paint 2 of "), qPrintable(Spoken(swatches)));
    Press(shop, "AllDone");
    QVERIFY(Choose(main, "ChangeToStipples") && Choose(main, "NextBestColors"));
    QWidget& matcher = *QApplication::activeModalWidget();
    auto& rows = Find<QListWidget>(matcher, "MatcherPaints");
    QTest::keyClick(&Find<QListWidget>(matcher, "NextBestPaints"), Qt::Key_Return);
    QVERIFY2(matcher.isVisible(), "Enter exchanges and does not accept too");
    QVERIFY(rows.item(0)->data(Qt::AccessibleTextRole).toString().contains(", instead of "));
    Press(matcher, "CancelButton");
    QVERIFY(Choose(main, "ColorPickerSelect"));
    QWidget& editor = *QApplication::activeModalWidget();
    QVERIFY(Spoken(Find<QLabel>(editor, "Loners")).contains("loners"));
    QVERIFY(Spoken(Find<QLabel>(editor, "CleanLevel")).endsWith("evel 8"));
    QVERIFY(Spoken(Find<QLabel>(editor, "Zoom")).contains("pixels"));
    Press(editor, "Cancel");
}

}  // namespace vendrel::test

QTEST_MAIN(vendrel::test::ToolsTest)
#include "tools_test.moc"
