#pragma once

#include <span>
#include <string_view>

namespace vendrel {

/// `vendrel-studio --join TARGET PDF...`, which nobody types: joins PDFs into one. Gives the exit
/// status; a failure is a sentence on the standard error.
[[nodiscard]] int RunJoinCommand(std::span<const std::string_view> words);

}  // namespace vendrel
