#include "output/label_placement.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "drawing/brush.h"
#include "output/inscribed_boxes.h"

namespace vendrel {
namespace {

// Leaves some white between a symbol and the border around it.
constexpr double kFill = 0.9;
// A second symbol in a region helps only when it can be read about as well as the first.
constexpr double kSmallestRepeat = 0.7;

// Symbols of one region stand this many of their heights apart at least.
constexpr double kApart = 1.5;

class Placement {
  public:
    Placement(const PaintedRegions& regions, const LabelRules& rules)
        : regions_(regions), rules_(rules), placed_(regions.List.size()) {}

    std::vector<PlanLabel> Run() {
        AddPieces({}, [](const PlanLabel&, const PlanLabel&) { return false; });
        AddPieces({rules_.PageColumns, rules_.PageRows}, [this](const auto& one,
                                                                const auto& other) {
            // Pages overlap: a symbol close behind the cut is on this page too, and two
            // of them would be printed into one another.
            return PageOf(one.Centre) == PageOf(other.Centre) ||
                   Distance(one.Centre, other.Centre) < kApart * std::max(one.Height, other.Height);
        });
        if (rules_.LatticeStep >= 1) {
            const std::vector<int> columns = Lattice(regions_.Ids.Across());
            const std::vector<int> rows = Lattice(regions_.Ids.Down());
            AddPieces({columns, rows}, [this](const auto& one, const auto& other) {
                return Distance(one.Centre, other.Centre) < rules_.LatticeStep / 2;
            });
        }
        std::vector<PlanLabel> labels;
        for (const std::vector<PlanLabel>& ofRegion : placed_) {
            labels.insert(labels.end(), ofRegion.begin(), ofRegion.end());
        }
        return labels;
    }

  private:
    [[nodiscard]] std::vector<int> Lattice(int last) const {
        std::vector<int> cuts;
        for (int i = 1; i * rules_.LatticeStep <= last; ++i) {
            cuts.push_back(static_cast<int>(std::lround(i * rules_.LatticeStep)));
        }
        return cuts;
    }

    static double Distance(const PlanPoint& one, const PlanPoint& other) {
        return std::hypot(one.X - other.X, one.Y - other.Y);
    }
    [[nodiscard]] CellPos PageOf(const PlanPoint& at) const {
        const auto pieceOf = [](const std::vector<int>& cuts, double position) {
            return static_cast<int>(std::ranges::upper_bound(cuts, position) - cuts.begin());
        };
        return {pieceOf(rules_.PageColumns, at.X), pieceOf(rules_.PageRows, at.Y)};
    }

    // One symbol more per piece, unless one that the region has already does for it.
    template <class DoesFor>
    void AddPieces(const PixelCuts& cuts, DoesFor doesFor) {
        const auto aspectOf = [this](int region) { return AspectOf(region); };
        for (const InscribedBox& box : FindRoomiestBoxes(regions_.Ids, cuts, aspectOf)) {
            const PlanLabel label = LabelIn(box);
            std::vector<PlanLabel>& others = placed_[static_cast<std::size_t>(label.Region)];
            const bool tooSmall =
                !others.empty() && label.Height < others.front().Height * kSmallestRepeat;
            if (!tooSmall && std::ranges::none_of(others, [&](const PlanLabel& other) {
                    return doesFor(label, other);
                })) {
                others.push_back(label);
            }
        }
    }
    [[nodiscard]] double AspectOf(int region) const {
        const int paint = regions_.List[static_cast<std::size_t>(region)].Paint;
        return rules_.Aspects.at(static_cast<std::size_t>(paint));
    }
    [[nodiscard]] PlanLabel LabelIn(const InscribedBox& box) const {
        return {box.Region,
                {(box.Left + box.Right) / 2.0, (box.Top + box.Bottom) / 2.0},
                std::min(box.Height * kFill, rules_.LargestHeight)};
    }

    const PaintedRegions& regions_;
    const LabelRules& rules_;
    std::vector<std::vector<PlanLabel>> placed_;  // per region
};

}  // namespace

std::vector<PlanLabel> PlaceLabels(const PaintedRegions& regions, const LabelRules& rules) {
    return Placement(regions, rules).Run();
}

bool IsLabelOn(const PlanLabel& label, double aspect, const PlanRect& own, const PlanRect& shown) {
    const auto [x, y] = label.Centre;
    if (x >= own.Left && x <= own.Right && y >= own.Top && y <= own.Bottom) {
        return true;
    }
    const double reachX = label.Height * aspect / 2;
    const double reachY = label.Height / 2;
    return x - reachX >= shown.Left && x + reachX <= shown.Right && y - reachY >= shown.Top &&
           y + reachY <= shown.Bottom;
}

double SmallestSymbol(const PaintedRegions& regions, const SymbolAspects& aspects) {
    const auto aspectOf = [&](int region) {
        return aspects.at(
            static_cast<std::size_t>(regions.List[static_cast<std::size_t>(region)].Paint));
    };
    const auto boxes = FindRoomiestBoxes(regions.Ids, {}, aspectOf);
    return std::ranges::min_element(boxes, {}, &InscribedBox::Height)->Height * kFill;
}

double SymbolHeightInStipple(int stippleSize, double aspect) {
    PixelGrid dot(stippleSize - 1, stippleSize - 1);
    for (const BrushRun& run : BrushStamp(stippleSize, BrushShape::Rounded)) {
        for (int x = run.First; x <= run.Last; ++x) {
            dot(x + stippleSize / 2, run.Row + stippleSize / 2) = 1;
        }
    }
    const auto boxes = FindRoomiestBoxes(dot, {}, [aspect](int) { return aspect; });
    return boxes.back().Height * kFill;
}

}  // namespace vendrel
