#pragma once

#include <string>
#include <utility>
#include <vector>

#include "convert/photo_decoder.h"
#include "support/error.h"

namespace vendrel::test {

/// Takes every photo for the same picture, except those with no bytes.
class PictureDecoder final : public PhotoDecoder {
  public:
    explicit PictureDecoder(Surface picture) : picture_(std::move(picture)) {}

    [[nodiscard]] std::vector<std::string> Endings() const override { return {"jpg", "png"}; }
    [[nodiscard]] BitmapSize Size(const std::filesystem::path& /*photo*/) const override {
        return {picture_.Width(), picture_.Height()};
    }
    [[nodiscard]] Surface Decode(const std::filesystem::path& photo,
                                 const ReadProgress& progress) const override {
        if (progress) {
            progress(50);
        }
        if (std::filesystem::file_size(photo) == 0) {
            throw FormatError(photo, 0, "is broken. Choose another photo.");
        }
        return picture_;
    }

  private:
    Surface picture_;
};

}  // namespace vendrel::test
