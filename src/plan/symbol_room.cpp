#include "plan/symbol_room.h"

#include <algorithm>

#include "drawing/brush.h"

namespace vendrel {
namespace {

// Between a symbol and the ink of a line, in millimeters: what it takes to see them apart at once,
// and at a second look.
constexpr double kWantedAirMm = 0.25;
constexpr double kLeastAirMm = 0.1;
// What a box too small for any air leaves of its height to a symbol.
constexpr double kTight = 0.6;

double HeightWithin(double width, double height, double aspect, double air) {
    return std::min(height - 2 * air, (width - 2 * air) / aspect);
}

}  // namespace

SymbolAir AirInPrint() {
    return {kWantedAirMm + kBorderMm / 2, kLeastAirMm + kBorderMm / 2, kLegibleSymbolMm,
            kLargestSymbolMm};
}

SymbolAir InPixels(const SymbolAir& air, PrintScale scale) {
    return {scale.Pixels(air.Wanted), scale.Pixels(air.Least), scale.Pixels(air.Legible),
            scale.Pixels(air.Largest)};
}

double SymbolAir::HeightIn(double withWantedAir, double withLeastAir, double withoutAir) const {
    if (withWantedAir >= Legible) {
        return std::min(withWantedAir, Largest);
    }
    return std::clamp(withLeastAir, std::min(kTight * withoutAir, Legible), Legible);
}

double SymbolRoom::SymbolMm(PrintScale scale) const {
    const SymbolAir air = AirInPrint();
    const auto height = [&](double mm) {
        return HeightWithin(scale.Mm(Width), scale.Mm(Height), Aspect, mm);
    };
    return air.HeightIn(height(air.Wanted), height(air.Least), height(0));
}

double SymbolRoom::LegiblePixelMm() const {
    const SymbolAir air = AirInPrint();
    return std::max((air.Legible + 2 * air.Least) / Height,
                    (air.Legible * Aspect + 2 * air.Least) / Width);
}

double GrowthToLegible(double heightMm) {
    const double around = 2 * AirInPrint().Least;
    const double room = std::min(heightMm + around, heightMm / kTight);
    return (kLegibleSymbolMm + around) / room;
}

SymbolRoom RoomIn(const InscribedBox& box, double aspect) {
    return {static_cast<double>(box.Right - box.Left), static_cast<double>(box.Bottom - box.Top),
            aspect};
}

SymbolRoom RoomInStipple(int stippleSize, double aspect) {
    PixelGrid dot(stippleSize - 1, stippleSize - 1);
    for (const BrushRun& run : BrushStamp(stippleSize, BrushShape::Rounded)) {
        for (int x = run.First; x <= run.Last; ++x) {
            dot(x + stippleSize / 2, run.Row + stippleSize / 2) = 1;
        }
    }
    const PaintedRegions regions = FindRegions(dot);
    const auto boxes = FindRoomiestBoxes(regions, [aspect](int) { return aspect; });
    const auto largest = std::ranges::max_element(boxes, {}, [&](const InscribedBox& box) {
        return regions[box.Region].Value == 1 ? box.Height : 0;
    });
    return RoomIn(*largest, aspect);
}

}  // namespace vendrel
