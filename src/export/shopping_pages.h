#pragma once

#include "plan/shopping.h"
#include "support/target.h"

namespace vendrel {

/// Writes what is to be bought as pages of a PDF that can be read in black and white, too: a box to
/// tick, swatch, label, name, code, milliliters and pots of each paint, and its symbol in each kit.
/// Throws Error when there is nothing to buy or for a missing font, FileError.
void WriteShoppingPages(const ShoppingPage& page, const Target& target);

}  // namespace vendrel
