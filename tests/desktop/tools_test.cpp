#include <QAccessible>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
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
    void ThePdfWindowTellsWhatACanvasDoesToTheSymbols();
    void ValuesAreReadOutAndReachedByKeys();

  private:
    static void Press(QWidget& window, const char* button) {
        QTest::mouseClick(&Find<QPushButton>(window, button), Qt::LeftButton);
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

void ToolsTest::ThePdfWindowTellsWhatACanvasDoesToTheSymbols() {
    MainWindow& main = desktop_->Window();
    QVERIFY(Choose(main, "WatchItPaint") && Choose(main, "ChangeToStipples"));
    QVERIFY(Choose(main, "PaintItNow") && Choose(main, "SaveKitPdf"));
    QWidget& window = *QApplication::activeModalWidget();
    const auto text = [&window](const char* label) { return Find<QLabel>(window, label).text(); };
    QVERIFY(text("PlanSmallest").startsWith("2."));
    QVERIFY(!text("PlanWarning").contains("no room"));
    const QString pages = text("PlanPages");
    Find<QRadioButton>(window, "ChosenCanvas").click();
    Find<QDoubleSpinBox>(window, "CanvasWidth").setValue(12);
    QVERIFY(text("PlanCanvas").startsWith("12.0"));
    QVERIFY(text("PlanPages") != pages);
    QVERIFY2(text("PlanWarning").contains("no room for a symbol"), qPrintable(text("PlanWarning")));
    QCOMPARE(Spoken(Find<QLabel>(window, "PlanWarning")), text("PlanWarning"));
    Press(window, "CancelPdf");
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
