#pragma once

#include <string>

#include "kitfile/object_reader.h"
#include "shell/records.h"

namespace vendrel {

/// Where what is unknown of a paint stands: paints go by identity, wherever they are in a list.
[[nodiscard]] std::string PlaceOfPaint(const std::string& list, const PaintColor& paint);

/// Throws FormatError.
[[nodiscard]] PaintColor ReadKitPaint(KitText& text, const KitJson& json, const std::string& list);
/// At most 32767. Throws FormatError.
[[nodiscard]] PaintList ReadKitPaints(ObjectReader& object, const char* name);

}  // namespace vendrel
