#pragma once

#include <filesystem>
#include <string_view>

#include "batch/order.h"

namespace vendrel {

/// A list of orders as a spreadsheet writes it, its first row naming the columns: see ColumnOf.
/// Photos are looked for beside the list. Rows that name no photo, an order twice or one that can
/// name no folder are faults; an order without a name goes by its photo's. Throws FormatError when
/// it is no list or has no column for photos.
[[nodiscard]] OrderList ParseOrders(std::string_view text, const std::filesystem::path& file);

/// The same of a file, or an order for every photo of a folder, by their names. Throws FileError
/// too, and when a folder has no photos.
[[nodiscard]] OrderList ReadOrders(const std::filesystem::path& place);

/// The settings of an order over those that hold for all.
[[nodiscard]] std::vector<std::string> WordsOver(const std::vector<std::string>& common,
                                                 const Order& order);

}  // namespace vendrel
