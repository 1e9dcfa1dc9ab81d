#include "kit/kit_photos.h"

#include <algorithm>

#include "convert/foreign_photo.h"
#include "convert/photo_import.h"
#include "forms/photo_intake.h"
#include "forms/photo_look.h"
#include "kit/photo_lookup.h"
#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

// Of the outputs asked for: what fits is made.
std::string LongestEnding(const Workplace& place, const KitOptions& options) {
    const KitName kit{"", std::string(DifficultyWord(place.State))};
    const std::string crop = options.Crop == CropPart::Whole ? "" : " crop";
    std::string longest = crop + ".bmp";
    for (const Output& output : AllOutputs()) {
        const std::string ending = crop + FileOf(output, place.Folder, kit).filename().string();
        if (options.Outputs.Chosen.Has(output.Id) && ending.size() > longest.size()) {
            longest = ending;
        }
    }
    return longest;
}

}  // namespace

std::string KitPhotos::TakeIn(Workplace& place, const KitOptions& options,
                              const std::filesystem::path& photo) {
    const CropTarget target = TargetOf(place);
    RequirePaintable(photo, decoder_, target, options.Crop);
    const bool decode = NeedsDecoder(photo);
    if (!decode) {
        RequireResultNames(photo, LongestEnding(place, options));
        Claim(photo, PictureNameOf(photo));
        MentionColors(place, photo);
    }
    const std::string taken = decode ? Decode(place, photo) : TakeIntoPictures(place.Folder, photo);
    std::string picture = CropInPictures(place.Folder, taken, target, options.Crop);
    // Decoded photos and crops are numbered where their name is taken: it is known only now.
    if (decode || picture != taken) {
        Claim(photo, PictureNameOf(picture));
    }
    return picture;
}

std::string KitPhotos::Decode(Workplace& place, const std::filesystem::path& photo) const {
    Ui& screen = place.Screen;
    screen.SetCaption("Reading " + photo.filename().string());
    std::string file = TakeIntoPictures(place.Folder, photo, decoder_, [&screen](int percent) {
        screen.ReportProgress(percent, 100);
        screen.Yield();
    });
    screen.ReportProgress(0, 0);
    return file;
}

// Two kits of one name would take each other's place; letters of another case do not help, as some
// disks do not tell them apart.
void KitPhotos::Claim(const std::filesystem::path& photo, const std::string& name) {
    if (name.empty()) {
        throw FileError(photo,
                        "has nothing before its first dot, which is what a kit is named "
                        "after. Rename it.");
    }
    if (std::ranges::any_of(
            names_, [&name](const std::string& other) { return SameIgnoringCase(name, other); })) {
        throw FileError(photo, "another photo of this run is named \"" + name +
                                   "\" too, and a kit is named up to the first dot. Rename one "
                                   "of them.");
    }
    names_.push_back(name);
}

}  // namespace vendrel
