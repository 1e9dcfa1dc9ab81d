#include "kitfile/kit_photo.h"

#include <cstddef>
#include <span>
#include <vector>

#include "convert/bitmap_reader.h"
#include "intake/incoming_photo.h"
#include "intake/keep_picture.h"
#include "intake/photo_intake.h"
#include "kitset/sha256.h"
#include "support/disk.h"
#include "support/error.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

class PixelSummer {
  public:
    void Add(std::span<const Color> row) {
        bytes_.clear();
        for (const Color color : row) {
            for (unsigned shift = 0; shift < 24; shift += 8) {
                bytes_.push_back(static_cast<std::byte>(static_cast<unsigned>(color) >> shift));
            }
        }
        sum_.Add(bytes_);
    }
    [[nodiscard]] std::string Hex() { return sum_.Hex(); }

  private:
    RunningSha256 sum_;
    std::vector<std::byte> bytes_;
};

// Empty when it is no photo any more, which is a change too.
std::string SumIfReadable(const fs::path& bitmap) {
    try {
        return KitPhotoOf(bitmap).Sum;
    } catch (const Error&) {
        return {};
    }
}

}  // namespace

std::string PixelSum(const Surface& photo) {
    PixelSummer summer;
    for (int y = photo.Height() - 1; y >= 0; --y) {
        summer.Add(photo.Row(y));
    }
    return summer.Hex();
}

KitPhoto KitPhotoOf(const fs::path& bitmap) {
    BitmapFile file(bitmap);
    PixelSummer summer;
    file.ReadRows([&summer](int /*y*/, std::span<const Color> row) { summer.Add(row); });
    return {bitmap.filename().string(), summer.Hex(), file.Size()};
}

KitCrop CropOf(const fs::path& bitmap, const CropTarget& target, CropPart part) {
    const BitmapSize size = ReadBitmapSize(bitmap);
    return {bitmap.filename().string(), 0,
            part == CropPart::Top ? CropTop(size, target) : CropCentre(size, target)};
}

FoundPhoto FindKitPhoto(const ProgramFolder& folder, const KitPhoto& photo) {
    FoundPhoto found{folder.DataFile("Pictures/" + photo.File), {}};
    const std::string lead = "The kit's photo " + Shown(found.File);
    if (!IsFile(found.File)) {
        found.Problem = lead + " is not there.";
    } else if (SumIfReadable(found.File) != photo.Sum) {
        found.Problem = lead + " is another one by now, or was changed.";
    }
    return found;
}

fs::path TakeKitPhoto(const ProgramFolder& folder, const PhotoDecoder& decoder,
                      const KitPhoto& photo, const fs::path& named) {
    IncomingPhoto incoming(named, decoder);
    const Surface picture = incoming.Picture();
    if (PixelSum(picture) != photo.Sum) {
        throw FileError(named,
                        "is not the photo that the kit was made of: its pixels differ. Name a copy "
                        "of " +
                            photo.File + " as it was.");
    }
    return IsInPictures(folder, incoming)
               ? named
               : folder.Path("Pictures/" + KeepPicture(folder, incoming.Stem(), picture));
}

}  // namespace vendrel
