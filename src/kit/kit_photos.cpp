#include "kit/kit_photos.h"

#include <algorithm>
#include <utility>

#include "convert/bitmap_reader.h"
#include "convert/photo_import.h"
#include "convert/picture_name.h"
#include "intake/photo_intake.h"
#include "intake/photo_names.h"
#include "kitfile/kit_photo.h"
#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

// Of the outputs asked for: what fits is made.
std::string LongestEnding(const ProgramFolder& folder, std::string_view difficulty,
                          const KitOptions& options) {
    const KitName kit{"", std::string(difficulty)};
    const std::string crop = PartOf(options.Chosen.Fit) == CropPart::Whole ? "" : " crop";
    std::string longest = crop + ".bmp";
    for (const Output& output : AllOutputs()) {
        const std::string ending = crop + FileOf(output, folder, kit).filename().string();
        if (options.Outputs.Chosen.Has(output.Id) && ending.size() > longest.size()) {
            longest = ending;
        }
    }
    return longest;
}

}  // namespace

TakenPhoto KitPhotos::TakeIn(Workplace& place, const KitOptions& options,
                             const std::filesystem::path& file) {
    const CropTarget target = TargetOf(place.Screen, place.State);
    const CropPart part = PartOf(options.Chosen.Fit);
    IncomingPhoto photo(file, decoder_);
    RequirePaintable(photo, target, part);
    const bool plain = photo.IsPlainBitmap();
    if (plain) {
        RequireResultNames(file, LongestEnding(place.Folder, DifficultyWord(place.State), options));
        Claim(file, photo.Stem());
    }
    if (photo.HasOwnColors()) {
        MentionColors(place.State, place.Screen, file);
    }
    const std::string taken =
        plain ? TakeIntoPictures(place.Folder, photo) : Decode(place.Screen, place.Folder, photo);
    std::string picture = CropInPictures(place.Folder, taken, target, part);
    // Decoded photos and crops are numbered where their name is taken: it is known only now.
    if (!plain || picture != taken) {
        Claim(file, PictureNameOf(picture));
    }
    if (picture == taken) {
        return {std::move(picture), {}};
    }
    return {std::move(picture), CropOf(place.Folder.Path("Pictures/" + taken), target, part)};
}

std::string KitPhotos::Decode(Ui& screen, const ProgramFolder& folder, IncomingPhoto& photo) {
    screen.SetCaption("Reading " + photo.File().filename().string());
    std::string file = TakeIntoPictures(folder, photo, [&screen](int percent) {
        screen.ReportProgress(percent, 100);
        screen.Yield();
    });
    screen.ReportProgress(0, 0);
    return file;
}

// Two kits of one name would take each other's place; letters of another case do not help, as some
// disks do not tell them apart.
void KitPhotos::Claim(const std::filesystem::path& photo, std::string_view name) {
    if (std::ranges::any_of(
            names_, [name](const std::string& other) { return SameIgnoringCase(name, other); })) {
        throw FileError(photo, "another photo of this run is named \"" + std::string(name) +
                                   "\" too, and a kit is named up to the first dot. Rename one "
                                   "of them.");
    }
    names_.emplace_back(name);
}

}  // namespace vendrel
