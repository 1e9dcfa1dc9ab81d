#include "batch/batch_command.h"

#include <algorithm>
#include <utility>

#include "batch/batch_options.h"
#include "batch/batch_run.h"
#include "batch/check_orders.h"
#include "batch/kit_names.h"
#include "batch/kit_worker.h"
#include "batch/merge_manifests.h"
#include "batch/print_run.h"
#include "batch/read_orders.h"
#include "batch/report_page.h"
#include "batch/verify_orders.h"
#include "kit/kit_keeping.h"
#include "kit/printable.h"
#include "support/decimals.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;

int Complain(const std::vector<std::string>& sentences, const Surroundings& around) {
    for (const std::string& sentence : sentences) {
        around.Err << "vendrel: " << Printable(sentence) << '\n';
    }
    return sentences.empty() ? kDone : kFailed;
}

std::string_view Said(OrderNeed need) {
    switch (need) {
        case OrderNeed::Nothing:
            return "is made";
        case OrderNeed::Making:
            return "to be made";
        case OrderNeed::Anew:
            return "has changed, to be made anew";
        case OrderNeed::TouchedUp:
            return "has changed, but was touched up: move its folder away";
        case OrderNeed::Failed:
            return "failed before";
    }
    return "";
}

int ShowPlan(const OrderList& list, const BatchOptions& options, const Surroundings& around) {
    const BatchPlaces places(options.Folder, options.Part);
    for (const PlannedOrder& order :
         PlanOrders(list, options, ReadManifest(places.Lines()), around.Version)) {
        around.Out << Printable(order.What->Id) << ": " << Said(order.Need) << ", vendrel";
        for (const std::string& word :
             KitWords(*order.What, order.Words, places.Of(order.What->Id))) {
            const bool blank = word.find(' ') != word.npos;
            around.Out << ' ' << (blank ? "'" : "") << Printable(word) << (blank ? "'" : "");
        }
        around.Out << '\n';
    }
    return kDone;
}

int Make(const OrderList& list, const BatchOptions& options, const Surroundings& around) {
    constexpr double kMinute = 60;
    const BatchOutcome outcome = RunOrders(list, options, around);
    if (!options.Quiet && !options.Json) {
        around.Out << outcome.Made << " made, " << outcome.Kept << " there already, "
                   << outcome.Failed << " failed";
        if (outcome.Made > 0 && outcome.Seconds > 0) {
            around.Out << ", "
                       << Decimals(static_cast<double>(outcome.Made) / outcome.Seconds * kMinute, 1)
                       << " a minute";
        }
        around.Out
            << '\n'
            << Printable(
                   BatchPlaces(options.Folder, options.Part).Report().lexically_normal().string())
            << '\n';
    }
    return outcome.Failed == 0 ? kDone : kFailed;
}

int Verify(const BatchOptions& options, const Surroundings& around) {
    const BatchPlaces places(options.Folder, options.Part);
    const Manifest manifest = ReadManifest(places.Lines());
    const int status = Complain(VerifyFiles(manifest, places.Root()), around);
    if (status == kDone && !options.Quiet) {
        around.Out << manifest.size() << " orders, every file is what was written\n";
    }
    return status;
}

int RemakeCheck(const OrderList& list, const BatchOptions& options, const Surroundings& around) {
    const std::vector<std::string> sentences = RemakeAndCompare(list, options, around);
    if (sentences.empty() && !options.Quiet) {
        around.Out << "every kit comes out the same\n";
    }
    return Complain(sentences, around);
}

int Merge(const BatchOptions& options, const Surroundings& around) {
    const BatchPlaces places(options.Folder, {});
    const Manifest merged = MergeManifests(places.Orders());
    std::string lines;
    for (const auto& [order, entry] : merged) {
        lines += FormatEntry(entry) + "\n";
    }
    WriteWholeFile(places.Lines(), lines, Lasting::Synced);
    WriteWholeFile(places.Whole(), FormatManifest(merged, around.Version));
    std::vector<Order> orders;
    std::vector<ReportedOrder> reported;
    orders.reserve(merged.size());
    for (const auto& [id, entry] : merged) {
        orders.push_back({.Id = id, .Line = 0, .Photo = entry.Photo});
        reported.push_back({&orders.back(), &entry});
    }
    WriteReports(reported, places, around);
    const bool all =
        std::ranges::all_of(merged, [](const auto& known) { return known.second.Done; });
    if (!options.Quiet) {
        around.Out << merged.size() << " orders in one manifest\n";
    }
    return all ? kDone : kFailed;
}

// Names and leaflets may take up any column.
bool ReadsAllColumns(const OrderList& list, const BatchOptions& options) {
    return !options.Names.empty() || HasLeaflet(options.Words) ||
           std::ranges::any_of(list.Orders,
                               [](const Order& order) { return HasLeaflet(order.Words); });
}

// An order's folder has no kits of the shop, so the one that all are like is found from here.
std::vector<std::string> LikeFound(std::vector<std::string> words, const ProgramFolder& folder) {
    constexpr std::string_view kLike = "--like=";
    for (std::string& word : words) {
        if (word.starts_with(kLike)) {
            word.replace(kLike.size(), word.npos,
                         FullPath(FindKit(folder, word.substr(kLike.size()))).string());
        }
    }
    return words;
}

int Run(BatchOptions options, const Surroundings& around) {
    if (options.Task == BatchTask::Help) {
        around.Out << BatchHelpText();
        return kDone;
    }
    if (options.Task == BatchTask::Merge) {
        return Merge(options, around);
    }
    if (options.Task == BatchTask::Verify) {
        return Verify(options, around);
    }
    if (!options.PrintRun.empty()) {
        RequireJoiner(around);
    }
    options.Words =
        LikeFound(std::move(options.Words), ProgramFolder(options.Folder, around.Shipped));
    OrderList list = ReadOrders(options.Orders);
    CheckOrders(list, options, around);
    if (!options.Quiet && !ReadsAllColumns(list, options)) {
        for (const std::string& column : list.Unused) {
            around.Err << "vendrel: " << Shown(options.Orders) << ": the column "
                       << Printable(column) << " is no setting of a kit.\n";
        }
    }
    if (!list.Faults.empty()) {
        return Complain(SentencesOf(list.Faults, options.Orders), around);
    }
    switch (options.Task) {
        case BatchTask::DryRun:
            return ShowPlan(list, options, around);
        case BatchTask::RemakeCheck:
            return RemakeCheck(list, options, around);
        default:
            return Make(list, options, around);
    }
}

}  // namespace

int RunBatch(std::span<const std::string_view> words, const Surroundings& around) {
    return RunToTheEdge(around, [&] { return Run(ParseBatch(words), around); });
}

}  // namespace vendrel
