#include "regions/labelling.h"

#include <span>
#include <utility>

#include "support/list.h"

namespace vendrel {
namespace {

// Labels given so far. Each points to a lower one of its region or, the lowest, to itself: the
// lowest label is that of the region's first place.
class Labels {
  public:
    int Add() {
        parents_.push_back(static_cast<int>(parents_.size()));
        return parents_.back();
    }
    int Join(int one, int other) {
        one = Root(one);
        other = Root(other);
        const int lower = one < other ? one : other;
        Parent(one) = lower;
        Parent(other) = lower;
        return lower;
    }
    // Labels become numbers without gaps; answers how many.
    int Settle() {
        int count = 0;
        for (std::size_t i = 0; i < parents_.size(); ++i) {
            const bool isFirst = parents_[i] == static_cast<int>(i);
            parents_[i] = isFirst ? count++ : Parent(parents_[i]);
        }
        return count;
    }
    [[nodiscard]] int NumberOf(int label) const { return At(parents_, label); }

  private:
    [[nodiscard]] int& Parent(int label) { return At(parents_, label); }
    int Root(int label) {
        while (Parent(label) != label) {
            Parent(label) = Parent(Parent(label));
            label = Parent(label);
        }
        return label;
    }

    std::vector<int> parents_;
};

// Gives every place the label of those before it that it hangs together with.
class RowLabelling {
  public:
    RowLabelling(const ValueGrid& values, ValueGrid& ids, Connection connection)
        : values_(values), ids_(ids), corners_(connection == Connection::Corners) {}

    Labels Run() {
        for (int y = 0; y <= values_.Down(); ++y) {
            for (int x = 0; x <= values_.Across(); ++x) {
                ids_(x, y) = LabelOf(x, y);
            }
        }
        return std::move(labels_);
    }

  private:
    int LabelOf(int x, int y) {
        const int value = values_(x, y);
        int label = -1;
        if (x > 0 && values_(x - 1, y) == value) {
            label = ids_(x - 1, y);
        }
        if (y > 0) {
            label = JoinAbove(x, y - 1, value, label);
            if (corners_ && x > 0) {
                label = JoinAbove(x - 1, y - 1, value, label);
            }
            if (corners_ && x < values_.Across()) {
                label = JoinAbove(x + 1, y - 1, value, label);
            }
        }
        return label < 0 ? labels_.Add() : label;
    }
    int JoinAbove(int x, int y, int value, int label) {
        if (values_(x, y) != value || ids_(x, y) == label) {
            return label;
        }
        return label < 0 ? ids_(x, y) : labels_.Join(label, ids_(x, y));
    }

    const ValueGrid& values_;
    ValueGrid& ids_;
    bool corners_;
    Labels labels_;
};

}  // namespace

Regions FindRegions(const ValueGrid& values, Connection connection) {
    Regions found{ValueGrid(values.Across(), values.Down()), {}};
    Labels labels = RowLabelling(values, found.Ids, connection).Run();
    found.List.resize(static_cast<std::size_t>(labels.Settle()));
    const std::span<const int> from = values.All();
    for (std::size_t i = 0; i < from.size(); ++i) {
        int& id = found.Ids.All()[i];
        id = labels.NumberOf(id);
        found[id].Value = from[i];
        ++found[id].Size;
    }
    return found;
}

}  // namespace vendrel
