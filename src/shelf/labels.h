#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vendrel {

// What is written on a pot and stands for its paint in every kit: one to three capital letters or
// digits.

/// A label in capitals; empty when the text is none.
[[nodiscard]] std::string LabelOf(std::string_view text);

/// Whether one may be taken for the other on a pot or a plan: of one length, and each two
/// characters the same or much alike, as 0 and O are.
[[nodiscard]] bool AreLabelsAlike(std::string_view one, std::string_view other);

/// The first label, short ones first, that is like none of those taken. Throws Error when all are.
[[nodiscard]] std::string NextFreeLabel(std::span<const std::string> taken);

/// `text` as a label. Throws Error with a sentence for what is none or is like one of those taken.
[[nodiscard]] std::string RequireFreeLabel(std::string_view text,
                                           std::span<const std::string> taken);

/// What `count` more paints get one after the other.
[[nodiscard]] std::vector<std::string> NextFreeLabels(std::vector<std::string> taken, int count);

}  // namespace vendrel
