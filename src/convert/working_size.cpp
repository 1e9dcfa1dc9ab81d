#include "convert/working_size.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>

#include "support/counter.h"
#include "support/error.h"
#include "support/rounding.h"

namespace vendrel {
namespace {

constexpr int kLongSide = 14400;
constexpr int kShortSide = 11520;
// What the main window needs beside a landscape picture's height, a portrait picture's width.
constexpr int kBelowLandscape = 1950;
constexpr int kPixelsBelowLandscape = 5;
constexpr int kBesidePortrait = 200;

/// The axis that the screen settles (long) and the one that follows from the photo's shape (short).
struct Axes {
    int ScreenLong;
    int ScreenShort;
    int PixelLong;  // twips per pixel
    int PixelShort;
    int AspectLong;
    int AspectShort;
    int PhotoLong;  // pixels
    int PhotoShort;
    int Allowance;  // twips the window needs beside the short side
};

struct Sides {
    int Long = 0;
    int Short = 0;
};

// Down to whole stipples. The limit comes first, for pixels of a width that does not divide it.
int CutToStipples(int length, int limit, int stipple) {
    return std::max(std::min(length, limit), 0) / stipple * stipple;
}

// The short side as the photo's shape has it may end in a part of a twip, which counts when the
// window's need is rounded to whole twips, halves to even.
struct Length {
    std::int64_t Whole;
    std::int64_t Rest;  // of `Of`
    std::int64_t Of;
};

std::int64_t Rounded(std::int64_t whole, const Length& part) {
    if (2 * part.Rest == part.Of) {
        return whole + (whole & 1);
    }
    return whole + (2 * part.Rest > part.Of ? 1 : 0);
}

// Twip by twip the side shrinks until the window fits its screen: at most by one more than the
// whole twips that are too many.
std::int64_t FitWindow(const Length& side, int allowance, int screen) {
    const std::int64_t need = Rounded(side.Whole + allowance, side);
    if (need > kMaxCounter) {
        throw OverflowError("The window for this photo would be " + std::to_string(need) +
                            " twips large, more than 32767. Choose a photo of a less extreme "
                            "shape.");
    }
    const std::int64_t fitting = std::min<std::int64_t>(side.Whole + allowance, screen);
    return (Rounded(fitting, side) > screen ? fitting - 1 : fitting) - allowance;
}

Sides FitScreen(const Axes& axes, int stippleSize) {
    Sides sides;
    sides.Long =
        CutToStipples(axes.ScreenLong - axes.PixelLong, kLongSide, stippleSize * axes.PixelLong);
    if (axes.AspectLong < 1 || axes.AspectShort < 1) {
        return sides;
    }
    const std::int64_t product = std::int64_t{sides.Long} * axes.AspectShort;
    const Length shape{product / axes.AspectLong, product % axes.AspectLong, axes.AspectLong};
    const auto fitting = static_cast<int>(FitWindow(shape, axes.Allowance, axes.ScreenShort));
    sides.Short = CutToStipples(fitting, kShortSide, stippleSize * axes.PixelShort);
    return sides;
}

// All that fits is tried: the shape comes in steps of both sides, which no formula follows.
Sides KeepShape(const Axes& axes, int stippleSize) {
    const Sides step{stippleSize * axes.PixelLong, stippleSize * axes.PixelShort};
    const Sides most{CutToStipples(axes.ScreenLong - axes.PixelLong, kLongSide, step.Long),
                     CutToStipples(axes.ScreenShort - axes.Allowance, kShortSide, step.Short)};
    Sides best;
    double bestStretch = std::numeric_limits<double>::max();
    for (int down = step.Short; down <= most.Short; down += step.Short) {
        for (int along = step.Long; along <= most.Long; along += step.Long) {
            const double stretch = StretchPercent({axes.PhotoLong, axes.PhotoShort},
                                                  {along / axes.PixelLong, down / axes.PixelShort});
            const std::int64_t larger =
                std::int64_t{along} * down - std::int64_t{best.Long} * best.Short;
            const bool equal =
                std::max(stretch, bestStretch) < kUnstretched || stretch == bestStretch;
            if (equal ? larger > 0 || (larger == 0 && stretch < bestStretch)
                      : stretch < bestStretch) {
                best = {along, down};
                bestStretch = stretch;
            }
        }
    }
    return best;
}

int Nearest(int pixels, int twips) {
    return RoundHalfEven(static_cast<double>(pixels) / twips);
}

// The size whose sides `sidesOf` settles.
WorkingSize Lay(BitmapSize photo, const ScreenSize& screen, int stippleSize,
                Sides (*sidesOf)(const Axes&, int)) {
    const TwipsPerPixel pixel = screen.Twips;
    WorkingSize size;
    size.AspectWidth = Nearest(photo.Width, pixel.X);
    size.AspectHeight = Nearest(photo.Height, pixel.Y);
    size.Landscape = photo.Height <= photo.Width;
    if (size.Landscape) {
        const int below = kBelowLandscape + kPixelsBelowLandscape * pixel.Y;
        const Sides sides =
            sidesOf({screen.Width, screen.Height, pixel.X, pixel.Y, size.AspectWidth,
                     size.AspectHeight, photo.Width, photo.Height, below},
                    stippleSize);
        size.Width = sides.Long;
        size.Height = sides.Short;
        size.Window = {screen.Width - pixel.X, sides.Short + below};
    } else {
        const Sides sides =
            sidesOf({screen.Height, screen.Width, pixel.Y, pixel.X, size.AspectHeight,
                     size.AspectWidth, photo.Height, photo.Width, kBesidePortrait},
                    stippleSize);
        size.Height = sides.Long;
        size.Width = sides.Short;
        size.Window = {sides.Short + kBesidePortrait, screen.Height - pixel.Y};
    }
    return size;
}

}  // namespace

WorkingSize ComputeWorkingSize(BitmapSize photo, const ScreenSize& screen, int stippleSize) {
    return Lay(photo, screen, stippleSize, FitScreen);
}

WorkingSize ComputeKeptSize(BitmapSize photo, const ScreenSize& screen, int stippleSize) {
    return Lay(photo, screen, stippleSize, KeepShape);
}

WorkingSize ComputeFittedSize(BitmapSize photo, const ScreenSize& screen, int stippleSize,
                              PhotoFit fit) {
    const WorkingSize plain = ComputeWorkingSize(photo, screen, stippleSize);
    const bool shows = plain.HoldsStipples() &&
                       StretchPercent(photo, plain.Pixels(screen.Twips)) > kStretchThatShows;
    return shows && fit != PhotoFit::Stretch ? ComputeKeptSize(photo, screen, stippleSize) : plain;
}

double StretchPercent(BitmapSize photo, BitmapSize working) {
    const double across = static_cast<double>(working.Width) / photo.Width;
    const double down = static_cast<double>(working.Height) / photo.Height;
    return (std::max(across, down) / std::min(across, down) - 1) * 100;
}

}  // namespace vendrel
