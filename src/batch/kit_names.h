#pragma once

#include <string>
#include <vector>

#include "batch/order.h"

namespace vendrel {

/// The name of an order's kit by a pattern with {order}, {title}, {difficulty} and any column.
/// `difficulty` is what the kit is made in. Throws UsageError for a placeholder that is none.
[[nodiscard]] std::string KitNameOf(const Order& order, const std::string& pattern,
                                    const std::string& difficulty);

/// Gives the order's kit that name.
void NameKit(Order& order, const std::string& name);

/// An order's settings and what its pages say of it: its number, and for a leaflet its columns.
[[nodiscard]] std::vector<std::string> WordsWithOrder(std::vector<std::string> settings,
                                                      const Order& order);

/// What a leaflet may name in an order, as settings without values.
[[nodiscard]] std::vector<std::string> FieldsOf(const Order& order);

[[nodiscard]] bool HasLeaflet(const std::vector<std::string>& settings);

}  // namespace vendrel
