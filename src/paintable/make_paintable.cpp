#include "paintable/make_paintable.h"

#include <functional>
#include <limits>
#include <queue>
#include <utility>
#include <vector>

#include "paintable/growing.h"
#include "paintable/merging.h"
#include "paintable/refinement.h"

namespace vendrel {
namespace {

// After these the pictures hardly change.
constexpr int kRounds = 8;

class Decisions {
  public:
    Decisions(AreaMap& map, int detail) : map_(map), detail_(detail) {
        for (int area = 0; area < map_.AreaCount(); ++area) {
            Queue(area);
        }
    }

    void Run() {
        while (!queue_.empty()) {
            const auto [pixels, area] = queue_.top();
            queue_.pop();
            // An entry is stale once its area has changed; the change has queued it anew.
            if (map_.Exists(area) && map_.PixelsOf(area) == pixels && !map_.IsPaintable(area)) {
                Decide(area);
            }
        }
    }

  private:
    void Queue(int area) {
        if (map_.Exists(area) && !map_.IsPaintable(area)) {
            queue_.emplace(map_.PixelsOf(area), area);
        }
    }
    // At the usual detail growing may cost half of what merging costs: more growing would leave
    // more areas than anybody wants to paint.
    [[nodiscard]] SeenSum BudgetFor(SeenSum mergeCost) const {
        return detail_ >= kMostDetail ? std::numeric_limits<SeenSum>::max() / 2
                                      : mergeCost * detail_ / (2 * (kMostDetail - detail_));
    }
    void Decide(int area) {
        const MergePlan plan = PlanMerge(map_, area);
        std::vector<int> touched;
        if (!plan.Possible) {
            return;
        }
        if (plan.Cost <= 0 || !Grow(map_, area, BudgetFor(plan.Cost), touched)) {
            Merge(map_, area, plan, touched);
        }
        for (const int changed : touched) {
            Queue(changed);
        }
    }

    using Entry = std::pair<int, int>;  // pixels, area

    AreaMap& map_;
    int detail_;
    std::priority_queue<Entry, std::vector<Entry>, std::greater<>> queue_;
};

}  // namespace

ValueGrid MakePaintable(const StipplePicture& picture, const SeenTable& table,
                        const AreaTerms& terms, int detail) {
    AreaMap map(picture, table, terms);
    Decisions(map, detail).Run();
    Refine(map, kRounds);
    return map.Paints();
}

}  // namespace vendrel
