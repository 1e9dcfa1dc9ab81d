#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "convert/bitmap_header.h"
#include "convert/working_size.h"
#include "shell/workplace.h"
#include "support/cell_pos.h"
#include "support/surface.h"

namespace vendrel {

/// A photo read and scaled to its working size, not shown yet.
struct Photo {
    BitmapSize Bmp;  // pixels, of the file
    WorkingSize Working;
    Surface Picture;
    bool HasOwnColors = false;  // described in the file, but taken as sRGB
};

/// Whether a photo is there now; Nothing for a file whose header gives it 0 x 0 pixels.
enum class [[nodiscard]] PhotoLoad{Loaded, Nothing};

/// Throws FileError when a photo's shape leaves no whole stipple on the screen. Sides at least 1.
void RequireStipples(const std::filesystem::path& file, BitmapSize photo, const ScreenSize& screen,
                     int stippleSize);

/// Reads a photo for a screen and a stipple size, row by row. Nothing for 0 x 0 pixels. Throws
/// FileError or FormatError, also when no whole stipple fits its shape, and OverflowError.
[[nodiscard]] std::optional<Photo> ReadPhoto(const std::filesystem::path& file,
                                             const ScreenSize& screen, int stippleSize);

/// The same in the shape of a grid that was made elsewhere: `stipples` across and down, both at
/// least 1, whatever the photo's own working size is.
[[nodiscard]] std::optional<Photo> ReadPhotoInShape(const std::filesystem::path& file,
                                                    const ScreenSize& screen, CellPos stipples,
                                                    int stippleSize);

/// Warns once that a bitmap's own description of its colors is not used.
void MentionColors(GivenWarnings& given, Ui& screen, const std::filesystem::path& bitmap);

/// Puts a photo that was read into the work area and makes everything fit it.
void ShowPhoto(Workplace& place, Photo photo);

/// Reads `BmpWidth` and `BmpHeight` from the header of the file at `PicturePath`, signed.
void ReadBmpSize(LoadedPhoto& photo);

/// Reads and shows the photo at `PicturePath`. Throws as ReadPhoto, and nothing has changed then.
PhotoLoad LoadNewPicture(Workplace& place);

/// Sets `PictureFile`, `PicturesFolder`, `PicturePath` and `PictureName` for a photo of the
/// Pictures folder. False, with nothing but `PictureFile` and `PicturesFolder` set, without a "."
/// in its name.
[[nodiscard]] bool ChoosePhoto(LoadedPhoto& photo, const ProgramFolder& folder,
                               std::string_view fileName);

/// The photo as imported is on the work picture again, whatever was drawn there.
void RefreshPhotoImage(Surfaces& frames, Ui& screen);

}  // namespace vendrel
