#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <filesystem>

#include "desktop/touch_up_bench.h"

namespace vendrel::test {
namespace {

// Answers questions as long as it lives.
class Answer {
  public:
    explicit Answer(QMessageBox::StandardButton button) {
        QObject::connect(&timer_, &QTimer::timeout, [this, button] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                ++Asked;
                box->button(button)->click();
            }
        });
        timer_.start(5);
    }
    int Asked = 0;

  private:
    QTimer timer_;
};

}  // namespace

// How the editor ends, and what becomes of the work in it.
class TouchUpClosingTest : public QObject, private TouchUpBench {
    Q_OBJECT

  private slots:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }
    void init() { Open(); }
    void cleanup() { Close(); }
    void SavingTheKitFreesTheCancelFromItsQuestion();
    void ClosingTheProgramWithAcceptedWorkAsks();
    void KeptWorkIsRestoredOrThrownAway();
    void AnEditorThatCannotOpenDoesNothingButClose();
    void TheEndOfTheSessionKeepsOpenWorkOrIsRefused();
};

void TouchUpClosingTest::SavingTheKitFreesTheCancelFromItsQuestion() {
    QVERIFY(!Button("LoadIt").isEnabled());
    Drag(At(1, 1), At(3, 1));
    {
        const Answer stay(QMessageBox::Cancel);
        Button("Cancel").click();
        QCOMPARE(stay.Asked, 1);
    }
    QVERIFY(canvas_->isVisible());
    canvas_->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(canvas_->window()));
    const std::filesystem::path stipples = *files_ / "Saved Stipples/halves-Easy.stp";
    QTest::keySequence(canvas_, QKeySequence(Qt::CTRL | Qt::Key_S));
    QVERIFY(std::filesystem::exists(*files_ / "Kits/halves.kit"));
    QVERIFY(!std::filesystem::exists(stipples) && !Button("LoadIt").isEnabled());
    QTest::keySequence(canvas_, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    QVERIFY(std::filesystem::exists(stipples) && Button("LoadIt").isEnabled());
    canvas_->window()->showMaximized();
    Button("Cancel").click();
    QVERIFY(!canvas_->isVisible());
    QVERIFY(Choose(desktop_->Window(), "ColorPickerSelect"));
    QVERIFY2(QApplication::activeModalWidget()->isMaximized(), "as it was closed");
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    QVERIFY(desktop_->Window().findChild<QAction*>(QStringLiteral("LoadStipples"))->isEnabled());
}

void TouchUpClosingTest::ClosingTheProgramWithAcceptedWorkAsks() {
    MainWindow& window = desktop_->Window();
    Drag(At(1, 1), At(3, 1));
    Button("Accept").click();
    QVERIFY(State().HasUnsavedWork);
    QVERIFY(std::filesystem::exists(*files_ / "Saved Stipples/halves-Easy.recovery.stp"));
    {
        const Answer stay(QMessageBox::Cancel);
        QVERIFY(!window.close());
        QVERIFY(Choose(window, "EndItAll"));
        QCOMPARE(stay.Asked, 2);
    }
    QVERIFY(window.isVisible() && window.isWindowModified());
    const Answer discard(QMessageBox::Discard);
    QVERIFY(window.close());
    QCOMPARE(discard.Asked, 1);
}

void TouchUpClosingTest::KeptWorkIsRestoredOrThrownAway() {
    QTest::mouseClick(canvas_->viewport(), Qt::LeftButton, {}, At(2, 2));
    static_cast<FormDialog*>(canvas_->window())->KeepWork();
    const std::filesystem::path crashed = *files_ / "Saved Stipples/halves-Easy.recovery.stp";
    std::filesystem::copy(crashed, *files_ / "Saved Stipples/halves-Easy.recovery-2.stp");
    std::filesystem::copy(crashed, *files_ / "Saved Stipples/dog-Medium.recovery.stp");
    QTest::keySequence(canvas_, QKeySequence(Qt::CTRL | Qt::Key_Z));
    QTest::keyClick(canvas_, Qt::Key_Escape);
    QVERIFY(Choose(desktop_->Window(), "ColorPickerSelect"));
    QWidget& kept = *QApplication::activeModalWidget();
    auto& list = Find<QTreeWidget>(kept, "KeptList");
    auto& restore = Find<QPushButton>(kept, "Restore");
    canvas_ = &Find<TouchUpCanvas>(desktop_->Window(), "Canvas");
    QCOMPARE(list.topLevelItemCount(), 2);
    const int dog = list.topLevelItem(0)->text(1) == "dog" ? 0 : 1;
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.topLevelItem(dog)).center());
    QVERIFY(!restore.isEnabled());
    QVERIFY(Find<QLabel>(kept, "KeptHint").accessibleName().contains("photo dog at Medium"));
    QVERIFY(QTest::qWaitForWindowActive(&kept));
    QTimer::singleShot(0, &kept, [] {
        auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(question != nullptr && question->text().contains("dog (Medium)"));
        QTest::mouseClick(question->button(QMessageBox::Yes), Qt::LeftButton);
    });
    QTest::keyClick(&list, Qt::Key_Delete);
    QCOMPARE(list.topLevelItemCount(), 1);
    QTest::keyClick(&kept, Qt::Key_Escape);
    QVERIFY(!kept.isVisible());
    QTest::mouseClick(&Button("KeptWork"), Qt::LeftButton);
    QTest::mouseClick(&restore, Qt::LeftButton);
    QVERIFY(!kept.isVisible());
    QCOMPARE(PaintAt(2, 2), 2);
    QCOMPARE(UndoText(), QStringLiteral("Undo Restore"));
}

void TouchUpClosingTest::AnEditorThatCannotOpenDoesNothingButClose() {
    MainWindow& window = desktop_->Window();
    Button("Cancel").click();
    State().Stipples = {};
    {
        NextMessage message;
        QVERIFY(Choose(window, "ColorPickerSelect"));
        QVERIFY2(message.Text.contains(QStringLiteral("no stipples")), qPrintable(message.Text));
    }
    canvas_ = &Find<TouchUpCanvas>(window, "Canvas");
    QVERIFY(canvas_->isVisible());
    emit canvas_->Pressed({1, 1});
    emit canvas_->Dragged({1, 1});
    emit canvas_->Released();
    emit canvas_->Picked({1, 1});
    emit Rows().Chosen(1);
    Button("NextLoner").click();
    QTest::keyClick(canvas_->window(), Qt::Key_Escape);
    QVERIFY(!canvas_->isVisible());
}

void TouchUpClosingTest::TheEndOfTheSessionKeepsOpenWorkOrIsRefused() {
    using enum MainWindow::Questions;
    namespace fs = std::filesystem;
    MainWindow& window = desktop_->Window();
    const fs::path kept = *files_ / "Saved Stipples/halves-Easy.recovery.stp";
    QVERIFY(window.MayEndSession(Allowed));
    QVERIFY2(!fs::exists(kept), "nothing was changed");
    for (const auto questions : {Forbidden, Allowed}) {
        Drag(At(1, 1), At(3, 1));
        QVERIFY(window.MayEndSession(questions));
        QVERIFY(fs::exists(kept));
        fs::remove(kept);
        QTest::keySequence(canvas_, QKeySequence(Qt::CTRL | Qt::Key_Z));
    }
    Drag(At(1, 1), At(3, 1));
    fs::remove_all(kept.parent_path());
    files_->Write("Saved Stipples", "no folder");
    NextMessage message;
    QVERIFY(!window.MayEndSession(Allowed));
    QVERIFY(!message.Text.isEmpty());
    QVERIFY(!window.MayEndSession(Forbidden));
}

}  // namespace vendrel::test

QTEST_MAIN(vendrel::test::TouchUpClosingTest)
#include "touch_up_closing_test.moc"
