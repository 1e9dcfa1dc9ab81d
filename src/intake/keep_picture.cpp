#include "intake/keep_picture.h"

#include <filesystem>
#include <set>

#include "convert/bitmap_writer.h"
#include "convert/picture_name.h"
#include "support/disk.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr const char* kBitmapEnding = ".bmp";

// What is made from a.bmp and a.old.bmp would overwrite one another: both count as "a".
std::set<std::string> NamesInUse(const fs::path& pictures) {
    std::set<std::string> names;
    for (const auto& entry : EntriesOf(pictures)) {
        if (SameIgnoringCase(entry.path().extension().string(), kBitmapEnding)) {
            names.insert(ToLower(PictureNameOf(entry.path().filename().string())));
        }
    }
    return names;
}

}  // namespace

std::string KeepPicture(const ProgramFolder& folder, const std::string& stem,
                        const Surface& picture) {
    const fs::path pictures = folder.Path("Pictures");
    BitmapStream arrival(pictures / (stem + kBitmapEnding), picture.Width(), picture.Height(),
                         kSheetScale, Lasting::Synced);
    arrival.Write(picture);
    const std::set<std::string> taken = NamesInUse(pictures);
    for (int number = 1;; ++number) {
        const std::string name = stem + (number == 1 ? "" : " " + std::to_string(number));
        const fs::path target = FindIgnoringCase(pictures, name + kBitmapEnding);
        // Another program may take the same photo in between two looks.
        if (arrival.Holds(target) ||
            (!taken.contains(ToLower(name)) && arrival.CommitNew(target)) ||
            arrival.Holds(target)) {
            return target.filename().string();
        }
    }
}

std::string KeepCrop(const ProgramFolder& folder, std::string_view pictureFile,
                     const Surface& crop) {
    return KeepPicture(folder, std::string(PictureNameOf(pictureFile)) + " crop", crop);
}

}  // namespace vendrel
