#include "batch/print_run.h"

#include <algorithm>

#include "shell/ui.h"
#include "support/error.h"
#include "support/text_file.h"
#include "support/worker_pool.h"

namespace vendrel {
namespace {

constexpr int kLookAtJoiner = 100;  // milliseconds between two looks at whether to stop

WorkerResult RunJoiner(const WorkerTask& task, const Surroundings& around) {
    WorkerPool pool;
    pool.Start(task);
    while (true) {
        const std::vector<WorkerResult> ended = pool.Await(kLookAtJoiner);
        if (!ended.empty()) {
            return ended.front();
        }
        if (around.StopAsked != nullptr && *around.StopAsked) {
            throw Stop{};
        }
    }
}

}  // namespace

void RequireJoiner(const Surroundings& around) {
    if (around.Studio.empty()) {
        throw Error("This build cannot join PDFs into a print run; build it with Qt.");
    }
}

void WritePrintRun(const std::vector<ReportedOrder>& orders, const BatchPlaces& places,
                   const std::filesystem::path& target, const Surroundings& around) {
    RequireJoiner(around);
    WorkerTask task{0, around.Studio, {"--join", target.string()}};
    for (const ReportedOrder& order : orders) {
        const auto& files = order.Became->Files;
        const auto pdf = std::ranges::find(files, "pdf", &ManifestEntry::File::Output);
        if (order.Became->Done && pdf != files.end()) {
            task.Words.push_back((places.Root() / pdf->Place).string());
        } else {
            around.Err << "vendrel: the print run is without order " << order.What->Id << std::endl;
        }
    }
    if (task.Words.size() == 2) {
        throw FileError(target, "there is no PDF to be joined. Make one order at least.");
    }
    const WorkerResult result = RunJoiner(task, around);
    if (result.Status != 0) {
        const std::vector<std::string> said = SplitLines(result.Err);
        throw Error(said.empty() ? Shown(target) + ": could not be joined. Check the memory."
                                 : said.back());
    }
}

}  // namespace vendrel
