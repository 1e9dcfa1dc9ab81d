#include "noise.h"
#include "sitter.h"

namespace vendrel::portrait {

namespace {

// The garden behind the window, out of focus: sky, trees, a lawn.
Tint Garden(Point p) {
    const double drift = (CloudNoise(p * 0.008, 11) - 0.5) * 190;
    const double y = p.y + drift;
    Tint tint = Ramp({{0, {136, 180, 220}},
                      {110, {180, 210, 232}},
                      {210, {222, 230, 212}},
                      {300, {176, 196, 132}},
                      {430, {122, 152, 88}},
                      {560, {84, 118, 72}},
                      {700, {66, 98, 70}},
                      {960, {48, 74, 60}}},
                     y);
    const double leaves = CloudNoise(p * 0.02, 23) - 0.5;
    tint = Mix(tint, {226, 222, 140}, Clamp01(leaves * 1.6) * Ease(120, 320, y));
    return Mix(tint, {40, 72, 56}, Clamp01(-leaves * 1.5) * Ease(220, 420, y));
}

// The curtain on the right hangs in folds and takes the window's light on their left sides.
Tint Curtain(Point p) {
    const double sway = 26 * std::sin(p.y * 0.0042 + 0.6) + 16 * CloudNoise(p * 0.006, 41);
    const double fold =
        std::sin((p.x + sway) * 0.062 + 1.3 * CloudNoise({p.x * 0.01, p.y * 0.002}, 43));
    const double crease = std::sin((p.x + sway) * 0.151 + 2.0);
    double light = 0.46 + 0.30 * fold + 0.10 * crease - p.y * 0.00022;
    light += 0.10 * (CloudNoise({p.x * 0.05, p.y * 0.012}, 47) - 0.5);
    return Ramp({{0.0, {50, 26, 40}},
                 {0.2, {84, 38, 52}},
                 {0.4, {126, 58, 66}},
                 {0.6, {168, 92, 86}},
                 {0.8, {206, 140, 114}},
                 {1.0, {234, 188, 148}}},
                light);
}

void PaintDiscs(Canvas& canvas, Chance& chance) {
    for (int i = 0; i < 120; ++i) {
        const Point centre{chance.Between(-20, 470), chance.Between(20, 900)};
        const double radius = chance.Between(9, 30);
        const bool blossom = centre.y > 430 && chance.Next() < 0.7;
        const Tint leaf = Mix(Tint{236, 236, 176}, Tint{128, 168, 96}, chance.Next());
        const Tint rose = Mix(Tint{244, 180, 190}, Tint{200, 70, 100}, chance.Next());
        const Tint tint = blossom ? rose : leaf;
        const double cover = chance.Between(0.14, 0.5) * (blossom ? 1.2 : 1);
        const Frame frame = FrameAround({centre}, radius + 6);
        canvas.Lay(frame, [&](Point p) -> Dab {
            return {tint, cover * Ease(radius + 4, radius - 4, Length(p - centre))};
        });
    }
}

}  // namespace

void PaintBackdrop(Canvas& canvas) {
    canvas.Lay(Canvas::kWhole, [](Point p) -> Dab { return {Garden(p), 1}; });
    Chance chance(2024);
    PaintDiscs(canvas, chance);
    canvas.Lay(Canvas::kWhole, [](Point p) -> Dab {
        const double hem = 470 + 34 * std::sin(p.y * 0.006 + 0.4) + p.y * 0.03;
        return {Curtain(p), Ease(hem - 16, hem + 16, p.x)};
    });
    // Light pours in from the top left corner.
    canvas.Lay(Canvas::kWhole, [](Point p) -> Dab {
        return {{255, 246, 222}, 0.50 * Spot(p, {40, 60}, {230, 330})};
    });
}

}  // namespace vendrel::portrait
