#pragma once

#include <vector>

#include "shell/records.h"
#include "support/field_reader.h"

namespace vendrel {

/// Reads a count of 0..32767 and that many paints of six fields each: red, green, blue, paint
/// set, code, name. Entry 0 of the result is empty. Throws FormatError.
[[nodiscard]] std::vector<PaintColor> ReadPaints(FieldReader& in);

}  // namespace vendrel
