#include "touchup/recording.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "edits/layer_recorder.h"
#include "edits/paint_index.h"
#include "edits/place_edits.h"
#include "shell/paint_id.h"

namespace vendrel {
namespace {

using Changes = std::vector<CellChange>;

// A load that broke off leaves paints of no palette until they are painted over.
int Entry(const OneBased<int>& numbers, int paint) {
    return numbers.Holds(paint) ? numbers[paint] : 0;
}

// Steps name paints by their places in the palette of their time, which replacements change.
class PlayedSteps {
  public:
    PlayedSteps(std::span<const EditStep> done, const EditSheet& sheet) : done_(done) {
        if (std::ranges::all_of(done, IsStroke)) {
            palette_ = &sheet.Paints();
            return;
        }
        SheetContents contents = sheet.Copy();
        for (std::size_t i = done.size(); i-- > 0;) {
            GoBack(contents, i);
        }
        const auto first = std::ranges::find_if_not(done, IsStroke);
        palette_ = &std::get<SheetContents>(first->What).FoundColors;
    }

    /// Answers what a replacement left; to be asked for each step once, from the first one on.
    const SheetContents* Next(std::size_t step) {
        const auto after = after_.find(step);
        if (after == after_.end()) {
            return nullptr;
        }
        palette_ = &after->second.FoundColors;
        return &after->second;
    }
    /// At the steps asked for until now; stays where it is.
    [[nodiscard]] const PaintList& Palette() const { return *palette_; }

  private:
    static bool IsStroke(const EditStep& step) {
        return std::holds_alternative<Changes>(step.What);
    }

    void GoBack(SheetContents& contents, std::size_t i) {
        if (const auto* before = std::get_if<SheetContents>(&done_[i].What)) {
            after_.emplace(i, std::exchange(contents, *before));
            return;
        }
        const auto& changes = std::get<Changes>(done_[i].What);
        std::for_each(changes.rbegin(), changes.rend(), [&contents](const CellChange& change) {
            contents.EditStipples(change.X, change.Y).ColorIndex = change.From;
        });
    }

    std::span<const EditStep> done_;
    std::map<std::size_t, SheetContents> after_;
    const PaintList* palette_ = nullptr;
};

// One stipple that a step repainted, its paints by their numbers in the layer.
struct Repainted {
    CellPos At;
    int From = 0;
    int To = 0;
};

class Recording {
  public:
    Recording(const KitEdits& atOpening, std::span<const EditStep> done, const EditSheet& sheet)
        : done_(done), sheet_(sheet), steps_(done, sheet) {
        recorded_.Edits = atOpening;
        Begin();
    }

    RecordedEdits Record() {
        if (!done_.empty()) {  // else edits of another grid stay as they were made
            Play();
            Settle();
        }
        return std::move(recorded_);
    }

    KitEdits RecordLayer() {
        keepsMoments_ = false;
        Play();
        Settle();
        return std::move(recorded_.Edits);
    }

  private:
    void Play() {
        for (std::size_t i = 0; i < done_.size(); ++i) {
            const PaintList& before = steps_.Palette();
            if (const SheetContents* after = steps_.Next(i)) {
                Replace(done_[i], before, *after);
            } else {
                const OneBased<int> numbers = NumbersOf(before);
                std::vector<Repainted> cells;
                for (const CellChange& change : std::get<Changes>(done_[i].What)) {
                    cells.push_back({{change.X, change.Y},
                                     Entry(numbers, change.From),
                                     Entry(numbers, change.To)});
                }
                Put(done_[i], cells);
            }
        }
    }

    void Settle() {
        recorder_->Settle(sheet_.Paints(), sheet_.Cells());
        KitEdits& edits = recorded_.Edits;
        edits.Edits = recorder_->Layer();
        if (!recorded_.Moments.empty()) {
            recorded_.Moments.back().After = std::make_shared<EditLayer>(edits.Edits);
        }
    }

    void Begin() {
        const KitEdits& edits = recorded_.Edits;
        recorder_.emplace(ConvertedGrid{edits.BasePaints, edits.Base}, edits.Edits);
        last_ = std::make_shared<EditLayer>(edits.Edits);
        recorded_.Moments.clear();
    }

    OneBased<int> NumbersOf(const PaintList& paints) {
        OneBased<int> numbers;
        for (const PaintColor& paint : paints) {
            numbers.Add(recorder_->NumberOf(paint));
        }
        return numbers;
    }

    void Replace(const EditStep& step, const PaintList& before, const SheetContents& after) {
        if (step.Intent == EditIntent::NewBase) {
            recorded_.Edits = {after.FoundColors, after.EditStipples, {}};
            recorded_.NewBase = true;
            Begin();
            return;
        }
        if (step.Intent == EditIntent::Layer) {
            const KitEdits& edits = recorded_.Edits;
            recorder_.emplace(ConvertedGrid{edits.BasePaints, edits.Base}, *step.Layer);
            AddMoment(step);
            return;
        }
        if (step.Intent == EditIntent::Order) {
            recorder_->Order(after.FoundColors);
        }
        const OneBased<int> old = NumbersOf(before);
        const OneBased<int> now = NumbersOf(after.FoundColors);
        const Grid<StippleCell>& was = std::get<SheetContents>(step.What).EditStipples;
        std::vector<Repainted> cells;
        for (int y = 1; y <= was.Down(); ++y) {
            for (int x = 1; x <= was.Across(); ++x) {
                const Repainted cell{{x, y},
                                     Entry(old, was(x, y).ColorIndex),
                                     Entry(now, after.EditStipples(x, y).ColorIndex)};
                if (cell.From != cell.To) {
                    cells.push_back(cell);
                }
            }
        }
        Put(step, cells);
    }

    void Put(const EditStep& step, const std::vector<Repainted>& cells) {
        if (step.Intent == EditIntent::Exchange) {
            Exchange(cells);
        }
        for (const Repainted& cell : cells) {
            if (step.Intent == EditIntent::Erase) {
                recorder_->Erase(cell.At);
            } else if (step.Intent != EditIntent::Exchange) {
                recorder_->Paint(cell.At, cell.To,
                                 step.Intent == EditIntent::Neighbors ? StippleWish::Neighbors
                                                                      : StippleWish::Paint);
            }
        }
        AddMoment(step);
    }

    void AddMoment(const EditStep& step) {
        if (!keepsMoments_) {
            return;
        }
        auto after = std::make_shared<EditLayer>(recorder_->Layer());
        recorded_.Moments.push_back({step.Name, last_, after, {}, {}});
        last_ = std::move(after);
    }

    void Exchange(const std::vector<Repainted>& cells) {
        std::map<std::pair<int, int>, std::vector<CellPos>> places;
        for (const Repainted& cell : cells) {
            places[{cell.From, cell.To}].push_back(cell.At);
        }
        for (const auto& [paints, at] : places) {
            recorder_->Exchange(paints.first, paints.second, at);
        }
    }

    std::span<const EditStep> done_;
    const EditSheet& sheet_;
    PlayedSteps steps_;
    RecordedEdits recorded_;
    std::optional<LayerRecorder> recorder_;
    std::shared_ptr<const EditLayer> last_;
    bool keepsMoments_ = true;
};

void FollowExchange(PaintList& shown, const PaintColor& from, const PaintColor& to) {
    for (PaintColor& paint : shown) {
        if (SamePaint(from, paint)) {
            paint = to;
        }
    }
}

}  // namespace

RecordedEdits RecordEdits(const KitEdits& atOpening, std::span<const EditStep> done,
                          const EditSheet& sheet) {
    return Recording(atOpening, done, sheet).Record();
}

KitEdits EditsUntilNow(const KitEdits& atOpening, std::span<const EditStep> done,
                       const EditSheet& sheet) {
    return Recording(atOpening, done, sheet).RecordLayer();
}

BaseView::BaseView(const KitEdits& atOpening, std::span<const EditStep> done,
                   const EditSheet& sheet)
    : cells_(atOpening.Base), paints_(atOpening.BasePaints) {
    Take(atOpening.Edits);
    PlayedSteps steps(done, sheet);
    for (std::size_t i = 0; i < done.size(); ++i) {
        const PaintList& before = steps.Palette();
        const SheetContents* after = steps.Next(i);
        if (after != nullptr && done[i].Intent == EditIntent::NewBase) {
            cells_ = after->EditStipples;
            paints_ = after->FoundColors;
            Take({});
        } else if (after != nullptr && done[i].Intent == EditIntent::Layer) {
            Take(*done[i].Layer);
        } else if (Continue(done[i])) {
            continue;
        } else if (after == nullptr) {
            const CellChange& change = std::get<Changes>(done[i].What).front();
            FollowExchange(shown_, before[change.From], before[change.To]);
        } else if (done[i].Intent == EditIntent::Paint) {
            Follow(std::get<SheetContents>(done[i].What), *after);
        }
    }
    const PaintIndex index(sheet.Paints());
    for (const PaintColor& paint : shown_) {
        const int known = index.Find(paint);
        shownAs_.Add(known > 0 ? known : StandInByEye(sheet.Paints(), paint));
    }
}

bool BaseView::Continue(const EditStep& step) {
    const auto* changes = std::get_if<Changes>(&step.What);
    if (changes == nullptr || step.Intent == EditIntent::Exchange) {
        return false;
    }
    for (const CellChange& change : *changes) {
        edited_(change.X, change.Y) = step.Intent == EditIntent::Erase ? 0 : 1;
    }
    return true;
}

void BaseView::Take(const EditLayer& layer) {
    edited_ = ValueGrid(cells_.Across(), cells_.Down());
    for (const StippleEdit& edit : EditsByShare(layer, cells_.Across(), cells_.Down()).Cells) {
        edited_(edit.At.X, edit.At.Y) = 1;
    }
    shown_ = paints_;
    for (PaintColor& paint : shown_) {
        const auto exchange = std::ranges::find_if(
            layer.Exchanges,
            [&paint](const PaintExchange& known) { return SamePaint(known.From, paint); });
        if (exchange != layer.Exchanges.end()) {
            paint = exchange->To;
        }
    }
}

// Paints that only took other places were not painted with.
void BaseView::Follow(const SheetContents& before, const SheetContents& after) {
    const PaintIndex index(before.FoundColors);
    OneBased<int> places;
    for (const PaintColor& paint : after.FoundColors) {
        places.Add(index.Find(paint));
    }
    const Grid<StippleCell>& was = before.EditStipples;
    for (int y = 1; y <= was.Down(); ++y) {
        for (int x = 1; x <= was.Across(); ++x) {
            if (was(x, y).ColorIndex != Entry(places, after.EditStipples(x, y).ColorIndex)) {
                edited_(x, y) = 1;
            }
        }
    }
}

int BaseView::PaintAt(CellPos at) const {
    return at.X >= 1 && at.Y >= 1 && cells_.Holds(at.X, at.Y)
               ? Entry(shownAs_, cells_(at.X, at.Y).ColorIndex)
               : 0;
}

}  // namespace vendrel
