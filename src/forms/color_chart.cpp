#include "forms/color_chart.h"

#include "forms/kit_saving.h"
#include "output/symbol_set.h"

namespace vendrel {

void ColorChartForm::Form_Load() {
    rows_ = FillChart(place_.State, place_.State);
    SortChart(rows_, order_);
}

void ColorChartForm::Order_Click(ChartOrder order) {
    order_ = order;
    SortChart(rows_, order_);
}

void ColorChartForm::SaveButton_Click() {
    KitOrder order{.Outputs = {}, .Fonts = &exporter_, .Plan = {}};
    order.Outputs.Add(OutputId::Chart);
    savedFile_ = SaveFromWindow(place_, order).front().lexically_normal().string();
}

void ColorChartForm::CloseButton_Click() {
    place_.Screen.CloseForm(FormId::ColorChart);
}

char ColorChartForm::Symbol(const ChartRow& row) const {
    return CharacterOf(place_.State, row.Symbol);
}

}  // namespace vendrel
