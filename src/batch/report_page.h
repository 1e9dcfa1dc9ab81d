#pragma once

#include <string>
#include <vector>

#include "batch/manifest.h"
#include "batch/order.h"
#include "batch/order_folder.h"

namespace vendrel {

struct PaintTotal;

struct ReportedOrder {
    const Order* What = nullptr;
    const ManifestEntry* Became = nullptr;
};

/// One HTML page, to be opened in a browser without a network: each order with a small picture of
/// its kit, figures, files, and what to look at before it is sent.
[[nodiscard]] std::string ReportPage(const std::vector<ReportedOrder>& orders,
                                     const std::vector<PaintTotal>& totals,
                                     const BatchPlaces& places);

/// What a shop should look at, of a kit's figures as `vendrel kit --json` prints them.
[[nodiscard]] std::vector<std::string> WarningsOf(const std::string& figures);

}  // namespace vendrel
