#include "edits/lay_order.h"

#include <algorithm>
#include <vector>

#include "edits/paint_index.h"

namespace vendrel {
namespace {

struct RankedPaint {
    int Paint = 0;
    int Place = 0;  // in the order
};

std::vector<RankedPaint> InOrder(const PaintList& paints, const EditLayer& layer) {
    const PaintIndex index(paints);
    const PaintIndex order(layer.Order);
    OneBased<int> places;
    for (const PaintColor& paint : paints) {
        places.Add(index.Find(paint) == places.Count() + 1 ? order.Find(paint) : 0);
    }
    for (const PaintExchange& exchange : layer.Exchanges) {
        const int brought = index.Find(exchange.To);
        if (brought > 0 && places[brought] == 0 && index.Find(exchange.From) == 0) {
            places[brought] = order.Find(exchange.From);
        }
    }
    std::vector<RankedPaint> ranked;
    for (int paint = 1; paint <= places.Count(); ++paint) {
        if (places[paint] > 0) {
            ranked.push_back({paint, places[paint]});
        }
    }
    std::ranges::sort(ranked, {}, &RankedPaint::Place);
    return ranked;
}

}  // namespace

OneBased<int> PlacesByOrder(const PaintList& paints, const EditLayer& layer) {
    OneBased<int> placeOf(paints.Count());
    OneBased<int> taken(paints.Count());
    const std::vector<RankedPaint> ranked = InOrder(paints, layer);
    int last = paints.Count() - static_cast<int>(ranked.size());
    int place = 0;
    for (const RankedPaint& paint : ranked) {
        // Files may have two paints replace one, which then have one place.
        place = std::max(place + 1, std::min(paint.Place, ++last));
        placeOf[paint.Paint] = place;
        taken[place] = 1;
    }
    int free = 1;
    for (int& open : placeOf) {
        if (open == 0) {
            while (taken[free] != 0) {
                ++free;
            }
            open = free++;
        }
    }
    return placeOf;
}

}  // namespace vendrel
