#include "kitset/kit_paths.h"

#include "kitset/outputs.h"

namespace vendrel {

namespace fs = std::filesystem;

fs::path KitPaths::File(const Output& output) const {
    return FileOf(output, folder_, kit_);
}

fs::path KitPaths::Waiting(const Output& output) const {
    return WaitingBeside(File(output));
}

fs::path KitPaths::List() const {
    return ResultFile(folder_, kit_, "Kit.json");
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
