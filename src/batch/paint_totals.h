#pragma once

#include <string>
#include <vector>

#include "batch/report_page.h"
#include "shelf/shelf.h"

namespace vendrel {

/// A paint of all orders together.
struct PaintTotal {
    std::string Set;
    std::string Name;
    std::string Code;
    std::string Color;  // "#C08060"
    double Cm2 = 0;
    double Ml = 0;
    double LeftMl = 0;  // on the shelf
    double BuyMl = 0;   // with what is to spare
    int Pots = 0;       // 0 when no order names their size
    std::vector<std::string> Orders{};
};

/// Of the orders that were made, by what their kits said of their paints, less what is on the
/// shelf.
[[nodiscard]] std::vector<PaintTotal> TotalPaints(const std::vector<ReportedOrder>& orders,
                                                  const Shelf& shelf);

/// A table for spreadsheets.
[[nodiscard]] std::string FormatTotals(const std::vector<PaintTotal>& totals);

}  // namespace vendrel
