#include "plan/smooth_lines.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "plan/line_index.h"
#include "plan/line_meetings.h"
#include "plan/narrow_parts.h"
#include "plan/smooth_curve.h"
#include "regions/inscribed_discs.h"
#include "support/list.h"

namespace vendrel {
namespace {

// In sides of a stipple, the strongest first. After the last all is as the pixels are.
struct Strength {
    double Blur;
    double Reach;
};
constexpr std::array<Strength, 5> kStrengths = {
    {{1.3, 0.75}, {1.0, 0.6}, {0.6, 0.5}, {0.35, 0.35}, {0.2, 0.2}}};
constexpr int kStairs = static_cast<int>(kStrengths.size());
constexpr double kCornerArm = 2.5;   // in sides of a stipple
constexpr double kMostLost = 0.1;    // of an area
constexpr double kKeptWidth = 0.9;   // of a narrow part
constexpr double kAside = 0.35;      // of a stipple: how far its middle may move
constexpr double kDiscSlack = 0.06;  // pixels: what the straight pieces of a curve may be off
constexpr double kWidest = 2.2;      // brushes: what blurring could make narrower than one

class Smoothing {
  public:
    Smoothing(const PaintedRegions& areas, PlanLines lines, const SmoothRules& rules)
        : rules_(rules),
          stairs_(std::move(lines)),
          lines_(stairs_),
          discs_(FindLargestDiscs(areas)),
          parts_(FindNarrowParts(areas.Ids, LineIndex(stairs_), kWidest * rules.Narrow)),
          strength_(stairs_.Chains.size()) {
        for (int area = 0; area < areas.Count(); ++area) {
            sizes_.push_back(areas[area].Size);
        }
    }

    PlanLines Run() {
        faulty_.assign(lines_.Chains.size(), true);
        while (std::ranges::find(faulty_, true) != faulty_.end()) {
            for (int chain = 0; chain < std::ssize(lines_.Chains); ++chain) {
                if (faulty_[static_cast<std::size_t>(chain)]) {
                    Draw(chain);
                }
            }
            FindFaults();
        }
        return std::move(lines_);
    }

  private:
    void Draw(int chain) {
        const PlanChain& stairs = At(stairs_.Chains, chain);
        int& strength = At(strength_, chain);
        if (stairs.IsEdge() || strength >= kStairs) {
            strength = kStairs;
            At(lines_.Chains, chain).Points = stairs.Points;
            return;
        }
        const Strength& by = At(kStrengths, strength);
        At(lines_.Chains, chain).Points = SmoothCurve(
            stairs.Points, stairs.IsLoop ? LineEnds::OnRing : LineEnds::Held,
            {by.Blur * rules_.Stair, by.Reach * rules_.Stair, kCornerArm * rules_.Stair});
    }

    void FindFaults() {
        faulty_.assign(lines_.Chains.size(), false);
        const LineIndex index(lines_);
        for (const auto& [one, other] : FindMeetings(lines_, index)) {
            Blame(one);
            Blame(other);
        }
        for (int area = 0; area < std::ssize(sizes_); ++area) {
            const InscribedDisc& disc = At(discs_, area);
            const double wanted = std::min(disc.Radius, rules_.Narrow / 2) - kDiscSlack;
            if (SizeOfArea(lines_, area) < (1 - kMostLost) * At(sizes_, area)) {
                BlameAll(area);
            } else {
                KeepRoom(index, {disc.X, disc.Y}, wanted, rules_.Stair);
            }
        }
        for (const NarrowPart& part : parts_) {
            KeepRoom(index, part.Middle, kKeptWidth * std::min(part.Room, rules_.Narrow / 2),
                     kAside * rules_.Stair);
        }
        for (std::size_t chain = 0; chain < faulty_.size(); ++chain) {
            strength_[chain] += faulty_[chain] ? 1 : 0;
        }
    }

    // At a place, or `aside`, all lines have to be so far away.
    void KeepRoom(const LineIndex& index, const PlanPoint& at, double wanted, double aside) {
        if (FindRoom(index, at, wanted, aside).Room >= wanted) {
            return;
        }
        index.Near({at.X - wanted, at.Y - wanted, at.X + wanted, at.Y + wanted},
                   [&](const LinePiece& piece) {
                       if (SquareDistance(at, piece) < wanted * wanted) {
                           Blame(piece.Chain);
                       }
                   });
    }
    void Blame(int chain) {
        faulty_[static_cast<std::size_t>(chain)] = At(strength_, chain) < kStairs;
    }
    void BlameAll(int area) {
        for (const PlanRing& ring : At(lines_.Rings, area)) {
            for (const ChainWay way : ring) {
                Blame(way.Chain);
            }
        }
    }

    SmoothRules rules_;
    PlanLines stairs_;
    PlanLines lines_;
    std::vector<InscribedDisc> discs_;  // by area
    std::vector<NarrowPart> parts_;
    std::vector<int> strength_;  // by chain
    std::vector<double> sizes_;  // by area, of the stairs
    std::vector<bool> faulty_;   // by chain
};

}  // namespace

PlanLines SmoothLines(const PaintedRegions& areas, PlanLines lines, const SmoothRules& rules) {
    return Smoothing(areas, std::move(lines), rules).Run();
}

}  // namespace vendrel
