#include "forms/photo_intake.h"

#include <array>
#include <cstddef>
#include <fstream>
#include <span>
#include <system_error>

#include "convert/bitmap_reader.h"
#include "convert/foreign_photo.h"
#include "convert/photo_import.h"
#include "support/error.h"
#include "support/same_bytes.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

std::ifstream Open(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        throw FileError(file, "cannot be read. Choose another photo.");
    }
    return in;
}

// False when a photo of that name is there, perhaps only since just now.
bool CopyNew(const fs::path& from, const fs::path& to) {
    std::ifstream in = Open(from);
    WholeFile out(to, Lasting::Synced);
    std::array<char, 1 << 16> chunk{};
    while (in.read(chunk.data(), chunk.size()) || in.gcount() > 0) {
        const auto count = static_cast<std::size_t>(in.gcount());
        out.Write(std::as_bytes(std::span(chunk).first(count)));
    }
    return out.CommitNew(to);
}

fs::path TargetIn(const ProgramFolder& folder, const fs::path& photo) {
    return folder.Path("Pictures/" + photo.filename().string());
}

bool IsAt(const fs::path& photo, const fs::path& target) {
    std::error_code ignored;
    return fs::equivalent(photo, target, ignored);
}

}  // namespace

void RequirePaintable(const fs::path& photo, const PhotoDecoder& decoder, const CropTarget& target,
                      CropPart part) {
    const BitmapSize size = NeedsDecoder(photo) ? decoder.Size(photo) : BitmapFile(photo).Size();
    if (size.Width > 0 && size.Height > 0) {
        RequireStipples(photo, part == CropPart::Whole ? size : LargestCrop(size, target),
                        target.Screen, target.StippleSize);
    }
}

bool IsInPictures(const ProgramFolder& folder, const fs::path& photo) {
    return IsAt(photo, TargetIn(folder, photo)) && !NeedsDecoder(photo);
}

std::string TakeIntoPictures(const ProgramFolder& folder, const fs::path& photo) {
    const fs::path target = TargetIn(folder, photo);
    if (IsAt(photo, target)) {
        return target.filename().string();
    }
    if (!fs::is_regular_file(photo)) {
        throw FileError(photo, "is not there. Choose another photo.");
    }
    std::error_code unreadable;
    if ((fs::exists(target, unreadable) || !CopyNew(photo, target)) && !SameBytes(photo, target)) {
        throw FileError(target, "is a different photo of the same name. Rename one of them.");
    }
    return target.filename().string();
}

std::string TakeIntoPictures(const ProgramFolder& folder, const fs::path& photo,
                             const PhotoDecoder& decoder, const ReadProgress& progress) {
    return NeedsDecoder(photo) ? TakeInPhoto(folder, photo, decoder, progress)
                               : TakeIntoPictures(folder, photo);
}

std::string CropInPictures(const ProgramFolder& folder, const std::string& pictureFile,
                           const CropTarget& target, CropPart part) {
    if (part == CropPart::Whole) {
        return pictureFile;
    }
    const fs::path file = folder.Path("Pictures/" + pictureFile);
    const BitmapSize size = BitmapFile(file).Size();
    const CropRect cut = part == CropPart::Top ? CropTop(size, target) : CropCentre(size, target);
    if (cut == CropRect{0, 0, size.Width, size.Height}) {
        return pictureFile;
    }
    return KeepCrop(folder, pictureFile, CutOut(ReadBitmap(file), cut));
}

}  // namespace vendrel
