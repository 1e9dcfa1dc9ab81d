#include "kit/kit_jobs.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "support/error.h"
#include "support/letter_case.h"
#include "support/worker_pool.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

void RequireOwnNames(const std::vector<std::string>& photos) {
    std::map<std::string, std::string> names;
    for (const std::string& photo : photos) {
        const auto [known, isNew] = names.emplace(ToLower(fs::path(photo).stem().string()), photo);
        if (!isNew) {
            throw UsageError("\"" + known->second + "\" and \"" + photo +
                             "\" would write files of one name. Make them without --jobs, or each "
                             "in a --folder of its own.");
        }
    }
}

}  // namespace

bool RunKitsSideBySide(const KitOptions& options, const Surroundings& around) {
    RequireOwnNames(options.Photos);
    std::vector<std::optional<WorkerResult>> ended(options.Photos.size());
    std::size_t told = 0;
    bool allMade = true;
    RunSideBySide({.Count = ended.size(),
                   .Jobs = static_cast<std::size_t>(options.Jobs),
                   .Start =
                       [&](std::size_t index, WorkerPool& pool) {
                           std::vector<std::string> words = {"kit"};
                           words.insert(words.end(), options.SettingWords.begin(),
                                        options.SettingWords.end());
                           words.insert(words.end(), {"--jobs=1", "--", options.Photos[index]});
                           pool.Start({index, around.Program, words});
                       },
                   .End =
                       [&](WorkerResult result) {
                           ended[result.Index] = std::move(result);
                           for (; told < ended.size() && ended[told]; ++told) {
                               around.Err << ended[told]->Err << std::flush;
                               around.Out << ended[told]->Out << std::flush;
                               allMade = allMade && ended[told]->Status == 0;
                           }
                       },
                   .Pause = [&] { RequireGoingOn(around); }});
    return allMade;
}

}  // namespace vendrel
