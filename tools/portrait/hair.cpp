#include <numbers>

#include "noise.h"
#include "sitter.h"

namespace vendrel::portrait {

namespace {

// Half of the hair, from the parting to the tips: hair lies between the guide at the face and the
// outer one.
struct Fall {
    Path inner;
    Path outer;
    int locks;
    double side;  // -1 left of the face, 1 right
};

const Fall kRightFall{{{-0.16, -1.00},
                       {0.22, -0.94},
                       {0.58, -0.64},
                       {0.83, -0.22},
                       {0.92, 0.20},
                       {0.86, 0.66},
                       {0.84, 1.08},
                       {0.94, 1.55},
                       {0.82, 2.05},
                       {0.92, 2.55},
                       {0.78, 3.00}},
                      {{-0.15, -1.63},
                       {0.36, -1.64},
                       {0.90, -1.36},
                       {1.24, -0.76},
                       {1.38, -0.06},
                       {1.42, 0.58},
                       {1.54, 1.20},
                       {1.66, 1.76},
                       {1.54, 2.28},
                       {1.66, 2.80},
                       {1.48, 3.28}},
                      13,
                      1};
const Fall kLeftFall{{{-0.16, -1.00},
                      {-0.38, -0.92},
                      {-0.64, -0.64},
                      {-0.84, -0.22},
                      {-0.92, 0.20},
                      {-0.88, 0.66},
                      {-0.86, 1.08},
                      {-0.96, 1.55},
                      {-0.84, 2.00},
                      {-0.90, 2.40},
                      {-0.80, 2.78}},
                     {{-0.15, -1.63},
                      {-0.54, -1.60},
                      {-0.98, -1.28},
                      {-1.26, -0.76},
                      {-1.38, -0.06},
                      {-1.42, 0.58},
                      {-1.52, 1.20},
                      {-1.62, 1.76},
                      {-1.50, 2.24},
                      {-1.58, 2.66},
                      {-1.40, 3.06}},
                     12,
                     -1};

Tint HairTint(double light) {
    return Ramp({{0.00, {30, 17, 17}},
                 {0.20, {58, 31, 25}},
                 {0.40, {98, 53, 34}},
                 {0.58, {142, 82, 48}},
                 {0.75, {188, 122, 72}},
                 {0.90, {226, 170, 112}},
                 {1.00, {246, 212, 160}}},
                light);
}

struct Lock {
    double phase;
    double tone;
    double sway;
};

// Where the strand at `across` (0 at the face, 1 outside) lies at `along` (0 at the parting, 1 at
// the tip).
Point StrandPoint(const Fall& fall, const Lock& lock, double across, double along) {
    const Point base = Mix(OnCurve(fall.inner, along), OnCurve(fall.outer, along), across);
    const double wave = Ease(0.42, 0.75, along) * lock.sway * std::sin(lock.phase + along * 17);
    return base + Point{wave, 0.2 * wave};
}

// The window's light breaks on the crown and again on every wave that faces it.
double StrandLight(const Fall& fall, const Lock& lock, double across, double along) {
    const double crown = 0.46 * std::exp(-std::pow((along - 0.20) / 0.085, 2));
    const double waves =
        0.20 * Ease(0.40, 0.6, along) * std::sin(lock.phase * 0.6 + along * 17 + 0.9);
    const double turned =
        (fall.side < 0 ? 0.14 : -0.08) * Ease(0.0, 0.12, along) - 0.16 * Ease(0.07, 0.0, along);
    const double inLock = across * fall.locks - std::floor(across * fall.locks);
    const double body = 0.20 * std::sin(inLock * std::numbers::pi) - 0.10;
    const double depth = -0.20 * Ease(0.18, 0.0, across) * Ease(0.3, 0.5, along);
    return 0.38 + crown * (fall.side < 0 ? 1.0 : 0.75) + waves + turned + lock.tone + body + depth;
}

void PaintStrand(Canvas& canvas, const Fall& fall, const Lock& lock, Chance& chance,
                 double across) {
    constexpr int kSteps = 90;
    constexpr int kPiece = 6;
    const double end = chance.Between(0.86, 1.0) - 0.10 * std::abs(across - 0.5);
    const double start = chance.Next() < 0.7 ? 0.0 : chance.Between(0.0, 0.4);
    const double jitter = chance.Between(-0.13, 0.13);
    const double width = chance.Between(1.4, 3.8);
    const double root = chance.Between(-0.07, 0.07);
    Path path;
    for (int i = 0; i <= kSteps; ++i) {
        const double along = Mix(start, end, i / static_cast<double>(kSteps));
        const Point parted{root * Ease(0.1, 0.0, along), 0};
        path.push_back(HeadOnPicture(StrandPoint(fall, lock, across, along) + parted));
    }
    // A strand is painted in overlapping short touches, for its light changes along the way.
    for (int i = 0; i < kSteps; i += kPiece) {
        const int first = std::max(0, i - kPiece);
        const int last = std::min(kSteps, i + 2 * kPiece);
        const double along = Mix(start, end, (i + kPiece / 2.0) / kSteps);
        const double taper = Mix(1.0, 0.6, Ease(0.8, 1.0, along));
        const Tint tint = HairTint(StrandLight(fall, lock, across, along) + jitter);
        canvas.Stroke(Path(path.begin() + first, path.begin() + last + 1),
                      {width * taper, tint, 0.55});
    }
}

Path Shape(const Fall& fall) {
    Path shape = Trace(fall.inner, 60);
    const Path back = Trace(fall.outer, 60);
    shape.insert(shape.end(), back.rbegin(), back.rend());
    return HeadOnPicture(shape);
}

void PaintUnderHair(Canvas& canvas, const Path& shape) {
    canvas.Lay(FrameAround(shape, 30), [&](Point p) -> Dab {
        const double edge = SignedDistance(shape, p);
        return {{52, 28, 24}, Ease(1, -12, edge) * Ease(850, 760, p.y)};
    });
}

// The hair darkens the skin that it frames.
void PaintHairShadow(Canvas& canvas, const Fall& fall) {
    Path edge = HeadOnPicture(Trace(fall.inner, 60));
    const Path back(edge.rbegin(), edge.rend());
    edge.insert(edge.end(), back.begin(), back.end());
    canvas.Lay(FrameAround(edge, 60), [&](Point p) -> Dab {
        const double gap = SignedDistance(edge, p - Point{5, 4}) / 22;
        return {{130, 66, 46}, 0.62 * std::exp(-gap * gap) * Ease(2.35, 1.9, OnBody(p).y)};
    });
}

void PaintFall(Canvas& canvas, const Fall& fall, Chance& chance) {
    const Path shape = Shape(fall);
    PaintHairShadow(canvas, fall);
    PaintUnderHair(canvas, shape);
    std::vector<Lock> locks;
    for (int i = 0; i <= fall.locks; ++i) {
        locks.push_back({i * 0.55 + chance.Between(-0.5, 0.5), chance.Between(-0.12, 0.10),
                         chance.Between(0.035, 0.085)});
    }
    constexpr int kStrands = 620;
    for (int i = 0; i < kStrands; ++i) {
        // From the outside to the face, but never in strict order: hair mingles.
        const double across =
            Clamp01(1 - i / static_cast<double>(kStrands) + chance.Between(-0.09, 0.09));
        const double stray = chance.Next() < 0.12 ? chance.Between(-0.06, 0.03) : 0;
        PaintStrand(canvas, fall, locks[static_cast<std::size_t>(across * fall.locks)], chance,
                    across + stray);
    }
}

}  // namespace

void PaintBackHair(Canvas& canvas) {
    const Path shape = HeadOnPicture(Outline(Mirrored({{0, -1.5},
                                                       {0.6, -1.4},
                                                       {1.15, -0.7},
                                                       {1.3, 0.3},
                                                       {1.3, 1.2},
                                                       {1.2, 2.0},
                                                       {0.8, 2.5},
                                                       {0, 2.5}})));
    canvas.Lay(FrameAround(shape, 8), [&](Point p) -> Dab {
        const double grain = CloudNoise({p.x * 0.09, p.y * 0.012}, 91);
        return {Mix(Tint{26, 15, 16}, Tint{66, 36, 28}, grain),
                Ease(6, -6, SignedDistance(shape, p))};
    });
}

void PaintFrontHair(Canvas& canvas) {
    Chance chance(4711);
    PaintFall(canvas, kRightFall, chance);
    PaintFall(canvas, kLeftFall, chance);
}

}  // namespace vendrel::portrait
