#include "intake/photo_intake.h"

#include <system_error>

#include "convert/bitmap_reader.h"
#include "convert/photo_import.h"
#include "intake/keep_picture.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/same_bytes.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

fs::path TargetIn(const ProgramFolder& folder, const fs::path& photo) {
    return folder.Path("Pictures/" + photo.filename().string());
}

bool IsAt(const fs::path& photo, const fs::path& target) {
    std::error_code ignored;
    return fs::equivalent(photo, target, ignored);
}

}  // namespace

CropTarget TargetOf(const Ui& screen, const WorkSettings& settings) {
    return {screen.Screen(), settings.StippleSize};
}

void RequirePaintable(IncomingPhoto& photo, const CropTarget& target, CropPart part) {
    const BitmapSize size = photo.Size();
    if (size.Width > 0 && size.Height > 0) {
        RequireStipples(photo.File(), part == CropPart::Whole ? size : LargestCrop(size, target),
                        target.Screen, target.StippleSize);
    }
}

bool IsInPictures(const ProgramFolder& folder, const IncomingPhoto& photo) {
    return photo.IsPlainBitmap() && IsAt(photo.File(), TargetIn(folder, photo.File()));
}

std::string TakeIntoPictures(const ProgramFolder& folder, IncomingPhoto& photo,
                             const ReadProgress& progress) {
    if (!photo.IsPlainBitmap()) {
        return KeepPicture(folder, photo.Stem(), photo.Picture(progress));
    }
    const fs::path target = TargetIn(folder, photo.File());
    if (!IsAt(photo.File(), target) && (Stands(target) || !photo.CopyTo(target)) &&
        !SameBytes(photo.File(), target)) {
        throw FileError(target, "is a different photo of the same name. Rename one of them.");
    }
    return target.filename().string();
}

std::string CropInPictures(const ProgramFolder& folder, const std::string& pictureFile,
                           const CropTarget& target, CropPart part) {
    if (part == CropPart::Whole) {
        return pictureFile;
    }
    BitmapFile photo(folder.Path("Pictures/" + pictureFile));
    const BitmapSize size = photo.Size();
    const CropRect middle = CropCentre(size, target);
    const CropRect cut = part == CropPart::Top ? CropTop(size, target) : middle;
    if (cut == CropRect{0, 0, size.Width, size.Height}) {
        return pictureFile;
    }
    const auto keep = cut == middle ? KeepCrop : KeepTopCrop;
    return keep(folder, pictureFile, CutOut(photo.Picture(), cut));
}

}  // namespace vendrel
