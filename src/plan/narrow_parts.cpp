#include "plan/narrow_parts.h"

namespace vendrel {
namespace {

constexpr int kEvery = 2;  // row and column
// How far the nearest border may be from the middle of a run of pixels, for the run's length, at
// least: half of it for a band across the run, less for one aslant, and next to nothing where a run
// lies along a border.
constexpr double kAcross = 0.3;

class PartSearch {
  public:
    PartSearch(const PixelGrid& ids, const LineIndex& index, double widest)
        : ids_(ids), index_(index), longest_(static_cast<int>(widest)) {}

    std::vector<NarrowPart> Run() {
        const int width = ids_.Across() + 1;
        const int height = ids_.Down() + 1;
        for (int y = 0; y < height; y += kEvery) {
            FindRuns(
                width, [&](int x) { return ids_(x, y); },
                [&](double x) -> PlanPoint {
                    return {x, y + 0.5};
                });
        }
        for (int x = 0; x < width; x += kEvery) {
            FindRuns(
                height, [&](int y) { return ids_(x, y); },
                [&](double y) -> PlanPoint {
                    return {x + 0.5, y};
                });
        }
        return std::move(parts_);
    }

  private:
    template <class IdAt, class PointAt>
    void FindRuns(int count, IdAt idAt, PointAt pointAt) {
        for (int start = 0; start < count;) {
            int end = start + 1;
            while (end < count && idAt(end) == idAt(start)) {
                ++end;
            }
            if (end - start <= longest_) {
                Offer(idAt(start), pointAt((start + end) / 2.0), end - start);
            }
            start = end;
        }
    }
    void Offer(int area, const PlanPoint& middle, int length) {
        const double room = index_.RoomAt(middle, length);
        if (room >= kAcross * length) {
            parts_.push_back({area, middle, room});
        }
    }

    const PixelGrid& ids_;
    const LineIndex& index_;
    int longest_;
    std::vector<NarrowPart> parts_;
};

}  // namespace

std::vector<NarrowPart> FindNarrowParts(const PixelGrid& ids, const LineIndex& index,
                                        double widest) {
    return PartSearch(ids, index, widest).Run();
}

}  // namespace vendrel
