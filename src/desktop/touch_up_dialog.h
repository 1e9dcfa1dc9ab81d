#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QToolButton>
#include <array>

#include "desktop/form_dialog.h"
#include "desktop/kept_work_dialog.h"
#include "desktop/paint_rows.h"
#include "desktop/touch_up_canvas.h"
#include "desktop/value_label.h"

namespace vendrel {

/// The touch-up editor's window.
class TouchUpDialog : public FormDialog {
    Q_OBJECT

  public:
    TouchUpDialog(const ViewContext& context, QWidget* parent);

    void Load() override;
    void Mirror() override;
    void KeepWork() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void Dismiss() override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Arrange();
    [[nodiscard]] QLayout* MakeToolRow();
    [[nodiscard]] QWidget* MakeSide();
    [[nodiscard]] QWidget* MakeMarkers();
    [[nodiscard]] QWidget* MakeCleanUp();
    [[nodiscard]] QWidget* MakeView();
    [[nodiscard]] QLayout* MakeButtons();
    void Connect();
    void ConnectCanvas();
    void ConnectTimers();
    void ConnectKeptWork();
    void AddShortcuts();
    /// Starts work through the edge that the open editor alone can do.
    void RunOpen(const std::function<void()>& work);
    /// A form handler, started the same way.
    [[nodiscard]] std::function<void()> Handler(void (TouchUpForm::*handler)());
    void ChooseLook();
    void ShowPhoto(bool only);
    void NextLoner();
    void MirrorPalette();
    void MirrorTools();
    void MirrorStatus();
    void PointedAt(CellPos at);
    /// False while other work yields, and when the editor is closed.
    [[nodiscard]] bool Ready() const { return form_.Open() && !Context().Works.Busy(); }

    TouchUpForm form_;
    TouchUpCanvas* canvas_;
    std::array<QToolButton*, 5> tools_{};  // brush of one, two, three; fill; replace
    QToolButton* undo_;
    QToolButton* redo_;
    QToolButton* zoomIn_;
    QToolButton* zoomOut_;
    QToolButton* fit_;
    ValueLabel* zoom_;
    PaintRows* palette_;
    QPushButton* tidy_;
    QCheckBox* blinkLoners_;
    QCheckBox* blinkPaint_;
    QPushButton* nextLoner_;
    ValueLabel* loners_;
    QToolButton* lowerLevel_;
    QToolButton* raiseLevel_;
    ValueLabel* cleanLevel_;
    ValueLabel* cleanPreview_;
    QPushButton* cleanUp_;
    QCheckBox* gridLines_;
    QCheckBox* symbols_;
    QSlider* photo_;
    QPushButton* keptWork_;
    QPushButton* load_;
    QPushButton* save_;
    QPushButton* accept_;
    QPushButton* cancel_;
    ValueLabel* pointed_;
    ValueLabel* status_;
    KeptWorkDialog* kept_;
    QTimer blink_;
    QTimer recovery_;
    bool blinkOn_ = false;
    CellPos pointedAt_;  // {0, 0} for no stipple
};

}  // namespace vendrel
