#include "batch/merge_manifests.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "support/disk.h"
#include "support/error.h"

namespace vendrel {

Manifest MergeManifests(const std::filesystem::path& orders) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : EntriesOf(orders)) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with("batch-") && name.ends_with(".jsonl")) {
            files.push_back(entry.path());
        }
    }
    if (files.empty()) {
        throw FileError(orders,
                        "has no manifests of shards. Run the shards first, as in --shard 1/2.");
    }
    std::ranges::sort(files);
    Manifest merged;
    for (const auto& file : files) {
        for (auto& [order, entry] : ReadManifest(file)) {
            const auto known = merged.find(order);
            if (known == merged.end() || entry.Done || !known->second.Done) {
                merged.insert_or_assign(order, entry);
            }
        }
    }
    return merged;
}

}  // namespace vendrel
