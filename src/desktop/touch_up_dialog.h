#pragma once

#include <QPushButton>
#include <QTimer>

#include "desktop/beside_view.h"
#include "desktop/form_dialog.h"
#include "desktop/history_list.h"
#include "desktop/kept_work_dialog.h"
#include "desktop/navigator_view.h"
#include "desktop/painting_job.h"
#include "desktop/touch_up_areas_panel.h"
#include "desktop/touch_up_canvas.h"
#include "desktop/touch_up_paints.h"
#include "desktop/touch_up_selection_panel.h"
#include "desktop/touch_up_tool_bar.h"
#include "desktop/touch_up_view_panel.h"
#include "desktop/value_label.h"

namespace vendrel {

/// The touch-up editor's window.
class TouchUpDialog : public FormDialog {
    Q_OBJECT

  public:
    TouchUpDialog(const ViewContext& context, QWidget* parent);
    ~TouchUpDialog() override;

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
    [[nodiscard]] QWidget* MakeMiddle();
    [[nodiscard]] QWidget* MakeSide();
    [[nodiscard]] QLayout* MakeButtons();
    void Connect();
    void ConnectCanvas();
    void ConnectTimers();
    void ConnectKeptWork();
    /// Starts work through the edge that the open editor alone can do.
    [[nodiscard]] EditorWork Work();
    void RunOpen(const std::function<void()>& work);
    void ShowPhoto(bool only);
    void GoToNext(std::optional<CellPos> (TouchUpForm::*next)());
    void CopySelection();
    void PasteSelection();
    void ShowBeside();
    void LeaveAreas();
    void MirrorBlinking();
    void MirrorStatus();
    void PointedAt(CellPos at);
    /// False while other work yields, and when the editor is closed.
    [[nodiscard]] bool Ready() const { return form_.Open() && !Context().Works.Busy(); }

    TouchUpForm form_;
    TouchUpCanvas* canvas_;
    TouchUpToolBar* tools_;
    NavigatorView* navigator_;
    TouchUpPaints* paints_;
    TouchUpViewPanel* view_;
    TouchUpAreasPanel* areas_;
    TouchUpSelectionPanel* selection_;
    HistoryList* history_;
    BesideView* beside_;
    PaintingJob* painting_;
    QPushButton* keptWork_;
    QPushButton* load_;
    QPushButton* save_;
    QPushButton* accept_;
    QPushButton* cancel_;
    ValueLabel* pointed_;
    ValueLabel* status_;
    KeptWorkDialog* kept_;
    QTimer blink_;
    QTimer figures_;
    QTimer recovery_;
    bool blinkOn_ = false;
    int recoveryWaits_ = 0;
    CellPos pointedAt_;  // {0, 0} for no stipple
};

}  // namespace vendrel
