#include "forms/photo_intake.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <span>
#include <system_error>

#include "convert/bitmap_reader.h"
#include "convert/foreign_photo.h"
#include "convert/photo_import.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/same_bytes.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

std::span<const char> ReadBlock(const RegularFile& file, std::span<char> block) {
    return block.first(std::fread(block.data(), 1, block.size(), file.Stream.get()));
}

// False when a photo of that name is there, perhaps only since just now.
bool CopyNew(const fs::path& from, const fs::path& to) {
    const RegularFile in = OpenRegular(from);
    WholeFile out(to, Lasting::Synced);
    std::array<char, 1 << 16> chunk{};
    for (auto block = ReadBlock(in, chunk); !block.empty(); block = ReadBlock(in, chunk)) {
        out.Write(std::as_bytes(block));
    }
    if (std::ferror(in.Stream.get()) != 0) {
        throw FileError(from, "cannot be read to its end. Check the disk and copy it again.");
    }
    return out.CommitNew(to);
}

fs::path TargetIn(const ProgramFolder& folder, const fs::path& photo) {
    return folder.Path("Pictures/" + photo.filename().string());
}

// A damaged bitmap kept in Pictures would stand in the way of its repaired copy.
BitmapSize SizeOfSound(const fs::path& bitmap) {
    BitmapFile file(bitmap);
    file.CheckRuns();
    return file.Size();
}

bool IsAt(const fs::path& photo, const fs::path& target) {
    std::error_code ignored;
    return fs::equivalent(photo, target, ignored);
}

}  // namespace

void RequirePaintable(const fs::path& photo, const PhotoDecoder& decoder, const CropTarget& target,
                      CropPart part) {
    const BitmapSize size = NeedsDecoder(photo) ? decoder.Size(photo) : SizeOfSound(photo);
    if (size.Width > 0 && size.Height > 0) {
        RequireStipples(photo, part == CropPart::Whole ? size : LargestCrop(size, target),
                        target.Screen, target.StippleSize);
    }
}

void RequireResultNames(const fs::path& photo, std::string_view longest) {
    constexpr std::size_t kLongestName = 255;
    const std::string name = photo.filename().string();
    const std::size_t kept = std::min(name.find('.'), name.size());
    if (kept + longest.size() > kLongestName) {
        throw FileError(photo, "its name is too long for what is made of it, as in \"..." +
                                   std::string(longest) + "\". Rename it to at most " +
                                   std::to_string(kLongestName - longest.size()) +
                                   " letters before the first dot.");
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
    if (!IsRegularFile(photo)) {
        throw FileError(photo, "is not there. Choose another photo.");
    }
    if ((Stands(target) || !CopyNew(photo, target)) && !SameBytes(photo, target)) {
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
