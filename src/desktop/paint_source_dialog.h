#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTimer>

#include "desktop/form_dialog.h"
#include "desktop/value_label.h"
#include "forms/paint_source.h"

namespace vendrel {

/// Where paints come from, with what that makes of the photo.
class PaintSourceDialog : public FormDialog {
    Q_OBJECT

  public:
    PaintSourceDialog(const ViewContext& context, QWidget* parent);

    void Load() override;
    void Mirror() override;

  protected:
    bool event(QEvent* event) override;
    void Dismiss() override { form_.CancelButton_Click(); }

  private:
    [[nodiscard]] QWidget* MakeSources();
    [[nodiscard]] QWidget* MakeBuying();
    [[nodiscard]] QWidget* MakeFigures();
    [[nodiscard]] QLayout* MakeEnd();
    void Change();
    void Measure();

    PaintSourceForm form_;
    QRadioButton* sets_;
    QRadioButton* template_;
    QRadioButton* owned_;
    QComboBox* templates_;
    QCheckBox* byEye_;
    QCheckBox* first_;
    QSlider* worth_;
    QLabel* worthText_;
    QSpinBox* most_;
    QLabel* preview_;
    ValueLabel* figures_;
    QTimer soon_;
};

}  // namespace vendrel
