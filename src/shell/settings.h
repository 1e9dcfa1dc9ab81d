#pragma once

#include <array>
#include <cstddef>
#include <string_view>

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
    PhotoFit Fit = PhotoFit::Keep;  // for the photos that need it

    bool operator==(const Settings&) const = default;
};

/// Chooses the final paints equal to `finalColors`, or none where it is no number to choose.
void SetColorChecks(Settings& settings, int finalColors);

}  // namespace vendrel
