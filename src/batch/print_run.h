#pragma once

#include <filesystem>

#include "batch/order_folder.h"
#include "batch/report_page.h"
#include "kit/command_line.h"

namespace vendrel {

/// Joins the PDFs of the orders that were made, in the list's order, into one. Throws Error when
/// there are none or the build cannot.
void WritePrintRun(const std::vector<ReportedOrder>& orders, const BatchPlaces& places,
                   const std::filesystem::path& target, const Surroundings& around);

/// Throws Error where the build has nothing to join PDFs with.
void RequireJoiner(const Surroundings& around);

}  // namespace vendrel
