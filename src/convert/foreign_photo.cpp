#include "convert/foreign_photo.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <set>
#include <span>
#include <string_view>
#include <system_error>

#include "convert/bitmap_input.h"
#include "convert/bitmap_writer.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLeadBytes = 26;  // a bitmap's, up to and with its height
constexpr const char* kBitmapEnding = ".bmp";
// Names of results are longer, and a disk takes 255 bytes.
constexpr std::size_t kLongestStem = 150;

bool HasBitmapEnding(const fs::path& file) {
    return SameIgnoringCase(file.extension().string(), kBitmapEnding);
}

// The file's first bytes, zeros where it is shorter.
std::string ReadLead(const fs::path& photo) {
    BitmapInput input(photo);
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

std::string BeforeFirstDot(const std::string& name) {
    return name.substr(0, name.find('.'));
}

// What is made from a.bmp and a.old.bmp would overwrite one another: both count as "a".
std::set<std::string> NamesInUse(const fs::path& pictures) {
    std::set<std::string> names;
    for (const auto& entry : EntriesOf(pictures)) {
        if (HasBitmapEnding(entry.path())) {
            names.insert(ToLower(BeforeFirstDot(entry.path().filename().string())));
        }
    }
    return names;
}

}  // namespace

bool NeedsDecoder(const fs::path& photo) {
    const std::string lead = ReadLead(photo);
    if (lead.starts_with("BM")) {
        return IsTopDownBitmap(lead);
    }
    // A .bmp with nonsense inside is the bitmap reader's to refuse.
    return LooksLikeOtherFormat(lead) || !HasBitmapEnding(photo);
}

std::string PictureStem(const fs::path& photo) {
    std::string stem = photo.stem().string();
    const auto isFringe = [](char c) { return c == '.' || c == ' '; };
    stem.erase(stem.begin(), std::ranges::find_if_not(stem, isFringe));
    while (!stem.empty() && isFringe(stem.back())) {
        stem.pop_back();
    }
    std::ranges::replace(stem, '.', '-');
    if (stem.size() > kLongestStem) {
        // Not within a character of several bytes.
        std::size_t end = kLongestStem;
        while (end > 0 && (static_cast<unsigned char>(stem[end]) & 0xC0) == 0x80) {
            --end;
        }
        stem.resize(end);
    }
    return stem.empty() ? "Photo" : stem;
}

std::string KeepPicture(const ProgramFolder& folder, const std::string& stem,
                        const Surface& picture) {
    const fs::path pictures = folder.Path("Pictures");
    BitmapStream arrival(pictures / (stem + kBitmapEnding), picture.Width(), picture.Height(),
                         kSheetScale, Lasting::Synced);
    arrival.Write(picture);
    const std::set<std::string> taken = NamesInUse(pictures);
    for (int number = 1;; ++number) {
        const std::string name = stem + (number == 1 ? "" : " " + std::to_string(number));
        const fs::path target = FindIgnoringCase(pictures, name + kBitmapEnding);
        // Another program may take the same photo in between two looks.
        if (arrival.Holds(target) ||
            (!taken.contains(ToLower(name)) && arrival.CommitNew(target)) ||
            arrival.Holds(target)) {
            return target.filename().string();
        }
    }
}

std::string TakeInPhoto(const ProgramFolder& folder, const fs::path& photo,
                        const PhotoDecoder& decoder, const ReadProgress& progress) {
    return KeepPicture(folder, PictureStem(photo), decoder.Decode(photo, progress));
}

std::string KeepCrop(const ProgramFolder& folder, const std::string& pictureFile,
                     const Surface& crop) {
    return KeepPicture(folder, BeforeFirstDot(pictureFile) + " crop", crop);
}

}  // namespace vendrel
