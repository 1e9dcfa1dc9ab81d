#include "noise.h"
#include "sitter.h"

namespace vendrel::portrait {

namespace {

constexpr double kEyeX = 0.425;
constexpr double kLeft = -1;
constexpr double kRight = 1;

// Eyes and brows are drawn once: x runs from the nose outwards, from the middle of the eye.
Point EyeToHead(Point eye, double side) {
    return {side * (kEyeX + eye.x), eye.y};
}
Point HeadToEye(Point head, double side) {
    return {side * head.x - kEyeX, head.y};
}

Path EyeOnPicture(Path path, double side) {
    for (Point& p : path)
        p = HeadOnPicture(EyeToHead(p, side));
    return path;
}

const Path kUpperLid{{-0.222, 0.042}, {-0.15, -0.040}, {-0.05, -0.098},
                     {0.06, -0.102},  {0.15, -0.068},  {0.225, -0.012}};
const Path kLowerLid{
    {0.225, -0.012}, {0.14, 0.048}, {0.02, 0.074}, {-0.10, 0.068}, {-0.222, 0.042}};

Path EyeOpening() {
    Path path = Trace(kUpperLid, 30);
    const Path lower = Trace(kLowerLid, 30);
    path.insert(path.end(), lower.begin() + 1, lower.end() - 1);
    return path;
}

// Both irises look at the painter, so their light lies on the same side.
Tint Eyeball(Point p, double side) {
    const Point toIris = p - Point{-0.008, -0.020};
    const double radius = Length(toIris);
    Tint tint = Ramp({{-0.11, {140, 118, 112}},
                      {-0.05, {204, 190, 182}},
                      {0.02, {236, 228, 220}},
                      {0.08, {222, 204, 194}}},
                     p.y);
    tint = Mix(tint, Glaze(tint, {214, 178, 170}), Ease(0.12, 0.23, std::abs(p.x)));
    const double rays = 0.5 + 0.5 * std::sin(std::atan2(toIris.y, toIris.x) * 17);
    Tint iris = Mix(Tint{62, 104, 108}, Tint{128, 164, 150}, Ease(-0.06, 0.08, toIris.y));
    iris = Mix(iris, {158, 140, 84}, 0.55 * Ease(0.075, 0.05, radius));
    iris = Mix(iris, iris * 0.78, rays * 0.6);
    iris = Mix(iris, {26, 40, 44}, Ease(0.085, 0.108, radius));
    iris = Mix(iris, {16, 14, 16}, Ease(0.052, 0.044, radius));
    iris = Mix(iris, iris * 0.45, Ease(-0.035, -0.095, p.y));
    tint = Mix(tint, iris, Ease(0.112, 0.104, radius));
    const Point glint{side * -0.036 - 0.008, -0.052};
    return Mix(tint, {255, 255, 255}, 0.96 * Ease(0.030, 0.020, Length(p - glint)));
}

void PaintEye(Canvas& canvas, double side) {
    const Path opening = EyeOpening();
    const Frame frame = FrameAround(EyeOnPicture(opening, side), 3);
    canvas.Lay(frame, [&](Point picture) -> Dab {
        const Point p = HeadToEye(OnHead(picture), side);
        return {Eyeball(p, side), Ease(0.008, -0.008, SignedDistance(opening, p))};
    });
}

struct Line {
    Path knots;
    Sweep sweep;
};

void PaintLids(Canvas& canvas, double side) {
    const Line lines[] = {
        {{{-0.20, -0.055}, {-0.06, -0.155}, {0.08, -0.160}, {0.20, -0.105}, {0.27, -0.05}},
         {5.5, {132, 80, 66}, 0.40}},
        {{{-0.20, -0.055}, {-0.06, -0.155}, {0.08, -0.160}, {0.20, -0.105}, {0.27, -0.05}},
         {2.5, {104, 58, 48}, 0.60}},
        {{{0.23, -0.006}, {0.14, 0.056}, {0.02, 0.082}, {-0.10, 0.076}, {-0.22, 0.046}},
         {3.5, {128, 72, 62}, 0.55}},
        {{{-0.235, 0.050},
          {-0.15, -0.046},
          {-0.05, -0.106},
          {0.06, -0.112},
          {0.16, -0.078},
          {0.25, -0.026},
          {0.31, -0.062}},
         {7.0, {46, 27, 24}, 0.92}},
    };
    for (const Line& line : lines)
        canvas.Stroke(EyeOnPicture(Trace(line.knots, 40), side), line.sweep);
}

void PaintBrow(Canvas& canvas, Chance& chance, double side) {
    const Path spine{
        {-0.240, -0.285}, {-0.12, -0.325}, {0.02, -0.350}, {0.16, -0.335}, {0.33, -0.245}};
    canvas.Stroke(EyeOnPicture(Trace(spine, 40), side), {11, {120, 74, 52}, 0.55});
    for (int i = 0; i < 150; ++i) {
        const double t = chance.Between(0.0, 0.94);
        const double thick = 0.036 * Ease(1.05, 0.5, t) * Ease(-0.15, 0.2, t);
        const Point root = OnCurve(spine, t) + Point{0, chance.Between(-0.5, 1) * thick};
        const Point tip =
            OnCurve(spine, std::min(1.0, t + 0.10)) + Point{0, chance.Between(-1, 0.2) * thick};
        const Tint tint = Mix(Tint{60, 34, 26}, Tint{124, 76, 50}, chance.Next());
        canvas.Stroke(EyeOnPicture(Trace({root, Mix(root, tip, 0.5), tip}, 8), side),
                      {2.4, tint, 0.55});
    }
}

void PaintNose(Canvas& canvas) {
    const Frame frame = FrameAround(HeadOnPicture(Path{{-0.4, 0.1}, {0.4, 0.85}}), 20);
    canvas.Lay(frame, [](Point picture) -> Dab {
        const Point p = OnHead(picture);
        const Point half{std::abs(p.x), p.y + 0.25 * std::abs(p.x)};
        return {{88, 40, 36}, 0.85 * Spot(half, {0.088, 0.638}, {0.050, 0.022})};
    });
    for (const double side : {kLeft, kRight}) {
        const Path wing{{side * 0.185, 0.475},
                        {side * 0.222, 0.545},
                        {side * 0.195, 0.612},
                        {side * 0.150, 0.628}};
        canvas.Stroke(HeadOnPicture(Trace(wing, 20)),
                      {4.5, {146, 84, 70}, side == kLeft ? 0.16 : 0.35});
    }
    canvas.Lay(frame, [](Point picture) -> Dab {
        const Point p = OnHead(picture);
        const double shine = 0.55 * Spot(p, {-0.035, 0.455}, {0.040, 0.036}) +
                             0.16 * Spot(p, {-0.03, 0.2}, {0.028, 0.17});
        return {{255, 244, 232}, shine};
    });
}

const Path kMouthLine{{-0.335, 0.896}, {-0.21, 0.934}, {-0.09, 0.940}, {0, 0.954},
                      {0.09, 0.940},   {0.21, 0.934},  {0.335, 0.896}};

Path Lip(const Path& rim) {
    Path path = Trace(kMouthLine, 60);
    const Path back = Trace(rim, 60);
    path.insert(path.end(), back.begin() + 1, back.end() - 1);
    return path;
}

template <class Colour>
void PaintLip(Canvas& canvas, const Path& rim, Colour colour) {
    const Path shape = Lip(rim);
    canvas.Lay(FrameAround(HeadOnPicture(shape), 6), [&](Point picture) -> Dab {
        const Point p = OnHead(picture);
        return {colour(p), 0.92 * Ease(0.018, -0.022, SignedDistance(shape, p))};
    });
}

void PaintMouth(Canvas& canvas) {
    PaintLip(canvas,
             {{0.335, 0.896},
              {0.20, 0.862},
              {0.085, 0.834},
              {0, 0.860},
              {-0.085, 0.834},
              {-0.20, 0.862},
              {-0.335, 0.896}},
             [](Point p) {
                 const Tint lip = Mix(Tint{186, 92, 90}, Tint{140, 54, 60}, Ease(0.85, 0.95, p.y));
                 return Mix(lip, lip * 0.82, Ease(0.0, 0.30, p.x));
             });
    PaintLip(canvas,
             {{0.335, 0.896},
              {0.23, 0.990},
              {0.11, 1.055},
              {0, 1.066},
              {-0.11, 1.055},
              {-0.23, 0.990},
              {-0.335, 0.896}},
             [](Point p) {
                 Tint lip = Mix(Tint{176, 78, 80}, Tint{206, 112, 106},
                                Spot(p, {-0.04, 1.0}, {0.2, 0.05}));
                 lip = Mix(lip, {150, 64, 66}, Ease(1.02, 1.075, p.y));
                 lip = Mix(lip, lip * 0.84, Ease(0.02, 0.30, p.x));
                 return Mix(lip, {246, 196, 186}, 0.75 * Spot(p, {-0.065, 0.995}, {0.075, 0.020}));
             });
    Path line = kMouthLine;
    line.front() = {-0.360, 0.880};
    line.back() = {0.360, 0.880};
    canvas.Stroke(HeadOnPicture(Trace(line, 60)), {4.5, {98, 34, 38}, 0.8});
}

}  // namespace

void PaintFeatures(Canvas& canvas) {
    Chance chance(77);
    for (const double side : {kLeft, kRight}) {
        PaintEye(canvas, side);
        PaintLids(canvas, side);
        PaintBrow(canvas, chance, side);
    }
    PaintNose(canvas);
    PaintMouth(canvas);
}

}  // namespace vendrel::portrait
