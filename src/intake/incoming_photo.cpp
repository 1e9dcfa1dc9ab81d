#include "intake/incoming_photo.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "convert/bitmap_reader.h"
#include "convert/picture_name.h"
#include "intake/photo_names.h"
#include "support/letter_case.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLeadBytes = 26;  // a bitmap's, up to and with its height

// The file's first bytes, zeros where it is shorter.
std::string ReadLead(BitmapInput& input) {
    std::array<std::uint8_t, kLeadBytes> lead{};
    input.Read(std::span(lead).first(std::min<std::size_t>(input.Size(), kLeadBytes)));
    return {lead.begin(), lead.end()};
}

bool LooksLikeOtherFormat(std::string_view lead) {
    using namespace std::string_view_literals;
    constexpr std::array kBeginnings = {"\xFF\xD8\xFF"sv, "\x89PNG"sv, "GIF8"sv,
                                        "II*\0"sv,        "MM\0*"sv,   "RIFF"sv};
    return std::ranges::any_of(kBeginnings,
                               [lead](std::string_view start) { return lead.starts_with(start); });
}

// The short header of old programs has no such place, and its rows go upwards.
bool IsTopDownBitmap(std::string_view lead) {
    const auto headerSize = static_cast<std::uint8_t>(lead[14]);
    const auto topOfHeight = static_cast<std::uint8_t>(lead[25]);
    return headerSize != 12 && topOfHeight >= 0x80;
}

bool NeedsDecoder(std::string_view lead, const fs::path& photo) {
    if (lead.starts_with("BM")) {
        return IsTopDownBitmap(lead);
    }
    // A .bmp with nonsense inside is the bitmap reader's to refuse.
    return LooksLikeOtherFormat(lead) || !SameIgnoringCase(photo.extension().string(), ".bmp");
}

}  // namespace

IncomingPhoto::IncomingPhoto(fs::path file, const PhotoDecoder& decoder)
    : file_(std::move(file)), decoder_(decoder), named_(NamesAPicture(file_)) {
    BitmapInput input(file_);
    if (!NeedsDecoder(ReadLead(input), file_)) {
        plain_ = std::move(input);
    }
}

std::string IncomingPhoto::Stem() const {
    return IsPlainBitmap() ? std::string(PictureNameOf(file_.filename().string()))
                           : PictureStem(file_);
}

const BitmapHeader& IncomingPhoto::Header() {
    if (!header_) {
        header_ = ReadBitmapHeader(*plain_);
    }
    return *header_;
}

BitmapSize IncomingPhoto::Size() {
    if (!size_ && plain_) {
        CheckRuns(*plain_, Header());
        size_ = Header().Size;
    } else if (!size_) {
        size_ = decoder_.Size(file_);
    }
    return *size_;
}

bool IncomingPhoto::HasOwnColors() {
    return plain_ && Header().HasOwnColors;
}

Surface IncomingPhoto::Picture(const ReadProgress& progress) {
    if (!plain_) {
        return decoder_.Decode(file_, progress);
    }
    Surface picture = ReadPicture(*plain_, Header());
    size_ = Header().Size;
    return picture;
}

bool IncomingPhoto::CopyTo(const fs::path& newFile) {
    WholeFile copy(newFile, Lasting::Synced);
    std::vector<std::uint8_t> room(kBlockBytes);
    plain_->Seek(0);
    for (std::uint64_t left = plain_->Size(); left > 0;) {
        const auto block = std::span(room).first(std::min<std::uint64_t>(left, room.size()));
        plain_->Read(block);
        copy.Write(std::as_bytes(block));
        left -= block.size();
    }
    return copy.CommitNew(newFile);
}

}  // namespace vendrel
