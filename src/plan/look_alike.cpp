#include "plan/look_alike.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <utility>

namespace vendrel {
namespace {

using Row = std::vector<double>;

Row Kernel(double sigma) {
    const int reach = static_cast<int>(std::ceil(3 * sigma));
    Row weights;
    for (int i = -reach; i <= reach; ++i) {
        weights.push_back(std::exp(-i * i / (2 * sigma * sigma)));
    }
    const double sum = std::accumulate(weights.begin(), weights.end(), 0.0);
    for (double& weight : weights) {
        weight /= sum;
    }
    return weights;
}

// Along x, or along y when `down`; what lies outside is paper.
Grid<double> BlurredOneWay(const Grid<double>& ink, const Row& kernel, bool down) {
    const int reach = static_cast<int>(kernel.size()) / 2;
    Grid<double> result(ink.Across(), ink.Down());
    for (int y = 0; y <= ink.Down(); ++y) {
        for (int x = 0; x <= ink.Across(); ++x) {
            for (int i = -reach; i <= reach; ++i) {
                const int fromX = down ? x : x + i;
                const int fromY = down ? y + i : y;
                if (ink.Holds(fromX, fromY)) {
                    result(x, y) += kernel[static_cast<std::size_t>(i + reach)] * ink(fromX, fromY);
                }
            }
        }
    }
    return result;
}

// Less its mean, and of length 1.
Grid<double> Normed(Grid<double> ink) {
    const auto all = ink.All();
    const double mean =
        std::accumulate(all.begin(), all.end(), 0.0) / static_cast<double>(all.size());
    double squares = 0;
    for (double& value : all) {
        value -= mean;
        squares += value * value;
    }
    for (double& value : all) {
        value /= squares > 0 ? std::sqrt(squares) : 1;
    }
    return ink;
}

double Product(const Grid<double>& one, const Grid<double>& other, int dx, int dy) {
    double sum = 0;
    for (int y = std::max(0, -dy); y <= one.Down() - std::max(0, dy); ++y) {
        for (int x = std::max(0, -dx); x <= one.Across() - std::max(0, dx); ++x) {
            sum += one(x, y) * other(x + dx, y + dy);
        }
    }
    return sum;
}

}  // namespace

Grid<double> Blurred(const ValueGrid& ink, double sigma) {
    Grid<double> copy(ink.Across(), ink.Down());
    std::ranges::copy(ink.All(), copy.All().begin());
    const Row kernel = Kernel(sigma);
    return BlurredOneWay(BlurredOneWay(copy, kernel, false), kernel, true);
}

double LookAlike(const Grid<double>& one, const Grid<double>& other, int reach) {
    const Grid<double> normed = Normed(one);
    const Grid<double> shifted = Normed(other);
    double most = -1;
    for (int dy = -reach; dy <= reach; ++dy) {
        for (int dx = -reach; dx <= reach; ++dx) {
            most = std::max(most, Product(normed, shifted, dx, dy));
        }
    }
    return most;
}

std::vector<int> MostDistinctFirst(const std::vector<std::vector<double>>& alike) {
    std::vector<int> left(alike.size());
    std::iota(left.begin(), left.end(), 0);
    std::vector<int> order;
    // A symbol's likenesses to the others that are left, the largest first.
    const auto likenesses = [&](int symbol) {
        Row row;
        for (const int other : left) {
            if (other != symbol) {
                row.push_back(
                    alike[static_cast<std::size_t>(symbol)][static_cast<std::size_t>(other)]);
            }
        }
        std::ranges::sort(row, std::greater());
        return row;
    };
    while (!left.empty()) {
        const auto worst = std::ranges::max_element(left, {}, likenesses);
        order.push_back(*worst);
        left.erase(worst);
    }
    std::ranges::reverse(order);
    return order;
}

}  // namespace vendrel
