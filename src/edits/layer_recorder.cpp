#include "edits/layer_recorder.h"

#include <algorithm>
#include <set>

#include "edits/place_edits.h"

namespace vendrel {
namespace {

// Pinning a stipple takes a neighbor from no other, so a second look finds all well; more are for
// palettes that overflow.
constexpr int kMostLooks = 4;

}  // namespace

LayerRecorder::LayerRecorder(const ConvertedGrid& base, const EditLayer& layer)
    : base_(base), wanted_(base.Cells.Across(), base.Cells.Down()), order_(layer.Order) {
    for (const PaintColor& paint : base.Paints) {
        basePaints_.Add(NumberOf(paint));
    }
    const EditLayer placed = EditsByShare(layer, wanted_.Across(), wanted_.Down());
    for (const StippleEdit& edit : placed.Cells) {
        Paint(edit.At, NumberOf(placed.Paints[edit.Paint]), edit.Wish);
    }
    for (const PaintExchange& exchange : placed.Exchanges) {
        const int from = NumberOf(exchange.From);
        exchanges_.emplace_back(from, NumberOf(exchange.To));
    }
}

int LayerRecorder::NumberOf(const PaintColor& paint) {
    const int known = index_.Find(paint);
    if (known > 0) {
        return known;
    }
    paints_.Add(paint);
    paints_.Last().CellCount = 0;
    index_.Add(paint);
    return paints_.Count();
}

void LayerRecorder::Paint(CellPos at, int paint, StippleWish wish) {
    wanted_(at.X, at.Y) = {wish, paint};
}

void LayerRecorder::Erase(CellPos at) {
    wanted_(at.X, at.Y) = {};
}

void LayerRecorder::Exchange(int from, int to, std::span<const CellPos> cells) {
    std::set<int> underneath;
    for (const CellPos at : cells) {
        Wanted& wanted = wanted_(at.X, at.Y);
        if (wanted.Paint > 0) {
            wanted.Paint = to;
        } else if (basePaints_.Holds(base_.Cells(at.X, at.Y).ColorIndex)) {
            underneath.insert(basePaints_[base_.Cells(at.X, at.Y).ColorIndex]);
        }
    }
    for (auto& [what, target] : exchanges_) {
        target = target == from ? to : target;
    }
    if (std::ranges::find(exchanges_, from, &std::pair<int, int>::first) == exchanges_.end()) {
        underneath.insert(from);
    }
    for (const int paint : underneath) {
        ExchangeBase(paint, to);
    }
    std::erase_if(exchanges_, [](const auto& pair) { return pair.first == pair.second; });
}

void LayerRecorder::ExchangeBase(int from, int to) {
    const auto known = std::ranges::find(exchanges_, from, &std::pair<int, int>::first);
    if (known == exchanges_.end()) {
        exchanges_.emplace_back(from, to);
    } else {
        known->second = to;
    }
}

void LayerRecorder::Order(const PaintList& paints) {
    const PaintList before = std::exchange(order_, {});
    PaintIndex known;
    for (const PaintList* list : {&paints, &before}) {
        for (const PaintColor& paint : *list) {
            if (known.Find(paint) == 0) {
                known.Add(paint);
                order_.Add(paint);
                order_.Last().CellCount = 0;
            }
        }
    }
}

EditLayer LayerRecorder::Layer() const {
    EditLayer layer{wanted_.Across(), wanted_.Down(), {}, {}, {}, order_};
    OneBased<int> kept(paints_.Count());
    for (int y = 1; y <= layer.Down; ++y) {
        for (int x = 1; x <= layer.Across; ++x) {
            const Wanted& wanted = wanted_(x, y);
            if (wanted.Paint > 0) {
                int& paint = kept[wanted.Paint];
                if (paint == 0) {
                    layer.Paints.Add(paints_[wanted.Paint]);
                    paint = layer.Paints.Count();
                }
                layer.Cells.push_back({{x, y}, wanted.Wish, paint});
            }
        }
    }
    for (const auto& [from, to] : exchanges_) {
        layer.Exchanges.push_back({paints_[from], paints_[to]});
    }
    return layer;
}

void LayerRecorder::Settle(const PaintList& paints, const Grid<StippleCell>& cells) {
    for (int y = 1; y <= wanted_.Down(); ++y) {
        for (int x = 1; x <= wanted_.Across(); ++x) {
            Wanted& wanted = wanted_(x, y);
            if (wanted.Paint > 0 && wanted.Wish == StippleWish::Neighbors &&
                paints.Holds(cells(x, y).ColorIndex)) {
                wanted.Paint = NumberOf(paints[cells(x, y).ColorIndex]);
            }
        }
    }
    for (int look = 0; look < kMostLooks && PinDifferences(paints, cells); ++look) {
    }
    if (!order_.Empty()) {
        SettleOrder(paints);
    }
}

// An order that gives what is shown stays as it was made: it may know more paints than are here.
void LayerRecorder::SettleOrder(const PaintList& paints) {
    const LaidEdits laid = LayEdits(base_, Layer());
    const PaintIndex shown(paints);
    int last = 0;
    for (const PaintColor& paint : laid.Paints) {
        const int place = shown.Find(paint);
        if (place > 0 && place < last) {
            Order(paints);
            return;
        }
        last = std::max(last, place);
    }
}

bool LayerRecorder::PinDifferences(const PaintList& paints, const Grid<StippleCell>& cells) {
    const LaidEdits laid = LayEdits(base_, Layer());
    OneBased<int> shown;
    for (const PaintColor& paint : paints) {
        shown.Add(NumberOf(paint));
    }
    OneBased<int> given;
    for (const PaintColor& paint : laid.Paints) {
        given.Add(NumberOf(paint));
    }
    bool differs = false;
    for (int y = 1; y <= wanted_.Down(); ++y) {
        for (int x = 1; x <= wanted_.Across(); ++x) {
            const int index = cells(x, y).ColorIndex;
            const int paint = shown.Holds(index) ? shown[index] : 0;
            if (paint > 0 && given[laid.Cells(x, y).ColorIndex] != paint) {
                Paint({x, y}, paint, StippleWish::Paint);
                differs = true;
            }
        }
    }
    return differs;
}

}  // namespace vendrel
