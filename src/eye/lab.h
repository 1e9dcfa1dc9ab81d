#pragma once

#include "support/color.h"

namespace vendrel {

/// A color as the eye orders it: CIE L*a*b* under daylight (D65). Lightness 0..100.
struct Lab {
    double L = 0;
    double A = 0;  // from green to red
    double B = 0;  // from blue to yellow
};

/// The light that a screen gives off for a level of 0..255 of a channel, 0..1.
[[nodiscard]] double LightOf(int level);

/// Of a packed sRGB color.
[[nodiscard]] Lab LabOf(Color color);

/// The nearest sRGB color that a screen can show.
[[nodiscard]] Color ColorOfLab(const Lab& lab);

/// How far a color is from gray.
[[nodiscard]] double ChromaOf(const Lab& lab);

/// Its angle around the color circle, -pi..pi; behind all of them for what looks gray.
[[nodiscard]] double HueAngleOf(const Lab& lab);

}  // namespace vendrel
