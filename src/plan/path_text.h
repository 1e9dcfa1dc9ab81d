#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "plan/plan_lines.h"

namespace vendrel {

/// From the picture's pixels to the numbers of a drawing.
struct PathUnit {
    double PerPixel = 1;
    int Decimals = 0;  // that the numbers keep
};

/// Puts path data of scalable pictures together, in relative steps. Points are rounded before steps
/// are taken between them, so a border that is drawn twice is the same both times.
class PathText {
  public:
    explicit PathText(const PathUnit& unit);

    void MoveTo(const PlanPoint& to);
    void LineTo(const PlanPoint& to);
    void CurveTo(const std::array<PlanPoint, 3>& bends);
    void Close();
    /// Straight pieces through all points.
    void Follow(std::span<const PlanPoint> points);

    [[nodiscard]] const std::string& Text() const { return text_; }

  private:
    struct Place {
        std::int64_t X = 0;
        std::int64_t Y = 0;
    };
    [[nodiscard]] Place Rounded(const PlanPoint& at) const;
    void Command(char command);
    void Number(std::int64_t number);

    std::size_t decimals_;
    double perPixel_ = 1;  // of the last decimal
    std::string text_;
    char command_ = 0;
    bool apart_ = false;  // the last that was written is a number
    Place at_;
    Place start_;
};

/// An area's rings, each closed: what the even-odd rule fills is the area.
[[nodiscard]] std::string AreaPath(const PlanLines& lines, int area, const PathUnit& unit);
/// A border alone, closed where it ends where it began.
[[nodiscard]] std::string ChainPath(const PlanChain& chain, const PathUnit& unit);

}  // namespace vendrel
