#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "intake/incoming_photo.h"
#include "kit/arguments.h"
#include "kitfile/kit_file.h"
#include "shell/workplace.h"

namespace vendrel {

struct TakenPhoto {
    std::string File;             // in Pictures
    std::optional<KitCrop> Crop;  // when it was cut from another one there
};

/// Brings the photos of one run into Pictures, and knows which names the run has used.
class KitPhotos {
  public:
    explicit KitPhotos(const PhotoDecoder& decoder) : decoder_(decoder) {}

    /// Decodes what is no plain bitmap and crops as asked.
    /// Throws Error, also when a kit of this run has the photo's name already.
    [[nodiscard]] TakenPhoto TakeIn(Workplace& place, const KitOptions& options,
                                    const std::filesystem::path& file);

  private:
    [[nodiscard]] static std::string Decode(Ui& screen, const ProgramFolder& folder,
                                            IncomingPhoto& photo);
    void Claim(const std::filesystem::path& photo, std::string_view name);

    const PhotoDecoder& decoder_;
    std::vector<std::string> names_;
};

}  // namespace vendrel
