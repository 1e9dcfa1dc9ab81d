#pragma once

#include <string>
#include <string_view>

#include "plan/plan_sketch.h"

namespace vendrel {

/// A canvas as it was named: by its width or by both sides.
struct CanvasOption {
    double WidthCm = 0;  // 0: none was named
    SizeMm Size;         // none: the height is the picture's
    bool Inches = false;
};

/// "60cm", "16x20in", "400mm" or "auto"; centimeters where no unit stands. Throws UsageError.
[[nodiscard]] CanvasOption ToCanvas(const std::string& option, std::string_view value);

/// "A4", "canvas" or "250x400mm". Throws UsageError.
[[nodiscard]] Paper ToPaper(const std::string& option, std::string_view value);

/// "20mm" or "1in", in millimetres. Throws UsageError.
[[nodiscard]] double ToBleedMm(const std::string& option, std::string_view value);

/// "A4, Letter, ..., canvas"
[[nodiscard]] std::string PaperWords();

}  // namespace vendrel
