#pragma once

#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <memory>

#include "convert/bitmap_writer.h"
#include "desktop/paint_rows.h"
#include "desktop/studio.h"
#include "desktop/touch_up_canvas.h"

namespace vendrel::test {

/// The editor, open on a photo of two halves with its second paint in hand.
class TouchUpBench {
  protected:
    void Open() {
        files_ = std::make_unique<TempFolder>();
        files_->Write("Data/studiopaint.csv",
                      "2\r\n200,0,0,Reds,R1,Red\r\n0,200,0,Greens,G1,Green\r\n");
        files_->Write("Data/paintlist.txt", "Reds\r\nGreens\r\n");
        Surface photo(64, 48, Rgb(200, 0, 0));
        photo.FillRect(32, 0, 64, 48, Rgb(0, 200, 0));
        WriteBitmap(*files_ / "Pictures/halves.bmp", photo);
        WriteBitmap(*files_ / "Data/PBNLady.bmp", photo);
        desktop_ = std::make_unique<Desktop>(ProgramFolder(files_->Path(), VENDREL_SOURCE_DIR));
        QVERIFY(!desktop_->Start());
        desktop_->Place().State->Chosen.WatchItPaint = false;
        MainWindow& window = desktop_->Window();
        QVERIFY(LoadFirstPhoto(window) && Choose(window, "ChangeToStipples"));
        QVERIFY(Choose(window, "ColorPickerSelect"));
        canvas_ = &Find<TouchUpCanvas>(window, "Canvas");
        QVERIFY(QTest::qWaitForWindowExposed(canvas_->window()));
        ChoosePaint(2);
    }
    void Close() {
        canvas_ = nullptr;
        desktop_.reset();
        files_.reset();
    }

    [[nodiscard]] WorkState& State() { return desktop_->Place().State; }
    [[nodiscard]] int PaintAt(int x, int y) { return State().EditStipples(x, y).ColorIndex; }
    [[nodiscard]] QPoint At(int x, int y) const { return canvas_->MiddleOf({x, y}); }
    [[nodiscard]] QPushButton& Button(const char* name) {
        return Find<QPushButton>(*canvas_->window(), name);
    }
    [[nodiscard]] PaintRows& Rows() { return Find<PaintRows>(*canvas_->window(), "Palette"); }
    [[nodiscard]] QString UndoText() {
        return Find<QToolButton>(*canvas_->window(), "Undo").text();
    }
    void ChoosePaint(int paint) { Rows().setCurrentItem(Rows().topLevelItem(paint - 1)); }
    void Hover(QPoint at) {
        QMouseEvent move(QEvent::MouseMove, at, canvas_->viewport()->mapToGlobal(at), Qt::NoButton,
                         {}, {});
        QApplication::sendEvent(canvas_->viewport(), &move);
    }
    void Drag(QPoint from, QPoint to) {
        QTest::mousePress(canvas_->viewport(), Qt::LeftButton, {}, from);
        QTest::mouseMove(canvas_->viewport(), to);
        QTest::mouseRelease(canvas_->viewport(), Qt::LeftButton, {}, to);
    }

    std::unique_ptr<TempFolder> files_;
    std::unique_ptr<Desktop> desktop_;
    TouchUpCanvas* canvas_ = nullptr;
};

}  // namespace vendrel::test
