#include "plan/label_placement.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <utility>

#include "drawing/brush.h"
#include "plan/inscribed_boxes.h"
#include "plan/region_pieces.h"
#include "shell/symbol_of.h"
#include "support/list.h"

namespace vendrel {
namespace {

// Leaves some white between a symbol and the border around it.
constexpr double kFill = 0.9;
// A second symbol in a region is welcome when it can be read about as well as the first.
constexpr double kAsGood = 0.7;
// Symbols that repeat on a page stand this many of their heights apart at least.
constexpr double kApart = 2;
// Where a piece's best place is taken others are looked for this often, in legible symbols.
constexpr double kStepElsewhere = 4;

class Placement {
  public:
    Placement(const PaintedRegions& regions, const LabelRules& rules)
        : regions_(regions), rules_(rules), placed_(regions.List.size()) {}

    std::vector<PlanLabel> Run() {
        PlaceFirst();
        PlaceOnPages();
        PlaceOnLattice();
        std::vector<PlanLabel> labels;
        for (const std::vector<PlanLabel>& ofRegion : placed_) {
            labels.insert(labels.end(), ofRegion.begin(), ofRegion.end());
        }
        return labels;
    }

  private:
    void PlaceFirst() {
        const auto aspectOf = [this](int region) { return AspectOf(region); };
        for (const InscribedBox& box : FindRoomiestBoxes(regions_, aspectOf)) {
            At(placed_, box.Region).push_back(LabelIn(box, box.Region));
        }
    }

    // Every piece that a page shows of a region has a symbol of its own, if one can be read there:
    // a page is traced or painted before its neighbor with the symbol across the cut lies beside
    // it. So has what hangs together by necks alone that look closed in print.
    void PlaceOnPages() {
        const RegionPieces cut =
            ParedAtNecks(CutIntoPieces(regions_.Ids, {rules_.PageColumns, rules_.PageRows}));
        const std::vector<PlanLabel> labels = LabelsOf(cut);
        KeepOffTheCuts(labels);
        std::vector<bool> has(labels.size());
        for (const std::vector<PlanLabel>& ofRegion : placed_) {
            has[PieceUnder(cut, ofRegion.front())] = true;
        }
        OfferToPieces(cut, labels, has);
        OfferToPieces(cut, LabelsOf(CutWithLattice(kStepElsewhere * rules_.LegibleHeight)), has);
    }

    void OfferToPieces(const RegionPieces& cut, const std::vector<PlanLabel>& offers,
                       std::vector<bool>& has) {
        for (const PlanLabel& label : offers) {
            std::vector<PlanLabel>& others = OthersOf(label);
            const double smallest = std::min(others.front().Height * kAsGood, rules_.LegibleHeight);
            const std::size_t piece = PieceUnder(cut, label);
            if (!has[piece] && label.Height >= smallest &&
                std::ranges::none_of(
                    others, [&](const PlanLabel& other) { return Overlap(label, other); })) {
                others.push_back(label);
                has[piece] = true;
            }
        }
    }

    // What pages and a lattice leave of the regions.
    [[nodiscard]] RegionPieces CutWithLattice(double step) const {
        const auto both = [step](std::vector<int> cuts, int last) {
            const std::vector<int> lattice = Lattice(std::max(1.0, step), last);
            cuts.insert(cuts.end(), lattice.begin(), lattice.end());
            std::ranges::sort(cuts);
            return cuts;
        };
        return CutIntoPieces(regions_.Ids, {both(rules_.PageColumns, regions_.Ids.Across()),
                                            both(rules_.PageRows, regions_.Ids.Down())});
    }

    // A symbol on a cut would be trimmed in half; one a little smaller beside it is better.
    void KeepOffTheCuts(const std::vector<PlanLabel>& pieces) {
        for (const PlanLabel& label : pieces) {
            PlanLabel& first = OthersOf(label).front();
            if (IsOnCut(first) && label.Height >= first.Height * kAsGood) {
                first = label;
            }
        }
    }

    void PlaceOnLattice() {
        if (rules_.LatticeStep < 1) {
            return;
        }
        for (const PlanLabel& label : LabelsOf(CutWithLattice(rules_.LatticeStep))) {
            std::vector<PlanLabel>& others = OthersOf(label);
            if (label.Height >= others.front().Height * kAsGood &&
                std::ranges::none_of(others, [&](const PlanLabel& other) {
                    return IsOnPageOf(label, other) ? IsClose(label, other) : Overlap(label, other);
                })) {
                others.push_back(label);
            }
        }
    }
    static std::vector<int> Lattice(double step, int last) {
        std::vector<int> cuts;
        for (int i = 1; i * step <= last; ++i) {
            cuts.push_back(static_cast<int>(std::lround(i * step)));
        }
        return cuts;
    }

    // The roomiest place of every piece, the roomiest of all first.
    [[nodiscard]] std::vector<PlanLabel> LabelsOf(const RegionPieces& cut) const {
        const auto regionOf = [&cut](int piece) { return At(cut.RegionOf, piece); };
        const auto aspectOf = [&](int piece) { return AspectOf(regionOf(piece)); };
        std::vector<InscribedBox> boxes = FindRoomiestBoxes(cut.Pieces, aspectOf);
        std::ranges::stable_sort(boxes, std::greater<>(), &InscribedBox::Height);
        std::vector<PlanLabel> labels;
        labels.reserve(boxes.size());
        for (const InscribedBox& box : boxes) {
            labels.push_back(LabelIn(box, regionOf(box.Region)));
        }
        return labels;
    }

    static std::size_t PieceUnder(const RegionPieces& cut, const PlanLabel& label) {
        return static_cast<std::size_t>(
            cut.Pieces.Ids(static_cast<int>(label.Centre.X), static_cast<int>(label.Centre.Y)));
    }
    [[nodiscard]] bool IsClose(const PlanLabel& one, const PlanLabel& other) const {
        const double apart =
            std::hypot(one.Centre.X - other.Centre.X, one.Centre.Y - other.Centre.Y);
        return apart <
               std::max(rules_.LatticeStep / 2, kApart * std::max(one.Height, other.Height));
    }
    [[nodiscard]] bool Overlap(const PlanLabel& one, const PlanLabel& other) const {
        const double heights = (one.Height + other.Height) / 2;
        return std::abs(one.Centre.X - other.Centre.X) < heights * AspectOf(one.Region) &&
               std::abs(one.Centre.Y - other.Centre.Y) < heights;
    }
    [[nodiscard]] bool IsOnPageOf(const PlanLabel& one, const PlanLabel& other) const {
        const auto between = [](const std::vector<int>& cuts, double a, double b) {
            return std::ranges::any_of(cuts, [a, b](int cut) { return (a < cut) != (b < cut); });
        };
        return !between(rules_.PageColumns, one.Centre.X, other.Centre.X) &&
               !between(rules_.PageRows, one.Centre.Y, other.Centre.Y);
    }
    [[nodiscard]] bool IsOnCut(const PlanLabel& label) const {
        const auto meets = [](const std::vector<int>& cuts, double middle, double reach) {
            return std::ranges::any_of(cuts,
                                       [&](int cut) { return std::abs(cut - middle) < reach; });
        };
        const double halfWidth = label.Height * AspectOf(label.Region) / 2;
        return meets(rules_.PageColumns, label.Centre.X, halfWidth) ||
               meets(rules_.PageRows, label.Centre.Y, label.Height / 2);
    }

    [[nodiscard]] std::vector<PlanLabel>& OthersOf(const PlanLabel& label) {
        return At(placed_, label.Region);
    }
    [[nodiscard]] double AspectOf(int region) const {
        return rules_.Aspects[regions_[region].Value];
    }
    [[nodiscard]] PlanLabel LabelIn(const InscribedBox& box, int region) const {
        return {region,
                {(box.Left + box.Right) / 2.0, (box.Top + box.Bottom) / 2.0},
                std::min(box.Height * kFill, rules_.LargestHeight)};
    }

    const PaintedRegions& regions_;
    const LabelRules& rules_;
    std::vector<std::vector<PlanLabel>> placed_;  // per region, the roomiest place first
};

}  // namespace

PaintAspects AspectsOf(const PaintList& palette, const SymbolAspects& aspects) {
    PaintAspects byPaint;
    for (int paint = 1; paint <= palette.Count(); ++paint) {
        byPaint.Add(At(aspects, SymbolOf(palette, paint)));
    }
    return byPaint;
}

std::vector<PlanLabel> PlaceLabels(const PaintedRegions& regions, const LabelRules& rules) {
    return Placement(regions, rules).Run();
}

bool IsLabelOn(const PlanLabel& label, double aspect, const PlanRect& own, const PlanRect& shown) {
    const double reachX = label.Height * aspect / 2;
    const double reachY = label.Height / 2;
    const PlanRect box{label.Centre.X - reachX, label.Centre.Y - reachY, label.Centre.X + reachX,
                       label.Centre.Y + reachY};
    const bool meetsOwn = box.Left < own.Right && box.Right > own.Left && box.Top < own.Bottom &&
                          box.Bottom > own.Top;
    return meetsOwn || (box.Left >= shown.Left && box.Right <= shown.Right &&
                        box.Top >= shown.Top && box.Bottom <= shown.Bottom);
}

std::vector<double> LargestSymbols(const PaintedRegions& regions, const PaintAspects& aspects) {
    std::vector<double> heights;
    for (const InscribedBox& box :
         FindRoomiestBoxes(regions, [&](int region) { return aspects[regions[region].Value]; })) {
        heights.push_back(box.Height * kFill);
    }
    return heights;
}

double SymbolHeightInStipple(int stippleSize, double aspect) {
    PixelGrid dot(stippleSize - 1, stippleSize - 1);
    for (const BrushRun& run : BrushStamp(stippleSize, BrushShape::Rounded)) {
        for (int x = run.First; x <= run.Last; ++x) {
            dot(x + stippleSize / 2, run.Row + stippleSize / 2) = 1;
        }
    }
    const PaintedRegions regions = FindRegions(dot);
    double tallest = 0;
    for (const InscribedBox& box : FindRoomiestBoxes(regions, [aspect](int) { return aspect; })) {
        const bool isDot = regions[box.Region].Value == 1;
        tallest = isDot ? std::max(tallest, box.Height) : tallest;
    }
    return tallest * kFill;
}

}  // namespace vendrel
