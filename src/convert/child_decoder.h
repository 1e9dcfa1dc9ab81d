#pragma once

#include <memory>

#include "convert/decoding_child.h"
#include "convert/photo_decoder.h"

namespace vendrel {

/// Reads each photo in a process of its own, with limits on memory and time, so that no photo can
/// take the program along. Asking for a photo's size starts reading it; asking for the picture then
/// goes on with that, and asking for either again costs nothing until another photo is asked for.
class ChildDecoder final : public PhotoDecoder {
  public:
    /// `program` reads one photo when it is started with "--decode".
    explicit ChildDecoder(std::filesystem::path program) : program_(std::move(program)) {}

    [[nodiscard]] std::vector<std::string> Endings() const override;
    [[nodiscard]] BitmapSize Size(const std::filesystem::path& photo) const override;
    /// Calls back about twenty times a second.
    [[nodiscard]] Surface Decode(const std::filesystem::path& photo,
                                 const ReadProgress& progress) const override;

  private:
    [[nodiscard]] std::unique_ptr<DecodingChild> TakeChild(
        const std::filesystem::path& photo) const;

    std::filesystem::path program_;
    mutable std::unique_ptr<DecodingChild> last_;
};

}  // namespace vendrel
