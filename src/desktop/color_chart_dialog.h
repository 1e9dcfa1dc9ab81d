#pragma once

#include <QComboBox>
#include <QLabel>
#include <QTableWidget>

#include "desktop/form_dialog.h"
#include "desktop/value_label.h"
#include "forms/color_chart.h"

namespace vendrel {

/// The paints of the kit as a table.
class ColorChartDialog : public FormDialog {
    Q_OBJECT

  public:
    ColorChartDialog(const ViewContext& context, QWidget* parent);

    void Load() override { form_.Form_Load(); }
    void Mirror() override;

  protected:
    void Dismiss() override { form_.CloseButton_Click(); }

  private:
    void FillRow(int line, const ChartRow& row);

    ColorChartForm form_;
    QComboBox* order_;
    QTableWidget* table_;
    ValueLabel* saved_;
};

}  // namespace vendrel
