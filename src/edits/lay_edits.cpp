#include "edits/lay_edits.h"

#include <algorithm>
#include <utility>

#include "edits/lay_order.h"
#include "edits/neighbor_wishes.h"
#include "edits/paint_index.h"
#include "edits/place_edits.h"
#include "eye/seen_difference.h"
#include "shell/paint_id.h"
#include "shell/stipple_grid.h"

namespace vendrel {
namespace {

// All paints that the base has or an edit wants, first without a thought of room: then it is known
// which of them stipples need.
class EditLaying {
  public:
    EditLaying(const ConvertedGrid& base, const EditLayer& layer, const LayTerms& terms)
        : base_(base), layer_(layer), terms_(terms), all_(base.Paints), index_(base.Paints) {}

    LaidEdits Lay() {
        laid_.Cells = base_.Cells;
        laid_.Paints = base_.Paints;
        Exchange();
        PaintStipples();
        counts_ = CountStipples(laid_.Cells, all_.Count());
        ChoosePalette();
        Report();
        if (terms_.Exchanged == ExchangedPaints::Leave) {
            DropExchanged();
        }
        if (!layer_.Order.Empty()) {
            PutInOrder();
        }
        for (StippleCell& cell : laid_.Cells.All()) {
            cell.ColorIndex = place_[cell.ColorIndex];
            cell.AreaNumber = 0;
        }
        return std::move(laid_);
    }

  private:
    [[nodiscard]] bool IsOfBase(int paint) const { return paint <= base_.Paints.Count(); }

    int Wanted(const PaintColor& paint) {
        const int known = index_.Find(paint);
        if (known > 0) {
            return known;
        }
        all_.Add(paint);
        index_.Add(paint);
        return all_.Count();
    }

    void Exchange() {
        OneBased<int> shownAs(base_.Paints.Count());
        for (int paint = 1; paint <= shownAs.Count(); ++paint) {
            shownAs[paint] = paint;
        }
        for (const PaintExchange& exchange : layer_.Exchanges) {
            const int from = index_.Find(exchange.From);
            if (from > 0 && IsOfBase(from)) {
                shownAs[from] = Wanted(exchange.To);
                exchanges_.emplace_back(from, shownAs[from]);
            }
        }
        for (StippleCell& cell : laid_.Cells.All()) {
            cell.ColorIndex = shownAs.Holds(cell.ColorIndex) ? shownAs[cell.ColorIndex] : 0;
        }
    }

    void PaintStipples() {
        OneBased<int> wanted(layer_.Paints.Count());
        for (const StippleEdit& edit : layer_.Cells) {
            if (edit.Wish == StippleWish::Paint) {
                int& paint = wanted[edit.Paint];
                paint = paint > 0 ? paint : Wanted(layer_.Paints[edit.Paint]);
                laid_.Cells(edit.At.X, edit.At.Y).ColorIndex = paint;
                wishes_.push_back(paint);
            }
        }
        std::vector<NeighborWish> wishes;
        for (const StippleEdit& edit : layer_.Cells) {
            if (edit.Wish == StippleWish::Neighbors) {
                wishes.push_back({edit.At, index_.Find(layer_.Paints[edit.Paint])});
            }
        }
        FulfillNeighborWishes(laid_.Cells, wishes);
    }

    void ChoosePalette() {
        place_ = OneBased<int>(all_.Count());
        for (int paint = 1; paint <= base_.Paints.Count(); ++paint) {
            place_[paint] = paint;
        }
        for (const auto& [from, to] : exchanges_) {
            if (counts_[from] == 0 && NeedsPlace(to)) {
                TakePlace(to, from);
            }
        }
        std::vector<int> missing;
        for (int paint = base_.Paints.Count() + 1; paint <= all_.Count(); ++paint) {
            if (NeedsPlace(paint)) {
                missing.push_back(paint);
            }
        }
        std::ranges::stable_sort(missing, std::ranges::greater{},
                                 [this](int paint) { return counts_[paint]; });
        for (const int paint : missing) {
            Join(paint);
        }
        for (int paint = 1; paint <= all_.Count(); ++paint) {
            if (NeedsPlace(paint)) {
                place_[paint] = StandInByEye(laid_.Paints, all_[paint]);
            }
        }
    }

    [[nodiscard]] bool NeedsPlace(int paint) const {
        return counts_[paint] > 0 && place_[paint] == 0;
    }

    void TakePlace(int paint, int of) {
        laid_.Paints[place_[of]] = all_[paint];
        place_[paint] = std::exchange(place_[of], 0);
    }

    void Join(int paint) {
        if (laid_.Paints.Count() < terms_.Room) {
            laid_.Paints.Add(all_[paint]);
            place_[paint] = laid_.Paints.Count();
            return;
        }
        for (int idle = 1; idle <= base_.Paints.Count(); ++idle) {
            if (counts_[idle] == 0 && place_[idle] > 0) {
                TakePlace(paint, idle);
                return;
            }
        }
    }

    void Report() {
        LayReport& report = laid_.Report;
        for (const auto& [from, to] : exchanges_) {
            wishes_.push_back(to);
        }
        OneBased<int> standIns(all_.Count());
        for (const int paint : wishes_) {
            const int place = place_[paint];
            standIns[paint] += place > 0 && !SamePaint(all_[paint], laid_.Paints[place]) ? 1 : 0;
        }
        report.Edits = static_cast<int>(layer_.Cells.size() + exchanges_.size());
        report.Kept = report.Edits;
        report.Joined = std::max(0, laid_.Paints.Count() - base_.Paints.Count());
        for (int paint = 1; paint <= all_.Count(); ++paint) {
            if (standIns[paint] > 0) {
                report.Kept -= standIns[paint];
                report.StandIns.push_back(
                    {all_[paint], laid_.Paints[place_[paint]], standIns[paint]});
            }
        }
        std::ranges::stable_sort(report.StandIns, std::ranges::greater{}, &StandIn::Edits);
    }

    void DropExchanged() {
        OneBased<int> used(laid_.Paints.Count());
        for (int paint = 1; paint <= all_.Count(); ++paint) {
            if (place_[paint] > 0) {
                used[place_[paint]] += counts_[paint];
            }
        }
        for (const auto& [from, to] : exchanges_) {
            if (place_[from] > 0 && used[place_[from]] == 0) {
                const int gone = place_[from];
                laid_.Paints.Remove(gone);
                used.Remove(gone);
                for (int& place : place_) {
                    place = place == gone ? 0 : place - (place > gone ? 1 : 0);
                }
            }
        }
    }

    void PutInOrder() {
        const OneBased<int> newOf = PlacesByOrder(laid_.Paints, layer_);
        const PaintList before = laid_.Paints;
        for (int old = 1; old <= before.Count(); ++old) {
            laid_.Paints[newOf[old]] = before[old];
        }
        for (int& place : place_) {
            place = newOf[place];
        }
    }

    ConvertedGrid base_;
    const EditLayer& layer_;
    LayTerms terms_;
    PaintList all_;
    PaintIndex index_;
    std::vector<std::pair<int, int>> exchanges_;  // of all_
    std::vector<int> wishes_;                     // of all_, one for each edit that names a paint
    OneBased<int> counts_;                        // stipples per paint of all_
    OneBased<int> place_;                         // of a paint of all_ in the palette; 0 for none
    LaidEdits laid_;
};

}  // namespace

int StandInByEye(const PaintList& paints, const PaintColor& wanted, int skip) {
    const Lab lab = LabOf(ColorOf(wanted));
    int nearest = 0;
    double least = 0;
    for (int i = 1; i <= paints.Count(); ++i) {
        const double difference = Ciede2000(lab, LabOf(ColorOf(paints[i])));
        if (i != skip && (nearest == 0 || difference < least)) {
            nearest = i;
            least = difference;
        }
    }
    return nearest;
}

std::string Sentence(const LayReport& report) {
    if (report.Edits == 0) {
        return {};
    }
    const std::string edits = report.Edits == 1 ? " edit kept" : " edits kept";
    std::string text = std::to_string(report.Edits) + edits;
    if (report.Kept < report.Edits) {
        text = std::to_string(report.Kept) + " of " + text;
    } else if (report.Edits > 1) {
        text = "All " + text;
    }
    if (report.Joined > 0) {
        text += ", " + std::to_string(report.Joined) + " more paint" +
                (report.Joined == 1 ? "" : "s") + " for them";
    }
    for (const StandIn& standIn : report.StandIns) {
        text += ", " + std::to_string(standIn.Edits) + " took " + standIn.Took.PaintName +
                " instead of " + standIn.Wanted.PaintName;
    }
    return text;
}

LaidEdits LayEdits(const ConvertedGrid& base, const EditLayer& layer, const LayTerms& terms) {
    if (layer.Across == base.Cells.Across() && layer.Down == base.Cells.Down()) {
        return EditLaying(base, layer, terms).Lay();
    }
    return EditLaying(base, EditsByShare(layer, base.Cells.Across(), base.Cells.Down()), terms)
        .Lay();
}

}  // namespace vendrel
