#include "regions/labelling.h"

#include <span>

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

// Gives every place of a row the label of those before it that it hangs together with.
class RowLabelling {
  public:
    RowLabelling(Labels& labels, Connection connection)
        : labels_(labels), corners_(connection == Connection::Corners) {}

    struct Row {
        RowView<const int> Values;
        RowView<int> Ids;
    };

    /// `above` is empty for the first row.
    void Run(const Row& above, const Row& row) {
        const int count = row.Values.Count();
        for (int x = 0; x < count; ++x) {
            const int value = row.Values[x];
            int label = x > 0 && row.Values[x - 1] == value ? row.Ids[x - 1] : -1;
            if (above.Values.Count() > 0) {
                label = JoinAbove(above, x, value, label);
                if (corners_ && x > 0) {
                    label = JoinAbove(above, x - 1, value, label);
                }
                if (corners_ && x + 1 < count) {
                    label = JoinAbove(above, x + 1, value, label);
                }
            }
            row.Ids[x] = label < 0 ? labels_.Add() : label;
        }
    }

  private:
    int JoinAbove(const Row& above, int x, int value, int label) {
        if (above.Values[x] != value || above.Ids[x] == label) {
            return label;
        }
        return label < 0 ? above.Ids[x] : labels_.Join(label, above.Ids[x]);
    }

    Labels& labels_;
    bool corners_;
};

}  // namespace

Regions FindRegions(const ValueGrid& values, Connection connection) {
    Regions found{ValueGrid(values.Across(), values.Down()), {}};
    Labels labels;
    RowLabelling labelling(labels, connection);
    RowLabelling::Row above;
    for (int y = 0; y <= values.Down(); ++y) {
        const RowLabelling::Row row{values.Row(y), found.Ids.Row(y)};
        labelling.Run(above, row);
        above = row;
    }
    found.List.resize(static_cast<std::size_t>(labels.Settle()));
    const std::span<const int> from = values.All();
    const std::span<int> ids = found.Ids.All();
    for (std::size_t i = 0; i < from.size(); ++i) {
        ids[i] = labels.NumberOf(ids[i]);
        Region& region = found[ids[i]];
        region.Value = from[i];
        ++region.Size;
    }
    return found;
}

}  // namespace vendrel
