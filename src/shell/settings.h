#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "shell/owned_first.h"
#include "shell/paint_limits.h"
#include "support/print_scale.h"

namespace vendrel {

/// How fine a photo is cut into stipples.
enum class Difficulty { Easy, Medium, Difficult };

/// All that hangs on the difficulty alone.
struct DifficultyTraits {
    Difficulty Level;
    std::string_view Word;    // in file names and summaries
    std::string_view Option;  // on the command line
    int StippleSize;          // edge of a stipple in photo pixels
    int StippleCheck;
    int SheetCellSize;    // sheet pixels per photo pixel: small stipples need room for symbols
    int FewestOwnPixels;  // a stipple with fewer pixels of its own paint is stamped again
    int SymbolPeriod;     // pixels walked between two symbols of an area: small stipples make long,
                          // thin ones
};

inline constexpr std::array<DifficultyTraits, 3> kDifficulties = {{
    {Difficulty::Easy, "Easy", "easy", 8, 4, 2, 44, 600},
    {Difficulty::Medium, "Medium", "medium", 6, 3, 3, 24, 800},
    {Difficulty::Difficult, "Difficult", "difficult", 4, 3, 4, 12, 1000},
}};

[[nodiscard]] constexpr const DifficultyTraits& TraitsOf(Difficulty level) {
    return kDifficulties[static_cast<std::size_t>(level)];
}

enum class Sampling { Average, Pixel };

/// How paints are matched to stipples: by the distance of their channels, or as the eye sees it.
enum class Matching { Plain, ByEye };

/// How a photo comes onto the sheet that would be stretched there so much that it shows.
enum class PhotoFit {
    Keep,     // in its own shape, on a smaller sheet
    Crop,     // cut to the sheet's shape round its middle
    CropTop,  // cut at its foot
    Stretch,
};

/// The final paints that can be asked for.
inline constexpr std::array kFinalPaints = {16, 32, 40, 50};

/// What the painter chose, for every photo until chosen otherwise.
struct Settings {
    Difficulty Level = Difficulty::Easy;
    int FinalPaints = 50;  // of kFinalPaints; 0 while a loaded grid has another number
    Sampling Sample = Sampling::Average;
    bool WatchItPaint = true;
    Matching Match = Matching::Plain;
    bool Paintable = false;  // no area below Limits
    PaintLimits Limits;
    int Detail = kUsualDetail;
    double CanvasCm = 0;            // width of the finished canvas; 0: none was named
    PhotoFit Fit = PhotoFit::Keep;  // for the photos that need it
    OwnedFirst Buying;              // when matched by eye

    bool operator==(const Settings&) const = default;
};

/// Width of a canvas that anybody would paint, in centimeters.
inline constexpr double kSmallestCanvasCm = 10;
inline constexpr double kLargestCanvasCm = 300;

/// As wide as a canvas is taken to be until one is named, in centimeters.
inline constexpr double kUsualCanvasCm = 40;

/// The scale of a painting `pixels` wide on its canvas.
[[nodiscard]] constexpr PrintScale CanvasScale(const Settings& settings, int pixels) {
    return PrintScale::OfCanvas(settings.CanvasCm > 0 ? settings.CanvasCm : kUsualCanvasCm, pixels);
}

/// Chooses the final paints equal to `finalColors`, or none where it is no number to choose.
void SetColorChecks(Settings& settings, int finalColors);

}  // namespace vendrel
