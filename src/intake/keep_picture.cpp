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

std::string Numbered(const std::string& stem, int number) {
    return stem + (number == 1 ? "" : " " + std::to_string(number));
}

// Where that picture stands already under one of the stem's names; empty when it does not.
fs::path StandsAs(BitmapStream& picture, const fs::path& pictures, const std::string& stem) {
    for (int number = 1;; ++number) {
        fs::path file = FindIgnoringCase(pictures, Numbered(stem, number) + kBitmapEnding);
        if (!IsFile(file) || picture.Holds(file)) {
            return IsFile(file) ? file : fs::path();
        }
    }
}

std::string CropStem(std::string_view pictureFile) {
    return std::string(PictureNameOf(pictureFile)) + " crop";
}

// `former`: a stem that older kits know the same picture by.
std::string KeepAs(const ProgramFolder& folder, const std::string& stem, const Surface& picture,
                   const std::string& former) {
    const fs::path pictures = folder.Path("Pictures");
    BitmapStream arrival(pictures / (stem + kBitmapEnding), picture.Width(), picture.Height(),
                         kSheetScale, Lasting::Synced);
    arrival.Write(picture);
    if (const fs::path standing = StandsAs(arrival, pictures, former); !standing.empty()) {
        return standing.filename().string();
    }
    const std::set<std::string> taken = NamesInUse(pictures);
    for (int number = 1;; ++number) {
        const std::string name = Numbered(stem, number);
        const fs::path target = FindIgnoringCase(pictures, name + kBitmapEnding);
        // Another program may take the same photo in between two looks.
        if (arrival.Holds(target) ||
            (!taken.contains(ToLower(name)) && arrival.CommitNew(target)) ||
            arrival.Holds(target)) {
            return target.filename().string();
        }
    }
}

}  // namespace

std::string KeepPicture(const ProgramFolder& folder, const std::string& stem,
                        const Surface& picture) {
    return KeepAs(folder, stem, picture, stem);
}

std::string KeepCrop(const ProgramFolder& folder, std::string_view pictureFile,
                     const Surface& crop) {
    return KeepPicture(folder, CropStem(pictureFile), crop);
}

std::string KeepTopCrop(const ProgramFolder& folder, std::string_view pictureFile,
                        const Surface& crop) {
    const std::string name(PictureNameOf(pictureFile));
    return KeepAs(folder, name + " top crop", crop, CropStem(pictureFile));
}

}  // namespace vendrel
