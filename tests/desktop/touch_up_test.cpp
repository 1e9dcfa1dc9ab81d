#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPaintEvent>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>

#include "desktop/touch_up_bench.h"

namespace vendrel::test {
// The editor as a hand on mouse and keyboard meets it.
class TouchUpWindowTest : public QObject, private TouchUpBench {
    Q_OBJECT

  private slots:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }
    void init() { Open(); }
    void cleanup() { Close(); }
    void BrushRepaintsWithoutGapsAndIsUndone();
    void FillAndReplaceFollowTheirKeys();
    void RightClickPicksThePaint();
    void WheelZoomsAtThePointer();
    void SpaceDragsWhereverTheKeyboardIs();
    void ZoomingAfterALonerIsFoundShowsIt();
    void ValuesAreReadOut();
    void EveryWidgetHasANameAndAKeyOfItsOwn();
    void StrokesRepaintOnlyWhatTheyTouch();
    void PressesWithKeysPickEraseAndDrawLines();
    void SelectionsAreMovedCopiedMirroredAndPasted();
    void AreasAreOutlinedMarkedAndMerged();
    void PaintsStandAloneAndMoveAndGo();
    void HistoryGoesToAnyStep();
    void PhotoAndPaintingStandBesideTheStipples();
};

void TouchUpWindowTest::BrushRepaintsWithoutGapsAndIsUndone() {
    QCOMPARE(PaintAt(2, 2), 1);
    QTest::keyClick(canvas_, Qt::Key_2);
    Drag(At(2, 2), At(9, 5));
    for (int x = 2; x <= 10; ++x) {
        bool painted = false;
        for (int y = 2; y <= 6; ++y) {
            painted = painted || PaintAt(x, y) == 2;
        }
        QVERIFY2(painted, qPrintable(QString::number(x)));
    }
    QCOMPARE(UndoText(), QStringLiteral("Undo Brush"));
    QTest::keySequence(canvas_, QKeySequence(Qt::CTRL | Qt::Key_Z));
    QCOMPARE(State().EditStipples, State().Stipples);
    QTest::keySequence(canvas_, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    QCOMPARE(PaintAt(10, 6), 2);
}

void TouchUpWindowTest::FillAndReplaceFollowTheirKeys() {
    const int whole = State().CellsAcross * State().CellsDown;
    for (const Qt::Key key : {Qt::Key_F, Qt::Key_R}) {
        QTest::keyClick(canvas_, key);
        QTest::mouseClick(canvas_->viewport(), Qt::LeftButton, {}, At(1, 1));
        QCOMPARE(Rows().topLevelItem(1)->text(2), QString::number(whole));
        QCOMPARE(Rows().topLevelItem(0)->text(2), QStringLiteral("0"));
        QTest::keySequence(canvas_, QKeySequence(Qt::CTRL | Qt::Key_Z));
    }
    // The same without a mouse: one stipple to the right, then Enter.
    QTest::keyClick(canvas_, Qt::Key_1);
    QTest::keyClick(canvas_, Qt::Key_Right);
    QTest::keyClick(canvas_, Qt::Key_Return);
    QCOMPARE(PaintAt(2, 1), 2);
}

void TouchUpWindowTest::RightClickPicksThePaint() {
    QTest::mouseClick(canvas_->viewport(), Qt::RightButton, {}, At(1, 1));
    QCOMPARE(Rows().indexOfTopLevelItem(Rows().currentItem()), 0);
}

void TouchUpWindowTest::WheelZoomsAtThePointer() {
    const double fit = canvas_->Edge();
    for (const CellPos cell :
         {CellPos{State().CellsAcross / 3, 2}, CellPos{1, State().CellsDown}}) {
        const QPoint spot = At(cell.X, cell.Y);
        Hover(spot);
        for (int turns = 0; turns < 30; ++turns) {
            QWheelEvent turn(spot, canvas_->viewport()->mapToGlobal(spot), {}, {0, 120},
                             Qt::NoButton, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(canvas_->viewport(), &turn);
        }
        QCOMPARE(canvas_->Edge(), TouchUpCanvas::kLargestEdge);
        QVERIFY2((At(cell.X, cell.Y) - spot).manhattanLength() <= TouchUpCanvas::kLargestEdge / 2,
                 "it has run away");
        QCOMPARE(canvas_->PointedCell(), cell);
        QTest::keyClick(canvas_, Qt::Key_0);
        QCOMPARE(canvas_->Edge(), fit);
    }
    for (int steps = 0; steps < 30; ++steps) {
        Find<QToolButton>(*canvas_->window(), "ZoomIn").click();
    }
    canvas_->CenterOn({1, 1});
    const QPoint corner = At(1, 1) - QPoint(32, 32);
    QVERIFY2(corner.manhattanLength() <= 2, "no room is left beside the sheet needlessly");
    Hover(At(3, 2));
    canvas_->CenterOn({State().CellsAcross, 1});
    QVERIFY2(canvas_->PointedCell().X > 3, "the brush stays under a mouse that lies still");
}

void TouchUpWindowTest::SpaceDragsWhereverTheKeyboardIs() {
    const Grid<StippleCell> before = State().EditStipples;
    for (int i = 0; i < 12; ++i) {
        Find<QToolButton>(*canvas_->window(), "ZoomIn").click();
    }
    for (QWidget* focus : {static_cast<QWidget*>(&Rows()), static_cast<QWidget*>(canvas_),
                           static_cast<QWidget*>(&Button("NextLoner"))}) {
        focus->setFocus();
        const QPoint corner = At(1, 1);
        const QPoint middle = canvas_->viewport()->rect().center();
        QTest::keyPress(focus, Qt::Key_Space);
        Drag(middle, middle - QPoint(30, 20));
        QTest::keyRelease(canvas_, Qt::Key_Space);
        QCOMPARE(At(1, 1), corner - QPoint(30, 20));
        QCOMPARE(State().EditStipples, before);
    }
    Drag(At(2, 2), At(5, 5));
    QVERIFY2(State().EditStipples != before, "let go, it paints again");
}

void TouchUpWindowTest::ZoomingAfterALonerIsFoundShowsIt() {
    const CellPos loner{State().CellsAcross - 4, State().CellsDown - 3};
    ChoosePaint(1);
    QTest::mouseClick(canvas_->viewport(), Qt::LeftButton, {}, At(loner.X, loner.Y));
    QTest::mouseMove(canvas_->viewport(), At(3, 3));
    QTest::keyClick(canvas_, Qt::Key_F3);
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(canvas_, Qt::Key_Plus);
    }
    QCOMPARE(canvas_->Edge(), TouchUpCanvas::kLargestEdge);
    QVERIFY(canvas_->viewport()->rect().contains(At(loner.X, loner.Y)));
}

void TouchUpWindowTest::ValuesAreReadOut() {
    for (const auto& [name, read] :
         {std::pair("Loners", "Loners: No loners"), {"CleanLevel", "Clean-up level: Level 8"}}) {
        QCOMPARE(QAccessible::queryAccessibleInterface(&Find<QLabel>(*canvas_->window(), name))
                     ->text(QAccessible::Name),
                 QString::fromLatin1(read));
    }
}

void TouchUpWindowTest::EveryWidgetHasANameAndAKeyOfItsOwn() {
    QWidget& window = *canvas_->window();
    for (const QWidget* part : window.findChildren<QWidget*>()) {
        const bool ofQt = part->objectName().startsWith(QLatin1String("qt_"));
        if (part->focusPolicy() != Qt::NoFocus && !ofQt) {
            auto* read = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(part));
            QVERIFY2(!read->text(QAccessible::Name).isEmpty(),
                     qPrintable(part->metaObject()->className() + (" " + part->objectName())));
        }
    }
    auto& panels = Find<QTabWidget>(window, "Panels");
    for (int panel = 0; panel < panels.count(); ++panel) {
        panels.setCurrentIndex(panel);
        QStringList keys;
        for (const auto* button : window.findChildren<QAbstractButton*>()) {
            keys << (button->isVisible() ? button->shortcut().toString() : QString());
        }
        for (const auto* label : window.findChildren<QLabel*>()) {
            const bool leads = label->isVisible() && label->buddy() != nullptr;
            keys << (leads ? QKeySequence::mnemonic(label->text()).toString() : QString());
        }
        for (int tab = 0; tab < panels.count(); ++tab) {
            keys << QKeySequence::mnemonic(panels.tabText(tab)).toString();
        }
        keys.removeAll(QString());
        QCOMPARE(keys.removeDuplicates(), 0);
    }
    auto& size = Find<QSpinBox>(window, "BrushSize");
    size.setFocus();
    QTest::keyClick(&size, Qt::Key_Up);
    QVERIFY2(canvas_->hasFocus(), "else it has the keys of tools");
}

void TouchUpWindowTest::StrokesRepaintOnlyWhatTheyTouch() {
    struct Watch : QObject {
        QRegion Painted;
        bool eventFilter(QObject* /*watched*/, QEvent* event) override {
            if (event->type() == QEvent::Paint) {
                Painted |= static_cast<QPaintEvent*>(event)->region();
            }
            return false;
        }
    } watch;
    QTest::mousePress(canvas_->viewport(), Qt::LeftButton, {}, At(2, 2));
    QTest::mouseMove(canvas_->viewport(), At(2, 2));
    QCoreApplication::processEvents();
    canvas_->viewport()->installEventFilter(&watch);
    QTest::mouseMove(canvas_->viewport(), At(4, 2));
    QTRY_VERIFY(!watch.Painted.isEmpty());
    const QRect touched = QRect(At(2, 2), At(4, 2)).adjusted(-30, -30, 30, 30);
    QVERIFY2(touched.contains(watch.Painted.boundingRect()), "more was painted than was touched");
    canvas_->viewport()->removeEventFilter(&watch);
    QTest::mouseRelease(canvas_->viewport(), Qt::LeftButton, {}, At(4, 2));
}

void TouchUpWindowTest::PressesWithKeysPickEraseAndDrawLines() {
    QWidget* const picture = canvas_->viewport();
    QTest::keyClick(canvas_, Qt::Key_BracketRight);
    QTest::keyClick(canvas_, Qt::Key_BracketRight);
    QTest::keyClick(canvas_, Qt::Key_Q);
    QTest::mouseClick(picture, Qt::LeftButton, {}, At(3, 3));
    QVERIFY2(PaintAt(3, 2) == 2 && PaintAt(2, 2) == 1, "a round brush of three is a cross");
    const auto shown = [picture] { return picture->grab().toImage(); };
    Hover(At(12, 12));
    QVERIFY2(shown().pixelColor(At(12, 11)).green() == 200 &&
                 shown().pixelColor(At(11, 11)).green() == 0,
             "and so is what shows under the mouse");
    QTest::mouseClick(picture, Qt::LeftButton, Qt::ShiftModifier, At(9, 3));
    QCOMPARE(PaintAt(6, 2), 2);
    QCOMPARE(UndoText(), QStringLiteral("Undo Line"));
    QTest::mouseClick(picture, Qt::LeftButton, Qt::ControlModifier, At(20, 20));
    QCOMPARE(Rows().indexOfTopLevelItem(Rows().currentItem()), 0);
    QTest::keyClick(canvas_, Qt::Key_X);
    QCOMPARE(Rows().indexOfTopLevelItem(Rows().currentItem()), 1);
    QTest::mousePress(picture, Qt::RightButton, Qt::ShiftModifier, At(1, 3));
    QTest::mouseMove(picture, At(12, 3));
    QTest::mouseRelease(picture, Qt::RightButton, Qt::ShiftModifier, At(12, 3));
    QCOMPARE(UndoText(), QStringLiteral("Undo Erase"));
    QCOMPARE(State().EditStipples, State().Stipples);
}

void TouchUpWindowTest::SelectionsAreMovedCopiedMirroredAndPasted() {
    QWidget* const picture = canvas_->viewport();
    QTest::mouseClick(picture, Qt::LeftButton, {}, At(3, 3));
    QTest::keyClick(canvas_, Qt::Key_V);
    Drag(At(2, 3), At(3, 4));
    QCOMPARE(Find<QLabel>(*canvas_->window(), "Selected").text(),
             QStringLiteral("4 stipples selected"));
    QTest::keyClick(canvas_, Qt::Key_H);
    QVERIFY(PaintAt(2, 3) == 2 && PaintAt(3, 3) == 1);
    QTest::keyClick(canvas_, Qt::Key_M);
    Drag(At(2, 3), At(8, 9));
    QVERIFY(PaintAt(8, 9) == 2 && PaintAt(2, 3) == 1);
    QCOMPARE(UndoText(), QStringLiteral("Undo Move"));
    QTest::keyClick(canvas_, Qt::Key_Right);
    QCOMPARE(PaintAt(9, 9), 2);
    QTest::keySequence(canvas_, QKeySequence(QKeySequence::Copy));
    QTest::keySequence(canvas_, QKeySequence(QKeySequence::Paste));
    QCOMPARE(UndoText(), QStringLiteral("Undo Paste"));
    QTest::keySequence(canvas_, QKeySequence(Qt::CTRL | Qt::Key_Z));
    QCOMPARE(UndoText(), QStringLiteral("Undo Move"));  // it is the floating ones that went
    QTest::keySequence(canvas_, QKeySequence(QKeySequence::Paste));
    QTest::keyClick(canvas_, Qt::Key_Return);
    QCOMPARE(UndoText(), QStringLiteral("Undo Paste"));
    QCOMPARE(PaintAt(9, 9), 2);
    QVERIFY2(PaintAt(7, 8) == 2, "round the pointer");
    QTest::keySequence(canvas_, QKeySequence(Qt::CTRL | Qt::Key_A));
    QTest::keyClick(canvas_, Qt::Key_Delete);
    QCOMPARE(State().EditStipples, State().Stipples);
    QTest::keyClick(canvas_, Qt::Key_Escape);
    QVERIFY(canvas_->isVisible());
    QTest::keyClick(canvas_, Qt::Key_L);
    QTest::mousePress(picture, Qt::LeftButton, {}, At(2, 2));
    for (const auto& [x, y] : {std::pair(8, 2), {8, 8}, {2, 8}}) {
        QTest::mouseMove(picture, At(x, y));
    }
    QTest::mouseRelease(picture, Qt::LeftButton, {}, At(2, 3));
    QTest::keyClick(canvas_, Qt::Key_F, Qt::ShiftModifier);
    QVERIFY(PaintAt(5, 5) == 2 && PaintAt(10, 5) == 1 && PaintAt(5, 10) == 1);
    QTest::keySequence(canvas_, QKeySequence(Qt::CTRL | Qt::Key_Z));
    QTest::keyClick(canvas_, Qt::Key_W);
    QTest::mouseClick(picture, Qt::LeftButton, {}, At(2, 2));
    QTest::keyClick(canvas_, Qt::Key_F, Qt::ShiftModifier);
    QCOMPARE(Rows().topLevelItem(0)->text(2), QStringLiteral("0"));
}

void TouchUpWindowTest::AreasAreOutlinedMarkedAndMerged() {
    QWidget& window = *canvas_->window();
    QTest::mouseClick(canvas_->viewport(), Qt::LeftButton, {}, At(3, 3));
    QTest::keyClick(canvas_, Qt::Key_O);
    QVERIFY(Find<QCheckBox>(window, "Outlines").isChecked());
    Find<QCheckBox>(window, "MarkHard").click();
    QTest::keyClick(canvas_, Qt::Key_F4);
    QCOMPARE(Find<QLabel>(window, "Hard").text(),
             QStringLiteral("1 area is hard to paint; column 3, row 3"));
    Find<QCheckBox>(window, "MergePreview").click();
    QVERIFY(Find<QLabel>(window, "MergeText").text().startsWith("1 stipple would change"));
    const QImage marked = canvas_->viewport()->grab().toImage();
    auto& below = Find<QSpinBox>(window, "MergeBelow");
    Find<QTabWidget>(window, "Panels").setCurrentIndex(2);
    Find<QPushButton>(window, "MergeAreas").click();
    QCOMPARE(State().EditStipples, State().Stipples);
    below.setFocus();
    QTest::keyClick(&below, Qt::Key_F);
    QVERIFY2(Find<QToolButton>(window, "Fill").isChecked(), "a number has no use for letters");
    QTest::keySequence(&below, QKeySequence(Qt::CTRL | Qt::Key_Z));
    QVERIFY2(State().EditStipples != State().Stipples, "the editor's undo, not the number's");
    QTest::keyClick(&below, Qt::Key_7);
    QTest::keyClick(&below, Qt::Key_Return);
    QVERIFY(canvas_->hasFocus());
    QTest::keySequence(canvas_, QKeySequence(Qt::CTRL | Qt::Key_Y));
    QVERIFY(Find<QCheckBox>(window, "MergePreview").isChecked());
    Find<QTabWidget>(window, "Panels").setCurrentIndex(0);
    QVERIFY2(!Find<QCheckBox>(window, "MergePreview").isChecked(), "it would hide what is painted");
    QVERIFY(canvas_->viewport()->grab().toImage() != marked);
    QCOMPARE(UndoText(), QStringLiteral("Undo Merge Areas"));
}

void TouchUpWindowTest::PaintsStandAloneAndMoveAndGo() {
    QWidget& window = *canvas_->window();
    const auto colorAt = [this](int x, int y) {
        const QImage shot = canvas_->viewport()->grab().toImage();
        return shot.pixelColor(At(x, y));
    };
    QTest::keyClick(canvas_, Qt::Key_A);
    QVERIFY2(colorAt(2, 2).green() > 150, "the red half is paled");
    QTest::keyClick(canvas_, Qt::Key_A);
    QCOMPARE(colorAt(2, 2), QColor(200, 0, 0));
    QTest::keyClick(canvas_, Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(PaintAt(1, 1), 2);
    QCOMPARE(Rows().topLevelItem(0)->text(1), QStringLiteral("Green"));
    QTest::keySequence(canvas_, QKeySequence(Qt::CTRL | Qt::Key_Z));
    const QRect first = Rows().visualItemRect(Rows().topLevelItem(0));
    QMimeData row;
    QDropEvent drop(first.center(), Qt::MoveAction, &row, Qt::LeftButton, {});
    struct Opened : PaintRows {
        using PaintRows::dropEvent;
    };
    (Rows().*&Opened::dropEvent)(&drop);
    QCOMPARE(Rows().topLevelItem(0)->text(1), QStringLiteral("Green"));
    QTest::keySequence(canvas_, QKeySequence(Qt::CTRL | Qt::Key_Z));
    Find<QPushButton>(window, "RemovePaint").click();
    QCOMPARE(Rows().topLevelItemCount(), 1);
    QTimer::singleShot(0, &window, [] {
        auto* dialog = QApplication::activeModalWidget();
        QVERIFY(dialog != nullptr);
        QTest::keyClicks(&Find<QLineEdit>(*dialog, "PaintWords"), "gree");
        QCOMPARE(Find<QListWidget>(*dialog, "PaintOffers").count(), 1);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    Find<QPushButton>(window, "AddPaint").click();
    QCOMPARE(Rows().topLevelItem(1)->text(1), QStringLiteral("Green"));
    QCOMPARE(Rows().indexOfTopLevelItem(Rows().currentItem()), 1);
}

void TouchUpWindowTest::HistoryGoesToAnyStep() {
    auto& history = Find<QListWidget>(*canvas_->window(), "History");
    Drag(At(1, 1), At(3, 1));
    QTest::keyClick(canvas_, Qt::Key_F);
    QTest::mouseClick(canvas_->viewport(), Qt::LeftButton, {}, At(9, 9));
    QCOMPARE(history.count(), 3);
    QCOMPARE(history.item(2)->text(), QStringLiteral("Fill"));
    history.setCurrentRow(0);
    QCOMPARE(State().EditStipples, State().Stipples);
    QCOMPARE(history.count(), 3);
    history.setCurrentRow(1);
    QVERIFY(PaintAt(2, 1) == 2 && PaintAt(9, 9) == 1);
}

void TouchUpWindowTest::PhotoAndPaintingStandBesideTheStipples() {
    auto& what = Find<QComboBox>(*canvas_->window(), "Beside");
    auto& beside = Find<QWidget>(*canvas_->window(), "BesideView");
    what.setCurrentIndex(1);
    const auto colorAt = [&](int x, int y) { return beside.grab().toImage().pixelColor(At(x, y)); };
    QTRY_COMPARE(colorAt(6, 6), QColor(200, 0, 0));
    QTest::keyClick(canvas_, Qt::Key_F);
    QTest::mouseClick(canvas_->viewport(), Qt::LeftButton, {}, At(2, 2));
    QCOMPARE(colorAt(6, 6), QColor(200, 0, 0));
    what.setCurrentIndex(2);
    QTRY_COMPARE_WITH_TIMEOUT(colorAt(6, 6), QColor(0, 200, 0), 20000);
    QVERIFY2(State().EditStipples != State().Stipples, "the kit itself waits for Accept");
}

}  // namespace vendrel::test

QTEST_MAIN(vendrel::test::TouchUpWindowTest)
#include "touch_up_test.moc"
