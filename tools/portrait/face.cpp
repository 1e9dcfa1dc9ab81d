#include "noise.h"
#include "sitter.h"

namespace vendrel::portrait {

namespace {

const Path& FaceOutline() {
    static const Path outline = Outline(Mirrored({{0, -1.42},
                                                  {0.50, -1.28},
                                                  {0.86, -0.85},
                                                  {0.98, -0.35},
                                                  {0.975, 0.10},
                                                  {0.905, 0.52},
                                                  {0.765, 0.88},
                                                  {0.55, 1.16},
                                                  {0.32, 1.37},
                                                  {0.14, 1.45},
                                                  {0, 1.46}}));
    return outline;
}

struct Bump {
    double height;
    Point centre;
    Point spread;
};

// Both halves of the face: centres are mirrored about the middle.
constexpr Bump kBumps[] = {
    {0.05, {0.38, -0.34}, {0.30, 0.12}},      // brow
    {-0.075, {0.43, -0.06}, {0.25, 0.16}},    // eye socket
    {-0.035, {0.20, -0.06}, {0.12, 0.15}},    // beside the bridge
    {0.085, {0.43, 0.00}, {0.18, 0.12}},      // eyeball
    {-0.016, {0.42, 0.19}, {0.20, 0.05}},     // below the lid
    {0.085, {0.52, 0.34}, {0.30, 0.26}},      // cheek
    {0.055, {0.145, 0.545}, {0.075, 0.065}},  // nostril wing
    {-0.022, {0.28, 0.62}, {0.08, 0.10}},     // fold beside the nose
    {-0.018, {0.39, 0.92}, {0.09, 0.09}},     // corner of the mouth
    {0.03, {0.09, 0.88}, {0.10, 0.05}},       // upper lip
    {-0.10, {0.90, -0.35}, {0.16, 0.35}},     // temple
};

constexpr Bump kMiddleBumps[] = {
    {0.085, {0, 0.47}, {0.135, 0.12}},   // tip of the nose
    {-0.03, {0, 0.68}, {0.20, 0.06}},    // below it
    {-0.010, {0, 0.77}, {0.035, 0.07}},  // philtrum
    {0.075, {0, 1.00}, {0.22, 0.065}},   // lower lip
    {-0.065, {0, 1.13}, {0.20, 0.055}},  // below it
    {0.10, {0, 1.30}, {0.19, 0.13}},     // chin
    {0.05, {0, -0.65}, {0.55, 0.30}},    // forehead
};

double FaceHeight(Point p) {
    const double square =
        (p.x / 1.10) * (p.x / 1.10) + ((p.y - 0.02) / 1.72) * ((p.y - 0.02) / 1.72);
    double z = 0.92 * std::sqrt(std::max(0.015, 1 - square));
    for (const Bump& bump : kBumps)
        z += bump.height * TwinSpots(p, bump.centre, bump.spread);
    for (const Bump& bump : kMiddleBumps)
        z += bump.height * Spot(p, bump.centre, bump.spread);
    const double ridge =
        Mix(0.035, 0.175, Ease(-0.2, 0.5, p.y)) * Ease(-0.6, 0.0, p.y) * Ease(0.74, 0.44, p.y);
    const double width = Mix(0.13, 0.15, Ease(-0.1, 0.45, p.y));
    return z + ridge * std::exp(-p.x * p.x / (width * width));
}

Tint Complexion(Point p, Tint tint) {
    const Point half{std::abs(p.x), p.y};
    const double blush = 0.62 * Spot(half, {0.58, 0.36}, {0.32, 0.24}) +
                         0.40 * Spot(p, {0, 0.50}, {0.13, 0.10}) +
                         0.25 * Spot(p, {0, 1.32}, {0.2, 0.12});
    tint = Mix(tint, Glaze(tint, {255, 200, 190}), Clamp01(blush));
    const double lids = 0.55 * Spot(half, {0.43, -0.11}, {0.22, 0.07}) +
                        0.35 * Spot(half, {0.20, 0.0}, {0.07, 0.12});
    tint = Mix(tint, Glaze(tint, {214, 166, 158}), lids);
    const double gold = 0.5 * Spot(p, {-0.1, -0.7}, {0.6, 0.3});
    return Mix(tint, Glaze(tint, {255, 244, 226}), gold);
}

double CastShadow(Point p) {
    const double nose =
        0.09 * Spot(p, {0.13, 0.68}, {0.15, 0.05}) + 0.06 * Spot(p, {0.24, 0.50}, {0.08, 0.16});
    const double hair = 0.20 * Ease(0.70, 1.0, p.x + 0.1 * p.y) + 0.14 * Ease(-0.80, -1.0, p.x);
    const double brow = 0.22 * Ease(-0.72, -1.05, p.y + 0.12 * p.x * p.x);
    return nose + hair + brow;
}

}  // namespace

void PaintFace(Canvas& canvas) {
    const Frame frame = FrameAround(HeadOnPicture(FaceOutline()), 4);
    canvas.Lay(frame, [](Point picture) -> Dab {
        const Point p = OnHead(picture);
        const double edge = SignedDistance(FaceOutline(), p) * kScale;
        if (edge > 2)
            return {};
        double light = Daylight(FaceHeight, p) - CastShadow(p);
        light += 0.035 * (CloudNoise(p * 4, 71) - 0.5);
        // The curtain throws a little warm light back on the shaded cheek.
        const double bounce = 0.30 * Ease(0.55, 0.95, p.x) * Ease(1.3, 0.6, p.y);
        const Tint tint = Mix(Complexion(p, Skin(light)), {196, 122, 96}, bounce);
        return {tint, Ease(1.5, -1.5, edge)};
    });
}

}  // namespace vendrel::portrait
