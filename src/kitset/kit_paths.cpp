#include "kitset/kit_paths.h"

#include <utility>

#include "kitset/outputs.h"

namespace vendrel {

namespace fs = std::filesystem;

KitPaths::KitPaths(const ProgramFolder& folder, KitName kit)
    : folder_(folder), kit_(std::move(kit)), list_(ResultFile(folder_, kit_, "Kit.json")) {
    for (const Output& output : AllOutputs()) {
        files_[output.Id] = FileOf(output, folder_, kit_);
    }
}

const fs::path& KitPaths::File(const Output& output) const {
    return files_.at(output.Id);
}

fs::path KitPaths::Waiting(const Output& output) const {
    return WaitingBeside(File(output));
}

fs::path KitPaths::WaitingList() const {
    return WaitingBeside(List());
}

fs::path KitPaths::WaitingFolder() const {
    return WaitingList().parent_path();
}

fs::path KitPaths::WaitingBeside(const fs::path& file) const {
    return file.parent_path() / (std::string(kWaitingStart) + kit_.Text()) / file.filename();
}

}  // namespace vendrel
