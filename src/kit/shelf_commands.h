#pragma once

#include "kit/command_line.h"
#include "kit/shelf_options.h"

namespace vendrel {

/// `vendrel paints`: lists paints, or imports some, or adds a catalogue. Throws Error.
void RunPaints(const PaintsOptions& options, const Surroundings& around);

/// `vendrel shop`: what several kits ask to be bought, or that they were painted. Throws Error.
void RunShop(const ShopOptions& options, const Surroundings& around);

}  // namespace vendrel
