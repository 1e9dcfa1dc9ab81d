#include "cleanup/painting_order.h"

#include <algorithm>

namespace vendrel {

PaintingOrder::PaintingOrder(const std::vector<PaintArea>& areas) {
    for (std::size_t a = 1; a < areas.size(); ++a) {
        if (areas[a].StippleCount > 0 && !areas[a].Painted) {
            order_.push_back(static_cast<int>(a));
        }
    }
    std::stable_sort(order_.begin(), order_.end(), [&areas](int a, int b) {
        return areas[static_cast<std::size_t>(a)].StippleCount >
               areas[static_cast<std::size_t>(b)].StippleCount;
    });
}

int PaintingOrder::GetBiggestCell(std::vector<PaintArea>& areas) {
    const int area = next_ < order_.size() ? order_[next_++] : 0;
    areas[static_cast<std::size_t>(area)].Painted = true;
    return area;
}

}  // namespace vendrel
