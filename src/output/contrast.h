#pragma once

#include "support/color.h"

namespace vendrel {

/// How light a colour looks: 0 black to 1 white, the relative luminance that web pages are judged
/// by.
[[nodiscard]] double LuminanceOf(Color color);

/// How far two colours stand apart: 1 (alike) to 21 (black on white).
[[nodiscard]] double ContrastOf(Color one, Color other);

/// Black or white, whichever stands out more from a paint.
[[nodiscard]] Color InkOn(Color paint);

}  // namespace vendrel
