#include "convert/photo_import.h"

#include <string>
#include <utility>

#include "convert/bitmap_reader.h"
#include "convert/picture_name.h"
#include "convert/scaling.h"
#include "convert/settings.h"
#include "shell/warnings.h"
#include "support/error.h"

namespace vendrel {
namespace {

Surface ReadScaled(BitmapFile& file, int width, int height) {
    const BitmapSize from = file.Size();
    RowScaler scaler({from.Width, from.Height, width, height}, RowOrder::BottomUp);
    file.ReadRows([&scaler](int /*y*/, std::span<const Color> row) { scaler.Push(row); });
    return scaler.Take();
}

}  // namespace

void RequireStipples(const std::filesystem::path& file, BitmapSize photo, const ScreenSize& screen,
                     int stippleSize) {
    if (!ComputeWorkingSize(photo, screen, stippleSize).HoldsStipples()) {
        throw FileError(file, "its shape of " + std::to_string(photo.Width) + " x " +
                                  std::to_string(photo.Height) +
                                  " pixels leaves no whole stipple on this screen. Choose a "
                                  "larger photo or crop it to a less extreme shape.");
    }
}

std::optional<Photo> ReadPhoto(const std::filesystem::path& file, const ScreenSize& screen,
                               int stippleSize, PhotoFit fit) {
    BitmapInput input(file);
    if (ReadHeaderSize(input) == BitmapSize{}) {
        return std::nullopt;
    }
    BitmapFile bitmap(std::move(input));
    Photo photo{bitmap.Size(),
                ComputeFittedSize(bitmap.Size(), screen, stippleSize, fit),
                {},
                bitmap.HasOwnColors()};
    RequireStipples(file, photo.Bmp, screen, stippleSize);
    const BitmapSize pixels = photo.Working.Pixels(screen.Twips);
    photo.Picture = ReadScaled(bitmap, pixels.Width, pixels.Height);
    return photo;
}

// By the name alone: a copy in Pictures is the same photo.
void MentionColors(const Workplace& place, const std::filesystem::path& bitmap) {
    WarnOnce(place, bitmap.filename().string() +
                        ": its own description of its colors (a profile) is not used; they are "
                        "taken as sRGB. If they look wrong, convert the photo to sRGB in a picture "
                        "program.");
}

void ShowPhoto(Workplace& place, Photo photo) {
    WorkState& state = place.State;
    if (photo.HasOwnColors) {
        MentionColors(place, state.PicturePath);
    }
    state.BmpWidth = photo.Bmp.Width;
    state.BmpHeight = photo.Bmp.Height;
    state.AspectWidth = photo.Working.AspectWidth;
    state.AspectHeight = photo.Working.AspectHeight;
    state.Landscape = photo.Working.Landscape;
    state.PictureWidth = photo.Working.Width;
    state.PictureHeight = photo.Working.Height;
    place.Frames.MainWindow = photo.Working.Window;
    place.Frames.CaptureFrame.Picture = std::move(photo.Picture);
    RefreshPhotoImage(place);
    place.Frames.CaptureFrame.Visible = false;
    place.Frames.WorkFrame.Visible = true;
    state.PictureLoaded = true;
    ResizePixelMap(place);
    place.Screen.SetCaption("Vendrel - " + state.PictureName);
}

void ReadBmpSize(Workplace& place) {
    const BitmapSize size = ReadBitmapSize(place.State.PicturePath);
    place.State.BmpWidth = size.Width;
    place.State.BmpHeight = size.Height;
}

PhotoLoad LoadNewPicture(Workplace& place) {
    std::optional<Photo> photo = ReadPhoto(place.State.PicturePath, place.Screen.Screen(),
                                           place.State.StippleSize, place.State.Chosen.Fit);
    if (!photo) {
        ReadBmpSize(place);
        return PhotoLoad::Nothing;
    }
    ShowPhoto(place, std::move(*photo));
    return PhotoLoad::Loaded;
}

bool ChoosePhoto(Workplace& place, std::string_view fileName) {
    WorkState& state = place.State;
    state.PictureFile = fileName;
    state.PicturesFolder = place.Folder.Path("Pictures").string() + "/";
    const std::string_view name = PictureNameOf(fileName);
    if (name.size() == fileName.size()) {
        return false;
    }
    state.PicturePath = place.Folder.Path("Pictures/" + state.PictureFile).string();
    state.PictureName = name;
    return true;
}

void RefreshPhotoImage(Workplace& place) {
    place.Frames.WorkFrame.Picture = place.Frames.CaptureFrame.Picture;
    place.Screen.RefreshWorkFrame();
}

}  // namespace vendrel
