#include "convert/bitmap_input.h"

#include <utility>

#include "support/error.h"

namespace vendrel {

BitmapInput::BitmapInput(std::filesystem::path file)
    : file_(std::move(file)), opened_(OpenRegular(file_)) {}

void BitmapInput::Seek(std::uint64_t offset) {
    if (std::fseek(opened_.Stream.get(), static_cast<long>(offset), SEEK_SET) != 0) {
        FailShort();
    }
}

void BitmapInput::Read(std::span<std::uint8_t> bytes) {
    if (std::fread(bytes.data(), 1, bytes.size(), opened_.Stream.get()) != bytes.size()) {
        FailShort();
    }
}

void BitmapInput::FailShort() const {
    if (std::ferror(opened_.Stream.get()) != 0) {
        throw FileError(file_, "cannot be read to its end. Check the disk and copy it again.");
    }
    throw FileError(file_, "ends in the middle of its pixels. Copy or save the photo again.");
}

}  // namespace vendrel
