#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vendrel {

/// Every Of-th order from the Number-th on, for one machine of several.
struct Shard {
    int Number = 1;
    int Of = 1;

    [[nodiscard]] bool Has(std::size_t order) const {
        return order % static_cast<std::size_t>(Of) == static_cast<std::size_t>(Number - 1);
    }
};

enum class BatchTask {
    Make,
    DryRun,       // says what would be made
    Verify,       // whether the files are what was written
    RemakeCheck,  // makes all anew and compares
    Merge,        // of the shards' manifests one
    Help
};

/// `vendrel batch`: orders, and the settings that hold for all of them.
struct BatchOptions {
    BatchTask Task = BatchTask::Make;
    std::filesystem::path Orders;        // a list or a folder of photos
    std::filesystem::path Folder = ".";  // has the folder Orders
    std::vector<std::string> Words{};    // for every kit, without what is the batch's own
    std::string Names{};                 // a pattern for the kits' names; empty: none
    std::filesystem::path PrintRun{};    // all PDFs in one; empty: not asked for
    int Jobs = 0;                        // 0: as many as fit
    bool RetryFailed = false;
    bool Quiet = false;
    bool Json = false;
    std::optional<Shard> Part{};
};

/// Reads the words behind "batch". Throws UsageError with a sentence.
[[nodiscard]] BatchOptions ParseBatch(std::span<const std::string_view> words);
[[nodiscard]] std::string_view BatchHelpText();

}  // namespace vendrel
