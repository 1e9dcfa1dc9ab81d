#include "plan/label_places.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "support/list.h"

namespace vendrel {
namespace {

// Where a piece's best place is taken others are looked for this often, in legible symbols.
constexpr double kStepElsewhere = 4;

class PlaceSearch {
  public:
    PlaceSearch(const PaintedRegions& regions, const LabelRules& rules)
        : regions_(regions), rules_(rules) {}

    [[nodiscard]] LabelPlaces Run(std::span<const InscribedBox> boxes) const {
        LabelPlaces places;
        for (const InscribedBox& box : boxes) {
            places.OfRegions.push_back(LabelIn(box, box.Region));
        }
        places.Cut =
            ParedAtNecks(CutIntoPieces(regions_.Ids, {rules_.Cuts.Columns, rules_.Cuts.Rows}));
        places.OfPieces = LabelsOf(places.Cut);
        places.Elsewhere = LabelsOf(CutWithLattice(kStepElsewhere * rules_.LegibleHeight));
        if (rules_.LatticeStep >= 1) {
            places.OnLattice = LabelsOf(CutWithLattice(rules_.LatticeStep));
        }
        return places;
    }

  private:
    // What pages and a lattice leave of the regions.
    [[nodiscard]] RegionPieces CutWithLattice(double step) const {
        const auto both = [step](std::vector<int> cuts, int last) {
            const std::vector<int> lattice = Lattice(std::max(1.0, step), last);
            cuts.insert(cuts.end(), lattice.begin(), lattice.end());
            std::ranges::sort(cuts);
            return cuts;
        };
        return CutIntoPieces(regions_.Ids, {both(rules_.Cuts.Columns, regions_.Ids.Across()),
                                            both(rules_.Cuts.Rows, regions_.Ids.Down())});
    }
    static std::vector<int> Lattice(double step, int last) {
        std::vector<int> cuts;
        for (int i = 1; i * step <= last; ++i) {
            cuts.push_back(static_cast<int>(std::lround(i * step)));
        }
        return cuts;
    }

    [[nodiscard]] std::vector<PlanLabel> LabelsOf(const RegionPieces& cut) const {
        const auto regionOf = [&cut](int piece) { return At(cut.RegionOf, piece); };
        const auto aspectOf = [&](int piece) {
            return rules_.Aspects[regions_[regionOf(piece)].Value];
        };
        std::vector<InscribedBox> boxes = FindRoomiestBoxes(cut.Pieces, aspectOf);
        std::ranges::stable_sort(boxes, std::greater<>(), &InscribedBox::Height);
        std::vector<PlanLabel> labels;
        labels.reserve(boxes.size());
        for (const InscribedBox& box : boxes) {
            labels.push_back(LabelIn(box, regionOf(box.Region)));
        }
        return labels;
    }
    [[nodiscard]] PlanLabel LabelIn(const InscribedBox& box, int region) const {
        return {region,
                {(box.Left + box.Right) / 2.0, (box.Top + box.Bottom) / 2.0},
                std::min(box.Height, rules_.Air.Largest)};
    }

    const PaintedRegions& regions_;
    const LabelRules& rules_;
};

}  // namespace

LabelPlaces FindPlaces(const PaintedRegions& regions, std::span<const InscribedBox> boxes,
                       const LabelRules& rules) {
    return PlaceSearch(regions, rules).Run(boxes);
}

}  // namespace vendrel
