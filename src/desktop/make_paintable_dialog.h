#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QTimer>
#include <functional>

#include "desktop/compare_view.h"
#include "desktop/form_dialog.h"
#include "forms/make_paintable.h"

namespace vendrel {

/// Photo, kit as it was and as it becomes, with the settings between them.
class MakePaintableDialog : public FormDialog {
    Q_OBJECT

  public:
    MakePaintableDialog(const ViewContext& context, QWidget* parent);

    void Load() override { form_.Form_Load(); }
    void Mirror() override;

  protected:
    void Dismiss() override { form_.CancelButton_Click(); }

  private:
    [[nodiscard]] QLayout* MakeSettings();
    [[nodiscard]] QLayout* MakeBrush();
    [[nodiscard]] QLayout* MakeButtons();
    void MirrorSettings();
    void MirrorFigures();
    void ConnectView();
    /// Once the hand rests: a slider passes many values on its way.
    void Later(std::function<void()> change);

    MakePaintable form_;
    CompareView* view_;
    QComboBox* match_;
    QComboBox* finalPaints_;
    QDoubleSpinBox* smallest_;
    QDoubleSpinBox* narrowest_;
    QSlider* detail_;
    QLabel* detailValue_;
    QDoubleSpinBox* canvas_;
    QCheckBox* outlines_;
    QCheckBox* protect_;
    QSpinBox* brush_;
    QPushButton* undo_ = nullptr;
    QPushButton* redo_ = nullptr;
    QPushButton* nothing_ = nullptr;
    QLabel* figures_;
    QTimer pause_;
    std::function<void()> pending_;
};

}  // namespace vendrel
