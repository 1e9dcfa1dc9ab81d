#include "convert/scaling.h"

#include <algorithm>
#include <cassert>
#include <cstdint>

#include "support/list.h"

namespace vendrel {
namespace {

std::int64_t FloorDivide(std::int64_t value, std::int64_t by) {
    return value >= 0 ? value / by : -((by - 1 - value) / by);
}

// The nearest level, halves upwards; both numbers are whole, so that nothing is lost before the
// cut.
int Level(double sum, double total) {
    return static_cast<int>((2 * sum + total) / (2 * total));
}

}  // namespace

AxisWeights::AxisWeights(int from, int to) {
    total_ = from >= to ? from : 2.0 * to;
    for (int target = 0; target < to; ++target) {
        if (from >= to) {
            AddCovered(from, to, target);
        } else {
            AddBlended(from, to, target);
        }
        start_.push_back(weights_.size());
    }
}

// On a common ruler of from * to marks a source pixel is `to` marks long, a target pixel `from`.
void AxisWeights::AddCovered(std::int64_t from, std::int64_t to, std::int64_t target) {
    const std::int64_t begin = target * from;
    const std::int64_t end = begin + from;
    first_.push_back(static_cast<int>(begin / to));
    for (std::int64_t source = begin / to; source * to < end; ++source) {
        weights_.push_back(
            static_cast<float>(std::min((source + 1) * to, end) - std::max(source * to, begin)));
    }
}

// Counted in halves, so that the centres of both pixels fall on whole marks.
void AxisWeights::AddBlended(std::int64_t from, std::int64_t to, std::int64_t target) {
    const std::int64_t step = 2 * to;
    const std::int64_t centre = (2 * target + 1) * from - to;
    const std::int64_t before = FloorDivide(centre, step);
    const std::int64_t past = centre - before * step;
    first_.push_back(static_cast<int>(std::max<std::int64_t>(before, 0)));
    if (before < 0 || before + 1 >= from || past == 0) {
        weights_.push_back(static_cast<float>(step));
        return;
    }
    weights_.push_back(static_cast<float>(step - past));
    weights_.push_back(static_cast<float>(past));
}

RowScaler::RowScaler(Sides sides, RowOrder order)
    : sides_(sides),
      order_(order),
      across_(sides.FromWidth, sides.Width),
      down_(sides.FromHeight, sides.Height),
      picture_(sides.Width, sides.Height),
      sums_(3 * static_cast<std::size_t>(sides.FromWidth)) {}

void RowScaler::Push(std::span<const Color> row) {
    assert(static_cast<int>(row.size()) == sides_.FromWidth && row_ < sides_.FromHeight);
    if (sides_.FromWidth == sides_.Width && sides_.FromHeight == sides_.Height) {
        std::copy(row.begin(), row.end(), TargetRow(row_++).begin());
        return;
    }
    const bool growing = sides_.Height > sides_.FromHeight;
    while (target_ < sides_.Height && down_.First(target_) <= row_) {
        const std::span<const float> weights = down_.Of(target_);
        const bool last = down_.Last(target_) == row_;
        if (!growing) {
            Add(row, At(weights, row_ - down_.First(target_)));
        } else if (last) {
            if (weights.size() == 2) {
                Add(previous_, weights.front());
            }
            Add(row, weights.back());
        }
        if (!last) {
            break;
        }
        Finish(target_++);
    }
    if (growing) {
        previous_.assign(row.begin(), row.end());
    }
    ++row_;
}

// Whole numbers below 2^24, so that float adds them without loss for up to 65,000 rows.
void RowScaler::Add(std::span<const Color> row, float weight) {
    float* red = sums_.data();
    float* green = red + row.size();
    float* blue = green + row.size();
    for (std::size_t x = 0; x < row.size(); ++x) {
        const Color color = row[x];
        red[x] += weight * static_cast<float>(RedOf(color));
        green[x] += weight * static_cast<float>(GreenOf(color));
        blue[x] += weight * static_cast<float>(BlueOf(color));
    }
}

void RowScaler::Finish(int targetRow) {
    const float* red = sums_.data();
    const float* green = red + sides_.FromWidth;
    const float* blue = green + sides_.FromWidth;
    const double total = across_.Total() * down_.Total();
    const std::span<Color> out = TargetRow(targetRow);
    for (int x = 0; x < sides_.Width; ++x) {
        double r = 0;
        double g = 0;
        double b = 0;
        int source = across_.First(x);
        for (const double weight : across_.Of(x)) {
            r += weight * red[source];
            g += weight * green[source];
            b += weight * blue[source];
            ++source;
        }
        At(out, x) = Rgb(Level(r, total), Level(g, total), Level(b, total));
    }
    std::fill(sums_.begin(), sums_.end(), 0.0F);
}

std::span<Color> RowScaler::TargetRow(int y) {
    return picture_.Row(order_ == RowOrder::TopDown ? y : sides_.Height - 1 - y);
}

Surface ScaleTo(const Surface& picture, int width, int height) {
    if (picture.Empty() || width < 1 || height < 1) {
        return {};
    }
    if (picture.Width() == width && picture.Height() == height) {
        return picture;
    }
    RowScaler scaler({picture.Width(), picture.Height(), width, height}, RowOrder::TopDown);
    for (int y = 0; y < picture.Height(); ++y) {
        scaler.Push(picture.Row(y));
    }
    return scaler.Take();
}

}  // namespace vendrel
