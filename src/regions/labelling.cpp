#include "regions/labelling.h"

#include <algorithm>
#include <cstddef>

#include "support/list.h"

namespace vendrel {
namespace {

// Places of one value side by side in a row; labels are given to these, of which there are far
// fewer than places.
struct Run {
    int First = 0;
    int End = 0;  // the first place behind
    int Value = 0;
    int Parent = 0;  // a lower run of its region or, the lowest, itself
};

class RunLabelling {
  public:
    RunLabelling(const ValueGrid& values, Connection connection)
        : values_(values), reach_(connection == Connection::Corners ? 1 : 0) {
        for (int y = 0; y <= values.Down(); ++y) {
            rows_.push_back(runs_.size());
            CutRow(values.Row(y));
            if (y > 0) {
                JoinRows(rows_[rows_.size() - 2], rows_.back());
            }
        }
        rows_.push_back(runs_.size());
    }

    Regions Settle() {
        Regions found{ValueGrid(values_.Across(), values_.Down()), {}};
        for (int y = 0; y <= values_.Down(); ++y) {
            const RowView<int> ids = found.Ids.Row(y);
            for (std::size_t i = At(rows_, y); i < At(rows_, y + 1); ++i) {
                Run& run = runs_[i];
                // From here on a run's parent is its region, and lower runs have theirs already.
                if (run.Parent == static_cast<int>(i)) {
                    run.Parent = found.Count();
                    found.List.push_back({run.Value, 0});
                } else {
                    run.Parent = At(runs_, run.Parent).Parent;
                }
                found[run.Parent].Size += run.End - run.First;
                std::ranges::fill(ids.From(run.First).First(run.End - run.First), run.Parent);
            }
        }
        return found;
    }

  private:
    void CutRow(RowView<const int> row) {
        for (int x = 0; x < row.Count();) {
            const int first = x;
            const int value = row[x];
            while (x < row.Count() && row[x] == value) {
                ++x;
            }
            runs_.push_back({first, x, value, static_cast<int>(runs_.size())});
        }
    }
    void JoinRows(std::size_t above, std::size_t here) {
        std::size_t first = above;
        for (std::size_t lower = here; lower < runs_.size(); ++lower) {
            while (runs_[first].End + reach_ <= runs_[lower].First) {
                ++first;
            }
            for (std::size_t upper = first;
                 upper < here && runs_[upper].First < runs_[lower].End + reach_; ++upper) {
                if (runs_[upper].Value == runs_[lower].Value) {
                    Join(static_cast<int>(upper), static_cast<int>(lower));
                }
            }
        }
    }
    void Join(int one, int other) {
        one = Root(one);
        other = Root(other);
        At(runs_, std::max(one, other)).Parent = std::min(one, other);
    }
    int Root(int run) {
        while (At(runs_, run).Parent != run) {
            int& parent = At(runs_, run).Parent;
            parent = At(runs_, parent).Parent;
            run = parent;
        }
        return run;
    }

    const ValueGrid& values_;
    int reach_;
    std::vector<Run> runs_;
    std::vector<std::size_t> rows_;
};

}  // namespace

Regions FindRegions(const ValueGrid& values, Connection connection) {
    return RunLabelling(values, connection).Settle();
}

}  // namespace vendrel
