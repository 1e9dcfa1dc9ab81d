#pragma once

#include "batch/batch_options.h"
#include "batch/manifest.h"
#include "batch/order.h"
#include "batch/order_folder.h"
#include "batch/order_need.h"
#include "batch/report_page.h"
#include "kit/command_line.h"

namespace vendrel {

/// What a run comes to.
struct BatchOutcome {
    std::size_t Made = 0;
    std::size_t Kept = 0;  // there already
    std::size_t Failed = 0;
    double Seconds = 0;
};

/// Makes what is missing or changed of the orders, side by side, each by a process of its own, and
/// notes each in the manifest. An order that fails leaves the others alone. Throws Error when
/// nothing can be kept, Stop when asked to.
[[nodiscard]] BatchOutcome RunOrders(const OrderList& list, const BatchOptions& options,
                                     const Surroundings& around);

/// The page about the orders and the table of all their paints. Throws FileError, FormatError.
void WriteReports(const std::vector<ReportedOrder>& orders, const BatchPlaces& places,
                  const Surroundings& around);

/// The settings of an order's kit, and the sum of all that it depends on.
struct PlannedOrder {
    const Order* What = nullptr;
    std::vector<std::string> Words{};
    std::string Inputs{};
    std::string Unreadable{};  // why its photo cannot be read
    OrderNeed Need = OrderNeed::Making;
};
/// Of those orders that the options' shard has.
[[nodiscard]] std::vector<PlannedOrder> PlanOrders(const OrderList& list,
                                                   const BatchOptions& options,
                                                   const Manifest& known, std::string_view version);

}  // namespace vendrel
