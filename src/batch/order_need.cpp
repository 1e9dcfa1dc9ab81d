#include "batch/order_need.h"

#include <algorithm>

#include "kitset/sha256.h"
#include "support/disk.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

bool IsThere(const ManifestEntry::File& file, const fs::path& root) {
    std::error_code missing;
    return fs::file_size(root / file.Place, missing) == file.Bytes && !missing;
}

// Whether a kit of the order is not, or not any more, what the batch wrote.
bool IsTouchedUp(const ManifestEntry& known, const fs::path& root) {
    const auto entries = EntriesOf(root / "Orders" / known.Order / "Kits");
    return std::ranges::any_of(entries, [&](const fs::directory_entry& entry) {
        const fs::path place = entry.path().lexically_relative(root);
        const auto made = std::ranges::find(known.Files, place, &ManifestEntry::File::Place);
        return made == known.Files.end() || made->Sum != SumOfFile(entry.path());
    });
}

}  // namespace

OrderNeed NeedOf(const ManifestEntry* known, const std::string& inputs, const fs::path& root) {
    if (known == nullptr) {
        return OrderNeed::Making;
    }
    const bool same = known->Inputs == inputs;
    if (!known->Done) {
        return same ? OrderNeed::Failed : OrderNeed::Making;
    }
    if (same && std::ranges::all_of(known->Files, [&](const ManifestEntry::File& file) {
            return IsThere(file, root);
        })) {
        return OrderNeed::Nothing;
    }
    if (IsTouchedUp(*known, root)) {
        return same ? OrderNeed::Nothing : OrderNeed::TouchedUp;
    }
    return same ? OrderNeed::Making : OrderNeed::Anew;
}

}  // namespace vendrel
