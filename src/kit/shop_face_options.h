#pragma once

#include <CLI/CLI.hpp>

#include "plan/shop_face.h"

namespace vendrel {

/// The options for what a shop puts on a kit's pages.
void AddShopFaceOptions(CLI::App& app, ShopFace& shop);

}  // namespace vendrel
