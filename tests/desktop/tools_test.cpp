#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
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

  private:
    static void Press(QWidget& window, const char* button) {
        QTest::mouseClick(&Find<QPushButton>(window, button), Qt::LeftButton);
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

}  // namespace vendrel::test

QTEST_MAIN(vendrel::test::ToolsTest)
#include "tools_test.moc"
