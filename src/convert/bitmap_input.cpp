#include "convert/bitmap_input.h"

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

#include "support/error.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

std::string Reason(int number) {
    return std::error_code(number, std::generic_category()).message();
}

}  // namespace

BitmapInput::BitmapInput(fs::path file) : file_(std::move(file)) {
    std::error_code failure;
    if (!fs::exists(file_, failure)) {
        throw FileError(file_, "there is no such photo. Check its name and folder.");
    }
    if (!fs::is_regular_file(file_, failure)) {
        throw FileError(file_, "is not a file. Choose a BMP photo.");
    }
    size_ = fs::file_size(file_, failure);
    stream_.reset(std::fopen(file_.c_str(), "rb"));
    if (!stream_ || failure) {
        throw FileError(file_, "cannot be read (" + (failure ? failure.message() : Reason(errno)) +
                                   "). Check that you may read it.");
    }
}

void BitmapInput::Seek(std::uint64_t offset) {
    if (std::fseek(stream_.get(), static_cast<long>(offset), SEEK_SET) != 0) {
        FailShort();
    }
}

void BitmapInput::Read(std::span<std::uint8_t> bytes) {
    if (std::fread(bytes.data(), 1, bytes.size(), stream_.get()) != bytes.size()) {
        FailShort();
    }
}

void BitmapInput::FailShort() const {
    if (std::ferror(stream_.get()) != 0) {
        throw FileError(file_, "cannot be read to its end. Check the disk and copy it again.");
    }
    throw FileError(file_, "ends in the middle of its pixels. Copy or save the photo again.");
}

}  // namespace vendrel
