#include "kit/kit_jobs.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "shell/ui.h"
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

// The words of all photos without the photos and what is said here. A photo is never a value: the
// parser found as many of them as there are words like them behind the last option.
std::vector<std::string> SettingsIn(const KitOptions& options) {
    std::vector<std::string> words = options.Words;
    for (const std::string& photo : options.Photos) {
        if (const auto last = std::find(words.rbegin(), words.rend(), photo);
            last != words.rend()) {
            words.erase(std::next(last).base());
        }
    }
    std::erase(words, "--");
    words.emplace_back("--jobs=1");
    return words;
}

}  // namespace

bool RunKitsSideBySide(const KitOptions& options, const Surroundings& around) {
    constexpr int kLook = 100;  // milliseconds between two looks at whether to stop
    RequireOwnNames(options.Photos);
    const std::vector<std::string> settings = SettingsIn(options);
    std::vector<WorkerResult> waiting(options.Photos.size());
    std::vector<bool> ended(options.Photos.size());
    std::size_t begun = 0;
    std::size_t told = 0;
    bool allMade = true;
    WorkerPool pool;
    while (told < ended.size()) {
        while (begun < ended.size() && pool.Running() < static_cast<std::size_t>(options.Jobs)) {
            std::vector<std::string> words = {"kit"};
            words.insert(words.end(), settings.begin(), settings.end());
            words.insert(words.end(), {"--", options.Photos[begun]});
            pool.Start({begun++, around.Program, words});
        }
        for (WorkerResult& result : pool.Await(kLook)) {
            ended[result.Index] = true;
            waiting[result.Index] = std::move(result);
        }
        for (; told < ended.size() && ended[told]; ++told) {
            around.Err << waiting[told].Err << std::flush;
            around.Out << waiting[told].Out << std::flush;
            allMade = allMade && waiting[told].Status == 0;
        }
        if (around.StopAsked != nullptr && *around.StopAsked) {
            throw Stop{};
        }
    }
    return allMade;
}

}  // namespace vendrel
