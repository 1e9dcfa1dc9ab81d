#include "output/kit_figures.h"

#include <algorithm>
#include <cstddef>
#include <future>
#include <vector>

#include "eye/blur.h"
#include "eye/mean_difference.h"
#include "support/error.h"

namespace vendrel {
namespace {

// A tenth of a degree from 60 centimeters: details finer than that run together.
constexpr double kBlurMm = 1;

// From 1, 0 where there is none.
ValueGrid PixelPaints(const WorkState& state, const Surface& picture) {
    if (!state.PaintingDone || !state.PixelMap.Holds(picture.Width(), picture.Height())) {
        throw Error("The picture is not painted yet. Paint it before its areas are measured.");
    }
    if (!state.PrintPaints.All().empty()) {
        return state.PrintPaints;
    }
    ValueGrid paints(picture.Width() - 1, picture.Height() - 1);
    for (int y = 1; y < picture.Height(); ++y) {
        for (int x = 1; x < picture.Width(); ++x) {
            paints(x, y) = state.PixelMap(x, y).ColorIndex;
        }
    }
    return paints;
}

std::vector<Color> PixelsOf(const Surface& picture) {
    std::vector<Color> pixels;
    pixels.reserve(static_cast<std::size_t>(picture.Width()) *
                   static_cast<std::size_t>(picture.Height()));
    for (int y = 0; y < picture.Height(); ++y) {
        const RowView<const Color> row = picture.Row(y);
        pixels.insert(pixels.end(), row.begin(), row.end());
    }
    return pixels;
}

double DifferenceAtArmsLength(const Surface& photo, const Surface& painting, double sigma) {
    return MeanDifference(PixelsOf(Blurred(photo, sigma)), PixelsOf(Blurred(painting, sigma)));
}

std::size_t ClassOf(double mm2) {
    const auto* const end = std::ranges::upper_bound(kAreaClassesMm2, mm2);
    return static_cast<std::size_t>(end - kAreaClassesMm2.begin());
}

}  // namespace

KitFigures MeasureKit(const Workplace& place) {
    const Surface& picture = place.Frames->WorkFrame.Picture;
    const Settings& chosen = place.State->Chosen;
    const PrintScale scale = CanvasScale(chosen, picture.Width());
    const AreaFigures measured = MeasureAreas(PixelPaints(place.State, picture), scale);
    KitFigures figures;
    figures.CanvasCm = scale.Mm(picture.Width()) / 10;
    figures.Areas = measured.Count();
    for (const AreaFigures::Area& area : measured.Areas) {
        ++figures.BySize[ClassOf(area.Mm2)];
    }
    figures.BelowLimits = measured.CountBelow(chosen.Limits);
    figures.SmallestMm2 = measured.SmallestMm2;
    figures.NarrowestMm = measured.NarrowestMm;
    figures.Hours =
        PaintingHours(figures.Areas, scale.Mm(picture.Width()) * scale.Mm(picture.Height()));
    return figures;
}

bool IsHardToPaint(const KitFigures& figures) {
    return 3 * figures.BelowLimits > figures.Areas;
}

double PaintingHours(int areas, double mm2) {
    constexpr double kSecondsPerArea = 20;
    constexpr double kSecondsPerMm2 = 60.0 / 1000;
    return (areas * kSecondsPerArea + mm2 * kSecondsPerMm2) / 3600;
}

SeenFigures CompareWithPhoto(const Workplace& place) {
    const Surface& painting = place.Frames->WorkFrame.Picture;
    const Surface& photo = place.Frames->CaptureFrame.Picture;
    const double sigma = CanvasScale(place.State->Chosen, painting.Width()).Pixels(kBlurMm);
    auto fromAfar = std::async(std::launch::async,
                               [&] { return DifferenceAtArmsLength(photo, painting, sigma); });
    const double near = MeanDifference(PixelsOf(photo), PixelsOf(painting));
    return {near, fromAfar.get()};
}

}  // namespace vendrel
