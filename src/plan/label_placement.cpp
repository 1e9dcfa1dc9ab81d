#include "plan/label_placement.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "plan/leaders.h"
#include "support/in_parts.h"
#include "support/list.h"

namespace vendrel {
namespace {

// A second symbol in a region is welcome when it can be read about as well as the first.
constexpr double kAsGood = 0.7;
// Symbols that repeat on a page stand this many of their heights apart at least.
constexpr double kApart = 2;

class Placement {
  public:
    Placement(const PaintedRegions& regions, const LabelPlaces& places, const LabelFit& fit,
              const LabelRules& rules)
        : regions_(regions),
          places_(places),
          fit_(fit),
          rules_(rules),
          placed_(regions.List.size()) {}

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
        InParts(static_cast<int>(places_.OfRegions.size()), [this](const Slice& part) {
            for (int i = part.First; i < part.End; ++i) {
                const PlanLabel& place = At(places_.OfRegions, i);
                OthersOf(place).push_back(Fitted(place));
            }
        });
    }

    // Every piece that a page shows of a region has a symbol of its own, if one can be read there:
    // a page is traced or painted before its neighbor with the symbol across the cut lies beside
    // it. So has what hangs together by necks alone that look closed in print.
    void PlaceOnPages() {
        KeepOffTheCuts();
        std::vector<bool> has(places_.Cut.Pieces.List.size());
        for (const std::vector<PlanLabel>& ofRegion : placed_) {
            has[PieceUnder(ofRegion.front())] = true;
        }
        OfferToPieces(places_.OfPieces, has);
        OfferToPieces(places_.Elsewhere, has);
    }

    void OfferToPieces(const std::vector<PlanLabel>& offers, std::vector<bool>& has) {
        for (const PlanLabel& offer : offers) {
            std::vector<PlanLabel>& others = OthersOf(offer);
            const double smallest = SmallestBeside(others.front());
            const std::size_t piece = PieceUnder(offer);
            if (has[piece] || offer.Height < smallest) {
                continue;
            }
            const PlanLabel label = Fitted(offer);
            if (label.Height >= smallest && PieceUnder(label) == piece && !IsOnCut(label) &&
                std::ranges::none_of(
                    others, [&](const PlanLabel& other) { return Overlap(label, other); })) {
                others.push_back(label);
                has[piece] = true;
            }
        }
    }

    // A symbol on a cut would be trimmed in half; one beside it that can be read is better.
    void KeepOffTheCuts() {
        for (const PlanLabel& label : places_.OfPieces) {
            PlanLabel& first = OthersOf(label).front();
            if (const double least = SmallestBeside(first);
                IsOnCut(first) && label.Height >= least) {
                const PlanLabel beside = Fitted(label);
                first = beside.Height >= least && !IsOnCut(beside) ? beside : first;
            }
        }
    }
    [[nodiscard]] double SmallestBeside(const PlanLabel& first) const {
        return std::min(first.Height * kAsGood, rules_.LegibleHeight);
    }

    void PlaceOnLattice() {
        for (const PlanLabel& offer : places_.OnLattice) {
            std::vector<PlanLabel>& others = OthersOf(offer);
            const double smallest = others.front().Height * kAsGood;
            if (offer.Height < smallest || IsTooClose(offer, others)) {
                continue;
            }
            const PlanLabel label = Fitted(offer);
            if (label.Height >= smallest && !IsOnCut(label) && !IsTooClose(label, others)) {
                others.push_back(label);
            }
        }
    }
    [[nodiscard]] bool IsTooClose(const PlanLabel& label,
                                  const std::vector<PlanLabel>& others) const {
        return std::ranges::any_of(others, [&](const PlanLabel& other) {
            return rules_.Cuts.AreTogether(label.Centre, other.Centre) ? IsClose(label, other)
                                                                       : Overlap(label, other);
        });
    }
    [[nodiscard]] std::size_t PieceUnder(const PlanLabel& label) const {
        return static_cast<std::size_t>(places_.Cut.Pieces.Ids(static_cast<int>(label.Centre.X),
                                                               static_cast<int>(label.Centre.Y)));
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
    [[nodiscard]] bool IsOnCut(const PlanLabel& label) const {
        return rules_.Cuts.Meet(BoxOf(label, AspectOf(label.Region)));
    }

    [[nodiscard]] std::vector<PlanLabel>& OthersOf(const PlanLabel& label) {
        return At(placed_, label.Region);
    }
    [[nodiscard]] double AspectOf(int region) const {
        return rules_.Aspects[regions_[region].Value];
    }
    // As tall as the lines around it allow, and a little aside where that makes it taller; onto a
    // cut only where there is little room beside it.
    [[nodiscard]] PlanLabel Fitted(const PlanLabel& label) const {
        const double aspect = AspectOf(label.Region);
        const auto labelOf = [&label](const FittedSymbol& fitted) -> PlanLabel {
            return {label.Region, fitted.Centre, fitted.Height};
        };
        const PlanLabel moved = labelOf(fit_.Near(label.Centre, aspect, label.Region));
        if (rules_.Cuts.AreTogether(label.Centre, moved.Centre) &&
            (!IsOnCut(moved) || IsOnCut(label))) {
            return moved;
        }
        const PlanLabel still = labelOf(fit_.At(label.Centre, aspect, label.Region));
        return still.Height >= kAsGood * moved.Height ? still : moved;
    }

    const PaintedRegions& regions_;
    const LabelPlaces& places_;
    const LabelFit& fit_;
    const LabelRules& rules_;
    std::vector<std::vector<PlanLabel>> placed_;  // per region, the roomiest place first
};

}  // namespace

std::vector<PlanLabel> PlaceLabels(const PaintedRegions& regions, const LabelPlaces& places,
                                   const PlanLines& lines, const LabelRules& rules) {
    const LineIndex index(lines);
    const LabelFit fit(index, regions.Ids, rules.Air);
    std::vector<PlanLabel> labels = Placement(regions, places, fit, rules).Run();
    MoveOutside(labels, regions, fit, rules);
    return labels;
}

}  // namespace vendrel
