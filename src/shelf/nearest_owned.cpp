#include "shelf/nearest_owned.h"

#include <algorithm>

#include "eye/lab.h"
#include "eye/seen_difference.h"

namespace vendrel {

std::vector<NearPaint> NearestOwned(const Shelf& shelf, Color color, int count) {
    const Lab wanted = LabOf(color);
    std::vector<NearPaint> near;
    for (const ShelfPaint& paint : shelf.Paints) {
        if (paint.IsLeft() && paint.LooksLike()) {
            near.push_back({&paint, Ciede2000(wanted, LabOf(*paint.LooksLike()))});
        }
    }
    std::ranges::stable_sort(near, {}, &NearPaint::Seen);
    near.resize(std::min(near.size(), static_cast<std::size_t>(std::max(count, 0))));
    return near;
}

}  // namespace vendrel
