#include "convert/child_decoder.h"

#include <utility>

namespace vendrel {

std::vector<std::string> ChildDecoder::Endings() const {
    return {kPhotoEndings.begin(), kPhotoEndings.end()};
}

BitmapSize ChildDecoder::Size(const std::filesystem::path& photo) const {
    std::unique_ptr<DecodingChild> child = TakeChild(photo);
    const BitmapSize size = child->Size();
    last_ = std::move(child);
    return size;
}

Surface ChildDecoder::Decode(const std::filesystem::path& photo,
                             const ReadProgress& progress) const {
    std::unique_ptr<DecodingChild> child = TakeChild(photo);
    Surface picture = child->Picture(progress);
    last_ = std::move(child);
    return picture;
}

// Out of the decoder while it is waited for: whoever is told of the progress may ask for another
// photo, and a child that failed is not to be asked twice.
std::unique_ptr<DecodingChild> ChildDecoder::TakeChild(const std::filesystem::path& photo) const {
    std::unique_ptr<DecodingChild> child = std::move(last_);
    if (child && child->Reads(photo)) {
        return child;
    }
    child.reset();
    return std::make_unique<DecodingChild>(program_, photo);
}

}  // namespace vendrel
