#include "noise.h"
#include "sitter.h"

namespace vendrel::portrait {

namespace {

const Path& BodyOutline() {
    static const Path outline = Outline(Mirrored({{0.47, 0.7},
                                                  {0.465, 1.3},
                                                  {0.475, 1.65},
                                                  {0.56, 1.93},
                                                  {0.84, 2.14},
                                                  {1.30, 2.30},
                                                  {1.70, 2.50},
                                                  {1.96, 2.86},
                                                  {2.08, 3.4},
                                                  {2.16, 4.2},
                                                  {0.5, 4.6}}));
    return outline;
}

// The dress leaves the shoulders bare.
double NecklineDepth(Point p) {
    const double x = std::abs(p.x);
    const double neckline =
        3.02 - 0.30 * Ease(0.2, 1.1, x) - 0.18 * Ease(1.0, 1.9, x) + 0.05 * Ease(0.25, 0.0, x);
    return p.y - neckline;
}

double BodyHeight(Point p) {
    const double inside = std::max(0.0, -SignedDistance(BodyOutline(), p));
    const double rim = 1 - std::min(inside / 0.62, 1.0);
    const double chest = 0.5 * std::sqrt(std::max(0.0, 1 - rim * rim * 0.98));
    const double neck = 0.5 * std::exp(-p.x * p.x / 0.36);
    double z = Mix(neck, chest, Ease(1.8, 2.5, p.y));
    const double x = std::abs(p.x);
    z += 0.055 * Spot({x, p.y + 0.16 * x}, {0.62, 2.50}, {0.44, 0.060});  // collar bones
    z -= 0.055 * Spot({x, p.y + 0.16 * x}, {0.62, 2.36}, {0.34, 0.090});
    z -= 0.055 * Spot(p, {0, 2.42}, {0.09, 0.10});
    const double tendon = x - Mix(0.36, 0.08, Ease(1.5, 2.4, p.y));
    z += 0.030 * std::exp(-tendon * tendon / 0.0055) * Ease(1.5, 1.8, p.y) * Ease(2.48, 2.3, p.y);
    z += 0.16 * TwinSpots(p, {0.62, 3.40}, {0.50, 0.55});
    return z;
}

Tint BareSkin(Point p, double daylight) {
    double light = daylight - 0.02;
    const double chinShadow = Ease(2.02 + 0.30 * p.x, 1.62 + 0.30 * p.x, p.y);
    light -= 0.36 * chinShadow * Ease(-0.62, 0.1, p.x);
    light -= 0.14 * Ease(1.9, 1.5, p.y);
    const Tint tint = Skin(light);
    const double flush = 0.35 * Spot(p, {0.1, 2.75}, {0.9, 0.4}) +
                         0.3 * Spot({std::abs(p.x), p.y}, {1.6, 2.6}, {0.3, 0.3});
    return Mix(tint, Glaze(tint, {255, 216, 206}), flush);
}

Tint Velvet(Point p, double daylight) {
    const double x = std::abs(p.x);
    const double sweepX = p.x * (1.5 + 0.5 * (p.y - 3));
    const double folds = std::sin(sweepX * 7 + 3.0 * CloudNoise({p.x * 1.6, p.y * 0.6}, 61));
    double light = daylight - 0.30 + 0.16 * folds * Ease(0.05, 0.6, NecklineDepth(p));
    light += 0.12 * (CloudNoise({p.x * 5, p.y * 2}, 67) - 0.5);
    light -= 0.12 * Spot({x, p.y}, {0, 3.6}, {0.16, 0.6});
    return Ramp({{0.0, {12, 32, 48}},
                 {0.2, {20, 58, 78}},
                 {0.4, {34, 92, 112}},
                 {0.6, {70, 136, 150}},
                 {0.8, {132, 186, 190}},
                 {1.0, {200, 226, 222}}},
                light);
}

Tint Lace(Point p, double daylight) {
    const double mesh = std::sin(p.x * 44) * std::sin(NecklineDepth(p) * 60);
    const double light = daylight - 0.06 + 0.09 * mesh;
    return Ramp({{0.2, {112, 100, 104}},
                 {0.5, {178, 166, 160}},
                 {0.75, {224, 214, 198}},
                 {1.0, {252, 246, 234}}},
                light);
}

Dab Bust(Point picture) {
    const Point p = OnBody(picture);
    const double edge = SignedDistance(BodyOutline(), p) * kScale;
    if (edge > 2)
        return {};
    const double daylight = Daylight(BodyHeight, p);
    const double depth = NecklineDepth(p);
    const double scallop = 0.025 * std::abs(std::sin(p.x * 13));
    Tint tint = BareSkin(p, daylight);
    tint = Mix(tint, Glaze(tint, {196, 150, 140}), 0.7 * Ease(-0.16, 0.0, depth));
    tint = Mix(tint, Lace(p, daylight), Ease(-0.055, -0.040, depth + scallop));
    const Tint velvet = Glaze(
        Velvet(p, daylight), Mix(Tint{120, 120, 130}, Tint{255, 255, 255}, Ease(0.1, 0.28, depth)));
    tint = Mix(tint, velvet, Ease(0.115, 0.13, depth - scallop));
    return {tint, Ease(1.2, -1.2, edge)};
}

void PaintPearl(Canvas& canvas, Point centre, double radius) {
    const auto around = FrameAround({centre}, radius * 2);
    canvas.Lay(around, [&](Point p) -> Dab {
        return {{96, 54, 46},
                0.5 * Spot(p, centre + Point{radius * 0.5, radius * 0.8}, {radius, radius})};
    });
    canvas.Lay(around, [&](Point p) -> Dab {
        const Point d = (p - centre) * (1 / radius);
        const double light = 0.62 - 0.34 * d.x - 0.30 * d.y;
        Tint tint = Ramp({{0.1, {120, 100, 104}},
                          {0.45, {190, 176, 172}},
                          {0.8, {238, 228, 216}},
                          {1, {255, 252, 246}}},
                         light);
        tint = Mix(tint, {255, 255, 252}, Spot(d, {-0.35, -0.4}, {0.3, 0.3}));
        return {tint, Ease(1.06, 0.94, Length(d))};
    });
}

void PaintPearls(Canvas& canvas) {
    const Path string =
        Trace({{-0.52, 1.92}, {-0.40, 2.20}, {0.0, 2.46}, {0.40, 2.20}, {0.52, 1.92}}, 400);
    double sinceLast = 1;
    for (std::size_t i = 1; i < string.size(); ++i) {
        sinceLast += Length(string[i] - string[i - 1]);
        const double size = 0.046 + 0.022 * Spot(string[i], {0, 2.46}, {0.3, 0.3});
        if (sinceLast < size * 1.95)
            continue;
        sinceLast = 0;
        PaintPearl(canvas, OnPicture(string[i]), size * kScale);
    }
}

}  // namespace

void PaintBust(Canvas& canvas) {
    canvas.Lay({0, 480, Canvas::kWidth, Canvas::kHeight}, Bust);
    PaintPearls(canvas);
}

}  // namespace vendrel::portrait
