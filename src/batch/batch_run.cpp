#include "batch/batch_run.h"

#include <algorithm>
#include <utility>

#include "batch/batch_progress.h"
#include "batch/kit_names.h"
#include "batch/kit_worker.h"
#include "batch/paint_totals.h"
#include "batch/print_run.h"
#include "batch/read_orders.h"
#include "batch/report_page.h"
#include "kitset/sha256.h"
#include "shelf/shelf_file.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/held_file.h"
#include "support/whole_file.h"
#include "support/worker_pool.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

class OrdersRun {
  public:
    OrdersRun(const OrderList& list, const BatchOptions& options, const Surroundings& around)
        : options_(options),
          around_(around),
          places_(options.Folder, options.Part),
          held_(Hold()),
          manifest_(ReadManifest(places_.Lines())),
          plan_(PlanOrders(list, options, manifest_, around.Version)),
          lines_(places_.Lines()),
          progress_(around.Err, around.ErrIsTerminal, options.Quiet, CountToMake()) {}

    BatchOutcome Run() {
        RunSideBySide(
            {.Count = plan_.size(),
             .Jobs = JobsOr(options_.Jobs),
             .Start = [this](std::size_t index, WorkerPool& pool) { Begin(plan_[index], pool); },
             .End = [this](const WorkerResult& result) { End(result); },
             .Pause =
                 [this] {
                     progress_.Show();
                     RequireGoingOn(around_);
                 }});
        outcome_.Seconds = progress_.Pace().Seconds;
        WriteWholeFile(places_.Whole(), FormatManifest(OfThisList(), around_.Version));
        WriteReport();
        return outcome_;
    }

  private:
    std::shared_ptr<const HeldFile> Hold() const {
        std::error_code failure;
        fs::create_directories(places_.Orders(), failure);
        if (failure) {
            throw FileError(places_.Orders(),
                            "cannot be created (" + failure.message() + "). " +
                                AdviceOn(failure, "Start in a folder you may write to."));
        }
        auto held = HeldFile::Hold(places_.Lines());
        if (!held) {
            throw FileError(places_.Lines(),
                            "another Vendrel is making these orders. Wait until it is done.");
        }
        return held;
    }

    [[nodiscard]] bool IsMade(const PlannedOrder& order) const {
        return order.Need == OrderNeed::Nothing ||
               (order.Need == OrderNeed::Failed && !options_.RetryFailed);
    }

    [[nodiscard]] std::size_t CountToMake() const {
        return static_cast<std::size_t>(std::ranges::count_if(
            plan_, [this](const PlannedOrder& order) { return !IsMade(order); }));
    }

    void Begin(const PlannedOrder& order, WorkerPool& pool) {
        if (order.Need == OrderNeed::TouchedUp) {
            return Refuse(order);
        }
        if (IsMade(order)) {
            ++(order.Need == OrderNeed::Nothing ? outcome_.Kept : outcome_.Failed);
            if (order.Need == OrderNeed::Failed) {
                around_.Err << "vendrel: order " << order.What->Id
                            << " failed before: " << manifest_.at(order.What->Id).Sentence
                            << " (--retry-failed tries again)" << std::endl;
            }
            return;
        }
        try {
            Start(order, pool);
        } catch (const Error& error) {  // of this order's folder or photo; the others go on
            ManifestEntry entry{.Order = order.What->Id,
                                .Inputs = order.Inputs,
                                .Photo = order.What->Photo.string()};
            entry.Sentence = error.what();
            Note(std::move(entry));
        }
    }

    // What the manifest has of it stays: moved away it is made again.
    void Refuse(const PlannedOrder& order) {
        ++outcome_.Failed;
        progress_.Ended(order.What->Id, places_.Of(order.What->Id).string() +
                                            ": was touched up since it was made, and the order "
                                            "has changed. Move this folder away, then run the "
                                            "batch again.");
    }

    void Start(const PlannedOrder& order, WorkerPool& pool) {
        if (!order.Unreadable.empty()) {
            throw Error(order.Unreadable);
        }
        const fs::path folder = places_.Of(order.What->Id);
        if (order.Need == OrderNeed::Anew) {
            fs::remove_all(folder);
        }
        CopyData(options_.Folder, folder);
        pool.Start({static_cast<std::size_t>(&order - plan_.data()), around_.Program,
                    KitWords(*order.What, order.Words, folder)});
    }

    void End(const WorkerResult& result) {
        const PlannedOrder& order = plan_[result.Index];
        ManifestEntry entry = EntryOf(*order.What, result, places_.Root());
        entry.Inputs = order.Inputs;
        Note(std::move(entry));
    }

    void Note(ManifestEntry entry) {
        lines_.Add(entry);
        ++(entry.Done ? outcome_.Made : outcome_.Failed);
        progress_.Ended(entry.Order, entry.Sentence);
        if (options_.Json) {
            around_.Out << FormatEntry(entry) << std::endl;
        }
        manifest_.insert_or_assign(entry.Order, std::move(entry));
    }

    [[nodiscard]] Manifest OfThisList() const {
        Manifest own;
        for (const PlannedOrder& order : plan_) {
            if (const auto known = manifest_.find(order.What->Id); known != manifest_.end()) {
                own.insert(*known);
            }
        }
        return own;
    }

    void WriteReport() const {
        std::vector<ReportedOrder> orders;
        for (const PlannedOrder& order : plan_) {
            if (const auto known = manifest_.find(order.What->Id); known != manifest_.end()) {
                orders.push_back({order.What, &known->second});
            }
        }
        WriteReports(orders, places_, around_);
        if (!options_.PrintRun.empty()) {
            WritePrintRun(orders, places_, options_.PrintRun, around_);
        }
    }

    const BatchOptions& options_;
    const Surroundings& around_;
    BatchPlaces places_;
    std::shared_ptr<const HeldFile> held_;
    Manifest manifest_;
    std::vector<PlannedOrder> plan_;
    ManifestWriter lines_;
    BatchProgress progress_;
    BatchOutcome outcome_;
};

}  // namespace

void WriteReports(const std::vector<ReportedOrder>& orders, const BatchPlaces& places,
                  const Surroundings& around) {
    const Shelf shelf = ReadShelf(ProgramFolder(places.Root(), around.Shipped));
    const std::vector<PaintTotal> totals = TotalPaints(orders, shelf);
    WriteWholeFile(places.Paints(), FormatTotals(totals));
    WriteWholeFile(places.Report(), ReportPage(orders, totals, places));
}

std::vector<PlannedOrder> PlanOrders(const OrderList& list, const BatchOptions& options,
                                     const Manifest& known, std::string_view version) {
    const std::string shared = SharedInputs(options.Folder, version);
    std::vector<PlannedOrder> plan;
    for (std::size_t i = 0; i < list.Orders.size(); ++i) {
        if (options.Part && !options.Part->Has(i)) {
            continue;
        }
        const Order& order = list.Orders[i];
        PlannedOrder planned{&order, WordsWithOrder(WordsOver(options.Words, order), order)};
        try {
            planned.Inputs = InputsOf(order, planned.Words, shared);
        } catch (const FileError& error) {  // this order's alone
            planned.Unreadable = error.what();
        }
        const auto entry = known.find(order.Id);
        planned.Need =
            NeedOf(entry == known.end() ? nullptr : &entry->second, planned.Inputs, options.Folder);
        plan.push_back(std::move(planned));
    }
    return plan;
}

BatchOutcome RunOrders(const OrderList& list, const BatchOptions& options,
                       const Surroundings& around) {
    return OrdersRun(list, options, around).Run();
}

}  // namespace vendrel
