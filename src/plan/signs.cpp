#include "plan/signs.h"

#include <utility>

#include "plan/sign_shapes.h"

namespace vendrel {
namespace {

using namespace shapes;

constexpr double kR = 0.5;      // outer radius
constexpr double kLine = 0.15;  // of open shapes
constexpr double kSide = 0.45;  // half the side of a square

Rings Square() {
    return {Box({-kSide, -kSide, kSide, kSide})};
}
Rings Ring() {
    return {Disc(kR), Disc(kR - kLine)};
}
Rings Diamond(double half) {
    return {{{0, -half}, {half, 0}, {0, half}, {-half, 0}}};
}
Rings Triangle() {
    return {{{0, -kR}, {kR, 0.42}, {-kR, 0.42}}};
}
Rings OpenTriangle() {
    return Both(Triangle(), {{{0, -0.17}, {0.26, 0.27}, {-0.26, 0.27}}});
}
Rings Plus(double arm, double half) {
    return {{{-half, -arm},
             {half, -arm},
             {half, -half},
             {arm, -half},
             {arm, half},
             {half, half},
             {half, arm},
             {-half, arm},
             {-half, half},
             {-arm, half},
             {-arm, -half},
             {-half, -half}}};
}
Rings Arrow() {
    return {{{0, -kR}, {0.42, 0}, {0.14, 0}, {0.14, kR}, {-0.14, kR}, {-0.14, 0}, {-0.42, 0}}};
}
Rings Dash() {
    return {Box({-kR, -0.13, kR, 0.13})};
}
Rings Dashes(double gap) {
    return Both(Moved(Dash(), {0, -gap}), Moved(Dash(), {0, gap}));
}
Rings Chevron() {
    return {{{0, -0.38}, {kR, 0.12}, {kR, 0.4}, {0, -0.1}, {-kR, 0.4}, {-kR, 0.12}}};
}
Rings Hourglass() {
    return {{{-0.42, -kR}, {0.42, -kR}, {0, 0}}, {{0, 0}, {0.42, kR}, {-0.42, kR}}};
}
Rings Tee() {
    return {{{-kR, -kR},
             {kR, -kR},
             {kR, -0.24},
             {0.13, -0.24},
             {0.13, kR},
             {-0.13, kR},
             {-0.13, -0.24},
             {-kR, -0.24}}};
}
Rings Corner() {
    return {{{-0.42, -kR}, {-0.14, -kR}, {-0.14, 0.23}, {0.42, 0.23}, {0.42, kR}, {-0.42, kR}}};
}
Rings Cup() {
    return {{{-kSide, -kSide},
             {-0.2, -kSide},
             {-0.2, 0.2},
             {0.2, 0.2},
             {0.2, -kSide},
             {kSide, -kSide},
             {kSide, kSide},
             {-kSide, kSide}}};
}
Rings Ladder() {
    return {{{-kSide, -kR},
             {-0.2, -kR},
             {-0.2, -0.12},
             {0.2, -0.12},
             {0.2, -kR},
             {kSide, -kR},
             {kSide, kR},
             {0.2, kR},
             {0.2, 0.12},
             {-0.2, 0.12},
             {-0.2, kR},
             {-kSide, kR}}};
}
Rings HalfFull() {
    return {Disc(kR), Segment(kR - kLine, -90, 90)};
}
Rings Dots(const std::vector<PlanPoint>& centres, double radius) {
    Rings dots;
    for (const PlanPoint& centre : centres) {
        dots.push_back(Disc(radius, centre));
    }
    return dots;
}
Rings Moon() {
    PlanLine ring = Segment(kR, 60, 300);
    const PlanLine bite = Segment(0.46, 285, 75);
    for (const PlanPoint& at : bite) {
        ring.push_back({at.X + 0.13, at.Y});
    }
    return {ring};
}
// What is left open are the holes.
Rings Wheel() {
    Rings wheel{Disc(kR)};
    for (int quarter = 0; quarter < 4; ++quarter) {
        PlanLine hole{{0.07, 0.07}};
        for (const PlanPoint& at : Segment(0.36, 11, 79)) {
            hole.push_back(at);
        }
        wheel = Both(std::move(wheel), Turned({hole}, quarter));
    }
    return wheel;
}
Rings CrossedFrame() {
    const Rings one{{{-0.24, -0.33}, {0.24, -0.33}, {0, -0.09}}};
    Rings all = Square();
    for (int quarter = 0; quarter < 4; ++quarter) {
        all = Both(std::move(all), Turned(one, quarter));
    }
    return all;
}
Rings Mouth() {
    PlanLine ring = Segment(kR, 40, 320);
    ring.push_back({0, 0});
    return {ring};
}
Rings Checks() {
    return {Box({-kSide, -kSide, 0, 0}), Box({0, 0, kSide, kSide})};
}
Rings FourSquares() {
    return {Box({-kSide, -kSide, -0.09, -0.09}), Box({0.09, -kSide, kSide, -0.09}),
            Box({-kSide, 0.09, -0.09, kSide}), Box({0.09, 0.09, kSide, kSide})};
}
Rings Ell() {
    return {{{-kSide, -kSide}, {kSide, -kSide}, {-kSide, kSide}}};
}

// The order is that of bench/symbol_order.cpp.
std::vector<Sign> MakeSigns() {
    std::vector<Sign> signs = {
        {"other checks", Turned(Checks(), 1)},
        {"bow", Turned(Hourglass(), 1)},
        {"ring", Ring()},
        {"plus", Plus(kR, 0.14)},
        {"corner 3", Turned(Corner(), 2)},
        {"cross", Leaning(Plus(0.57, 0.13), 45)},
        {"open right", Turned(OpenTriangle(), 1)},
        {"moon", Moon()},
        {"tee", Tee()},
        {"open heart", {Heart(1), Heart(0.62)}},
        {"two dashes", Dashes(0.28)},
        {"three dots", Dots({{0, -0.28}, {-0.3, 0.26}, {0.3, 0.26}}, 0.2)},
        {"roof", Chevron()},
        {"backslash", Leaning(Dash(), 45)},
        {"open diamond", Both(Diamond(kR), Diamond(0.28))},
        {"bar", Turned(Dash(), 1)},
        {"half top", Turned(HalfFull(), 3)},
        {"mouth", Mouth()},
        {"left", Turned(Triangle(), 3)},
        {"ladder", Ladder()},
        {"cup", Cup()},
        {"ell", Turned(Ell(), 3)},
        {"star", {Star(5, kR, 0.2)}},
        {"crossed frame", CrossedFrame()},
        {"heart", {Heart(1)}},
        {"wheel", Wheel()},
        {"colon", Dots({{0, -0.3}, {0, 0.3}}, 0.2)},
        {"arrow down", Turned(Arrow(), 2)},
        {"four squares", FourSquares()},
        {"spark", {Star(4, kR, 0.15)}},
        {"open down", Turned(OpenTriangle(), 2)},
        {"old moon", Turned(Moon(), 2)},
        {"up", Triangle()},
        {"arrow up", Arrow()},
        {"hourglass", Hourglass()},
        {"half bottom", Turned(HalfFull(), 1)},
        {"other mouth", Turned(Mouth(), 2)},
        {"half left", Turned(HalfFull(), 2)},
        {"half right", HalfFull()},
        {"arrow left", Turned(Arrow(), 3)},
        {"arrow right", Turned(Arrow(), 1)},
        {"two dots", Dots({{-0.3, 0}, {0.3, 0}}, 0.2)},
        {"corner 4", Turned(Corner(), 3)},
        {"tee down", Turned(Tee(), 2)},
        {"tee left", Turned(Tee(), 3)},
        {"tee right", Turned(Tee(), 1)},
        {"next", Turned(Chevron(), 1)},
        {"back", Turned(Chevron(), 3)},
        {"checks", Checks()},
        {"vee", Turned(Chevron(), 2)},
    };
    for (Sign& sign : signs) {
        sign.Rings = Centred(std::move(sign.Rings));
    }
    return signs;
}

}  // namespace

const std::vector<Sign>& Signs() {
    static const std::vector<Sign> signs = MakeSigns();
    return signs;
}

}  // namespace vendrel
