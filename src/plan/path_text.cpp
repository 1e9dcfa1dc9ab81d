#include "plan/path_text.h"

#include <cmath>

#include "support/list.h"

namespace vendrel {

PathText::PathText(const PathUnit& unit)
    : decimals_(static_cast<std::size_t>(unit.Decimals)),
      perPixel_(unit.PerPixel * std::pow(10, unit.Decimals)) {}

PathText::Place PathText::Rounded(const PlanPoint& at) const {
    return {std::llround(at.X * perPixel_), std::llround(at.Y * perPixel_)};
}

void PathText::Command(char command) {
    if (command != command_) {
        text_ += command;
        command_ = command;
        apart_ = false;
    }
}

void PathText::Number(std::int64_t number) {
    if (number < 0) {
        text_ += '-';
    } else if (apart_) {
        text_ += ' ';
    }
    std::string digits = std::to_string(std::abs(number));
    if (decimals_ > 0) {
        if (digits.size() <= decimals_) {
            digits.insert(0, decimals_ + 1 - digits.size(), '0');
        }
        digits.insert(digits.size() - decimals_, 1, '.');
        digits.erase(digits.find_last_not_of('0') + 1);
        if (digits.back() == '.') {
            digits.pop_back();
        }
    }
    text_ += digits;
    apart_ = true;
}

void PathText::MoveTo(const PlanPoint& to) {
    command_ = 0;
    Command('M');
    at_ = start_ = Rounded(to);
    Number(at_.X);
    Number(at_.Y);
}

void PathText::LineTo(const PlanPoint& to) {
    const Place next = Rounded(to);
    const Place step{next.X - at_.X, next.Y - at_.Y};
    if (step.X == 0 && step.Y == 0) {
        return;
    }
    Command(step.Y == 0 ? 'h' : step.X == 0 ? 'v' : 'l');
    if (step.X != 0) {
        Number(step.X);
    }
    if (step.Y != 0) {
        Number(step.Y);
    }
    at_ = next;
}

void PathText::CurveTo(const std::array<PlanPoint, 3>& bends) {
    Command('c');
    Place next;
    for (const PlanPoint& bend : bends) {
        next = Rounded(bend);
        Number(next.X - at_.X);
        Number(next.Y - at_.Y);
    }
    at_ = next;
}

void PathText::Close() {
    command_ = 0;
    Command('z');
    at_ = start_;
}

void PathText::Follow(std::span<const PlanPoint> points) {
    for (const PlanPoint& point : points) {
        LineTo(point);
    }
}

std::string AreaPath(const PlanLines& lines, int area, const PathUnit& unit) {
    PathText path(unit);
    for (const PlanRing& ring : At(lines.Rings, area)) {
        const PlanLine points = PointsOf(lines, ring);
        path.MoveTo(points.front());
        path.Follow(std::span(points).subspan(1));
        path.Close();
    }
    return path.Text();
}

std::string ChainPath(const PlanChain& chain, const PathUnit& unit) {
    PathText path(unit);
    const std::span<const PlanPoint> points = chain.Points;
    const bool closed = points.front() == points.back();
    path.MoveTo(points.front());
    path.Follow(points.subspan(1, points.size() - (closed ? 2 : 1)));
    if (closed) {
        path.Close();
    }
    return path.Text();
}

}  // namespace vendrel
