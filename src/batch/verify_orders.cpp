#include "batch/verify_orders.h"

#include <algorithm>

#include "batch/batch_progress.h"
#include "batch/batch_run.h"
#include "batch/kit_worker.h"
#include "kitset/sha256.h"
#include "support/disk.h"
#include "support/worker_pool.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

class OrdersRemade {
  public:
    OrdersRemade(const OrderList& list, const BatchOptions& options, const Surroundings& around)
        : options_(options),
          around_(around),
          places_(options.Folder, options.Part),
          known_(ReadManifest(places_.Lines())),
          plan_(PlanOrders(list, options, known_, around.Version)) {
        std::erase_if(plan_,
                      [](const PlannedOrder& order) { return order.Need != OrderNeed::Nothing; });
    }
    ~OrdersRemade() {
        std::error_code left;
        fs::remove_all(Scratch(), left);
    }
    OrdersRemade(const OrdersRemade&) = delete;
    OrdersRemade& operator=(const OrdersRemade&) = delete;

    std::vector<std::string> Run() {
        BatchProgress progress(around_.Err, around_.ErrIsTerminal, options_.Quiet, plan_.size());
        RunSideBySide({.Count = plan_.size(),
                       .Jobs = JobsOr(options_.Jobs),
                       .Start = [this](std::size_t index, WorkerPool& pool) { Start(index, pool); },
                       .End =
                           [&](const WorkerResult& result) {
                               const std::string& order = plan_[result.Index].What->Id;
                               progress.Ended(order, Compare(order, result));
                           },
                       .Pause =
                           [&] {
                               progress.Show();
                               RequireGoingOn(around_);
                           }});
        return std::move(sentences_);
    }

  private:
    // As deep as the orders, so that no name is longer than it was.
    [[nodiscard]] fs::path Scratch() const { return places_.Root() / ".remade"; }

    void Start(std::size_t index, WorkerPool& pool) {
        const PlannedOrder& order = plan_[index];
        const fs::path folder = Scratch() / order.What->Id;
        CopyData(options_.Folder, folder);
        pool.Start({index, around_.Program, KitWords(*order.What, order.Words, folder)});
    }

    std::string Compare(const std::string& order, const WorkerResult& result) {
        const PlannedOrder& planned = plan_[result.Index];
        const ManifestEntry made = EntryOf(*planned.What, result, Scratch() / order);
        std::string sentence = made.Sentence;
        for (const ManifestEntry::File& file : known_.at(order).Files) {
            const fs::path inside = file.Place.lexically_relative(fs::path("Orders") / order);
            const auto same = std::ranges::find(made.Files, inside, &ManifestEntry::File::Place);
            if (made.Done && (same == made.Files.end() || same->Sum != file.Sum)) {
                sentence = file.Place.string() + ": comes out otherwise when it is made again.";
                sentences_.push_back(sentence);
            }
        }
        if (!made.Done) {
            sentences_.push_back(sentence);
        }
        std::error_code left;
        fs::remove_all(Scratch() / order, left);
        return sentence;
    }

    const BatchOptions& options_;
    const Surroundings& around_;
    BatchPlaces places_;
    Manifest known_;
    std::vector<PlannedOrder> plan_;
    std::vector<std::string> sentences_;
};

}  // namespace

std::vector<std::string> VerifyFiles(const Manifest& manifest, const fs::path& root) {
    std::vector<std::string> sentences;
    for (const auto& [order, entry] : manifest) {
        for (const ManifestEntry::File& file : entry.Files) {
            const fs::path place = root / file.Place;
            if (!IsFile(place)) {
                sentences.push_back(place.string() + ": is missing. Run the batch again.");
            } else if (SumOfFile(place) != file.Sum) {
                sentences.push_back(place.string() +
                                    ": is not what was written. Remove it to have it made again.");
            }
        }
    }
    return sentences;
}

std::vector<std::string> RemakeAndCompare(const OrderList& list, const BatchOptions& options,
                                          const Surroundings& around) {
    return OrdersRemade(list, options, around).Run();
}

}  // namespace vendrel
