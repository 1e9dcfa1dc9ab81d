#include "kit/photo_lookup.h"

#include <system_error>

#include "support/disk.h"
#include "support/error.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// A folder, a pipe or a name too long is not a photo that is missing.
void RefuseOther(const fs::path& path) {
    std::error_code ignored;
    if (fs::status(path, ignored).type() != fs::file_type::not_found) {
        (void)OpenRegular(path);
    }
}

}  // namespace

fs::path FindPhoto(const ProgramFolder& folder, const std::string& word) {
    if (IsFile(word)) {
        return word;
    }
    RefuseOther(word);
    if (!fs::path(word).has_parent_path()) {
        const fs::path kept = folder.DataFile("Pictures/" + word);
        if (IsFile(kept)) {
            return kept;
        }
        RefuseOther(kept);
    }
    throw FileError(word, "there is no such photo, neither here nor in Pictures. Check its name.");
}

}  // namespace vendrel
