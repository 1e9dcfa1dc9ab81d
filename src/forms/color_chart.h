#pragma once

#include <string>
#include <vector>

#include "output/chart_contents.h"
#include "plan/exporter.h"
#include "shell/workplace.h"

namespace vendrel {

/// The paints of the kit, each with its symbol and its share of the picture.
class ColorChartForm {
  public:
    ColorChartForm(Workplace& place, const Exporter& exporter)
        : place_(place), exporter_(exporter) {}

    /// Counts the stipples.
    void Form_Load();
    void Order_Click(ChartOrder order);
    /// Saves the chart, in palette order whatever the window shows.
    void SaveButton_Click();
    void CloseButton_Click();

    [[nodiscard]] const std::vector<ChartRow>& Rows() const { return rows_; }
    [[nodiscard]] ChartOrder Order() const { return order_; }
    /// The character of a row's symbol.
    [[nodiscard]] char Symbol(const ChartRow& row) const;
    /// Where the chart was saved; empty before.
    [[nodiscard]] const std::string& SavedFile() const { return savedFile_; }

  private:
    Workplace& place_;
    const Exporter& exporter_;
    std::vector<ChartRow> rows_;
    ChartOrder order_ = ChartOrder::Symbol;
    std::string savedFile_;
};

}  // namespace vendrel
