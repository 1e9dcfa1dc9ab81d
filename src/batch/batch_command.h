#pragma once

#include <span>
#include <string_view>

#include "kit/command_line.h"

namespace vendrel {

/// `vendrel batch`, by the words behind it. Answers the exit status: 0 all is made, 1 an order
/// failed or the list has faults, 2 wrong usage, 130 stopped.
[[nodiscard]] int RunBatch(std::span<const std::string_view> words, const Surroundings& around);

}  // namespace vendrel
