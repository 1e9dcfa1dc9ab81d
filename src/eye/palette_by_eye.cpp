#include "eye/palette_by_eye.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <numeric>
#include <utility>

namespace vendrel {
namespace {

constexpr int kLevelsPerBin = 8;
constexpr int kBinsPerChannel = 256 / kLevelsPerBin;
constexpr int kFar = std::numeric_limits<Seen>::max();

using Sum = std::int64_t;

std::size_t At(int index) {
    return static_cast<std::size_t>(index);
}

std::size_t BinOf(Color color) {
    return (At(RedOf(color)) / kLevelsPerBin * kBinsPerChannel +
            At(GreenOf(color)) / kLevelsPerBin) *
               kBinsPerChannel +
           At(BlueOf(color)) / kLevelsPerBin;
}

struct BinSum {
    std::int64_t Red = 0;
    std::int64_t Green = 0;
    std::int64_t Blue = 0;
    std::int64_t Count = 0;
};

// The paints chosen so far, and what each color makes of them.
class Choice {
  public:
    Choice(const SeenTable& table, std::span<const int> stipples, const BuyTerms& terms)
        : terms_(terms),
          price_(std::llround(
              terms.Worth * kSeenUnit *
              static_cast<double>(std::accumulate(stipples.begin(), stipples.end(), Sum{0})))),
          stipples_(stipples.begin(), stipples.end()),
          paints_(table.PaintCount()),
          seen_(At(paints_) * stipples.size()),
          isChosen_(At(paints_)),
          near_(stipples.size(), kFar),
          nearest_(stipples.size(), -1),
          second_(stipples.size(), kFar) {
        for (std::size_t c = 0; c < stipples_.size(); ++c) {
            const std::span<const Seen> row = table.Of(static_cast<int>(c));
            for (std::size_t p = 0; p < row.size(); ++p) {
                seen_[p * stipples_.size() + c] = row[p];
            }
        }
    }

    [[nodiscard]] int PaintCount() const { return paints_; }
    [[nodiscard]] const std::vector<int>& Chosen() const { return chosen_; }
    [[nodiscard]] bool IsChosen(int paint) const { return isChosen_[At(paint)]; }

    [[nodiscard]] bool IsBought(int paint) const {
        return !terms_.IsOwned.empty() && !terms_.IsOwned[At(paint)];
    }
    // Whether one may come for one that goes, or for none.
    [[nodiscard]] bool MayTake(int paint, int out = -1) const {
        const int back = out >= 0 && IsBought(out) ? 1 : 0;
        return !IsBought(paint) || bought_ - back < terms_.MostToBuy;
    }

    // By how much the sum falls with one more paint, less what it costs to buy.
    [[nodiscard]] Sum GainOf(int paint) const {
        const Seen* const seen = SeenBy(paint);
        const int* const near = near_.data();
        const int* const stipples = stipples_.data();
        Sum gain = 0;
        for (std::size_t c = 0; c < stipples_.size(); ++c) {
            gain += static_cast<Sum>(std::max(near[c] - seen[c], 0)) * stipples[c];
        }
        return gain - PriceOf(paint);
    }

    // By how much the sum rises without a chosen paint, less its price.
    [[nodiscard]] Sum LossOf(int paint) const {
        Sum loss = 0;
        for (std::size_t c = 0; c < stipples_.size(); ++c) {
            if (nearest_[c] == paint) {
                loss += static_cast<Sum>(second_[c] - near_[c]) * stipples_[c];
            }
        }
        return loss - PriceOf(paint);
    }

    void Add(int paint) {
        bought_ += IsBought(paint) ? 1 : 0;
        chosen_.push_back(paint);
        isChosen_[At(paint)] = true;
        for (std::size_t c = 0; c < stipples_.size(); ++c) {
            Offer(c, paint);
        }
    }

    void Remove(int paint) {
        bought_ -= IsBought(paint) ? 1 : 0;
        std::erase(chosen_, paint);
        isChosen_[At(paint)] = false;
        for (std::size_t c = 0; c < stipples_.size(); ++c) {
            if (nearest_[c] == paint || SeenBy(paint)[c] == second_[c]) {
                near_[c] = kFar;
                second_[c] = kFar;
                nearest_[c] = -1;
                for (const int left : chosen_) {
                    Offer(c, left);
                }
            }
        }
    }

    // The chosen paint that a new one replaces best, and by how much the sum falls then.
    struct Swap {
        int Out = -1;
        Sum Gain = 0;
    };
    [[nodiscard]] Swap BestSwapFor(int paint) const {
        std::vector<Sum> losses(
            At(paints_));  // per chosen paint, when it goes and the new one comes
        Sum gain = 0;
        const Seen* const seen = SeenBy(paint);
        for (std::size_t c = 0; c < stipples_.size(); ++c) {
            const int now = near_[c];
            if (seen[c] < now) {
                gain += static_cast<Sum>(now - seen[c]) * stipples_[c];
            } else {
                losses[At(nearest_[c])] +=
                    static_cast<Sum>(std::min<int>(second_[c], seen[c]) - now) * stipples_[c];
            }
        }
        Swap best;
        for (const int out : chosen_) {
            // Colors that the new paint serves better than the one that goes are gained already.
            const Sum net = gain - losses[At(out)] + PriceOf(out) - PriceOf(paint);
            if (net > best.Gain && MayTake(paint, out)) {
                best = {out, net};
            }
        }
        return best;
    }

    // The chosen paint that fewest stipples need, the last of equals, and how many do.
    [[nodiscard]] std::pair<int, int> LeastNeeded() const {
        std::vector<int> needs(At(paints_));
        for (std::size_t c = 0; c < stipples_.size(); ++c) {
            needs[At(nearest_[c])] += stipples_[c];
        }
        int least = chosen_.front();
        for (const int paint : chosen_) {
            if (needs[At(paint)] <= needs[At(least)]) {
                least = paint;
            }
        }
        return {least, needs[At(least)]};
    }

  private:
    [[nodiscard]] Sum PriceOf(int paint) const { return IsBought(paint) ? price_ : 0; }
    [[nodiscard]] const Seen* SeenBy(int paint) const {
        return seen_.data() + At(paint) * stipples_.size();
    }
    void Offer(std::size_t c, int paint) {
        const int seen = SeenBy(paint)[c];
        if (nearest_[c] < 0 || seen < near_[c]) {
            second_[c] = near_[c];
            near_[c] = seen;
            nearest_[c] = paint;
        } else {
            second_[c] = std::min(second_[c], seen);
        }
    }

    const BuyTerms& terms_;
    Sum price_;  // of a paint that must be bought, as a sum of seen differences
    int bought_ = 0;
    std::vector<int> stipples_;
    int paints_;
    std::vector<Seen> seen_;  // paint by paint
    std::vector<int> chosen_;
    std::vector<bool> isChosen_;
    std::vector<int> near_;  // per color, to the nearest chosen paint
    std::vector<int> nearest_;
    std::vector<int> second_;  // per color, to the second nearest
};

// What a paint gains only shrinks as others are chosen, so a paint whose gain of long ago is no
// better than another's of now need not be asked again.
void ChooseGreedily(Choice& choice, int count) {
    std::vector<Sum> gains(At(choice.PaintCount()), std::numeric_limits<Sum>::max());
    while (static_cast<int>(choice.Chosen().size()) < count) {
        int best = -1;
        Sum bestGain = 0;
        std::vector<int> order;
        for (int p = 0; p < choice.PaintCount(); ++p) {
            if (!choice.IsChosen(p) && choice.MayTake(p)) {
                order.push_back(p);
            }
        }
        std::ranges::stable_sort(order, std::greater<>(), [&](int p) { return gains[At(p)]; });
        for (const int p : order) {
            if (gains[At(p)] <= bestGain) {
                break;
            }
            gains[At(p)] = choice.GainOf(p);
            if (gains[At(p)] > bestGain) {
                best = p;
                bestGain = gains[At(p)];
            }
        }
        if (best < 0) {
            return;
        }
        choice.Add(best);
    }
}

// Every exchange makes the sum smaller, so this ends.
void ExchangeWhileItHelps(Choice& choice) {
    for (int since = 0, p = 0; since < choice.PaintCount(); ++since) {
        if (!choice.IsChosen(p)) {
            if (const Choice::Swap swap = choice.BestSwapFor(p); swap.Out >= 0) {
                choice.Remove(swap.Out);
                choice.Add(p);
                since = 0;
            }
        }
        p = p + 1 < choice.PaintCount() ? p + 1 : 0;
    }
}

// Bought paints that are not worth their price any more since others came; each that goes makes the
// sum with the prices smaller, so this ends.
void GiveBackWhatIsNotWorthIt(Choice& choice, int count) {
    while (choice.Chosen().size() > 1) {
        const std::vector<int> chosen = choice.Chosen();
        const auto back = std::ranges::find_if(
            chosen, [&](int p) { return choice.IsBought(p) && choice.LossOf(p) <= 0; });
        if (back == chosen.end()) {
            return;
        }
        choice.Remove(*back);
        ChooseGreedily(choice, count);
        ExchangeWhileItHelps(choice);
    }
}

}  // namespace

ColorBins BinColors(std::span<const Color> stipples) {
    std::vector<BinSum> sums(At(kBinsPerChannel) * kBinsPerChannel * kBinsPerChannel);
    for (const Color color : stipples) {
        BinSum& sum = sums[BinOf(color)];
        sum.Red += RedOf(color);
        sum.Green += GreenOf(color);
        sum.Blue += BlueOf(color);
        ++sum.Count;
    }
    ColorBins bins;
    for (const BinSum& sum : sums) {
        if (sum.Count > 0) {
            const auto mean = [&sum](std::int64_t channel) {
                return static_cast<int>((channel + sum.Count / 2) / sum.Count);
            };
            bins.Colors.push_back(Rgb(mean(sum.Red), mean(sum.Green), mean(sum.Blue)));
            bins.Stipples.push_back(static_cast<int>(sum.Count));
        }
    }
    return bins;
}

std::vector<int> ChoosePaintsByEye(const SeenTable& table, std::span<const int> stipples, int count,
                                   const BuyTerms& terms) {
    Choice choice(table, stipples, terms);
    count = std::min(count, table.PaintCount());
    ChooseGreedily(choice, count);
    if (choice.Chosen().empty()) {
        return {};
    }
    ExchangeWhileItHelps(choice);
    GiveBackWhatIsNotWorthIt(choice, count);
    while (choice.Chosen().size() > 1) {
        const auto [paint, needs] = choice.LeastNeeded();
        if (needs >= kHandfulOfStipples) {
            break;
        }
        choice.Remove(paint);
    }
    std::vector<int> chosen = choice.Chosen();
    std::ranges::sort(chosen);
    return chosen;
}

}  // namespace vendrel
