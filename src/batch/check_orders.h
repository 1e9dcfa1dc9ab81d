#pragma once

#include "batch/batch_options.h"
#include "batch/order.h"
#include "kit/command_line.h"

namespace vendrel {

/// Notes what is wrong with any order's photo and settings, each by its column, so that no kit is
/// begun of a list that cannot be finished. Photos become full paths.
void CheckOrders(OrderList& list, const BatchOptions& options, const Surroundings& around);

/// "orders.csv, line 7, canvas: ..." for each fault.
[[nodiscard]] std::vector<std::string> SentencesOf(const std::vector<OrderFault>& faults,
                                                   const std::filesystem::path& list);

}  // namespace vendrel
