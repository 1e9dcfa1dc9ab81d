#include "cleanup/painting_order.h"

#include <algorithm>

namespace vendrel {

PaintingOrder::PaintingOrder(const OneBased<PaintArea>& areas) {
    for (int a = 1; a <= areas.Count(); ++a) {
        if (areas[a].StippleCount > 0 && !areas[a].Painted) {
            order_.push_back(a);
        }
    }
    std::stable_sort(order_.begin(), order_.end(), [&areas](int a, int b) {
        return areas[a].StippleCount > areas[b].StippleCount;
    });
}

int PaintingOrder::GetBiggestCell(OneBased<PaintArea>& areas) {
    const int area = next_ < order_.size() ? order_[next_++] : 0;
    areas[area].Painted = true;
    return area;
}

}  // namespace vendrel
