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

// Nothing for 0 x 0 pixels; `sizeOf` answers the working size of a photo's size.
template <class SizeOf>
std::optional<Photo> ReadSized(const std::filesystem::path& file, TwipsPerPixel twips,
                               const SizeOf& sizeOf) {
    BitmapInput input(file);
    if (ReadHeaderSize(input) == BitmapSize{}) {
        return std::nullopt;
    }
    BitmapFile bitmap(std::move(input));
    Photo photo{bitmap.Size(), sizeOf(bitmap.Size()), {}, bitmap.HasOwnColors()};
    photo.Picture =
        ReadScaled(bitmap, photo.Working.Width / twips.X, photo.Working.Height / twips.Y);
    return photo;
}

}  // namespace

void RequireStipples(const std::filesystem::path& file, BitmapSize photo, const ScreenSize& screen,
                     int stippleSize) {
    if (!ComputeWorkingSize(photo, screen, stippleSize).HoldsStipples()) {
        throw FileError(file, "its shape of " + std::to_string(photo.Width) + " x " +
                                  std::to_string(photo.Height) +
                                  " pixels leaves no whole stipple. Choose a "
                                  "larger photo or crop it to a less extreme shape.");
    }
}

std::optional<Photo> ReadPhoto(const std::filesystem::path& file, const ScreenSize& screen,
                               int stippleSize) {
    return ReadSized(file, screen.Twips, [&](BitmapSize photo) {
        RequireStipples(file, photo, screen, stippleSize);
        return ComputeWorkingSize(photo, screen, stippleSize);
    });
}

std::optional<Photo> ReadPhotoInShape(const std::filesystem::path& file, const ScreenSize& screen,
                                      CellPos stipples, int stippleSize) {
    return ReadSized(file, screen.Twips, [&](BitmapSize photo) {
        WorkingSize size = ComputeWorkingSize(photo, screen, stippleSize);
        size.Width = stipples.X * stippleSize * screen.Twips.X;
        size.Height = stipples.Y * stippleSize * screen.Twips.Y;
        return size;
    });
}

// By the name alone: a copy in Pictures is the same photo.
void MentionColors(GivenWarnings& given, Ui& screen, const std::filesystem::path& bitmap) {
    WarnOnce(given, screen,
             bitmap.filename().string() +
                 ": its own description of its colors (a profile) is not used; they are "
                 "taken as sRGB. If they look wrong, convert the photo to sRGB in a picture "
                 "program.");
}

void ShowPhoto(Workplace& place, Photo photo) {
    WorkState& state = place.State;
    Surfaces& frames = place.Frames;
    if (photo.HasOwnColors) {
        MentionColors(state, place.Screen, state.PicturePath);
    }
    state.BmpWidth = photo.Bmp.Width;
    state.BmpHeight = photo.Bmp.Height;
    state.AspectWidth = photo.Working.AspectWidth;
    state.AspectHeight = photo.Working.AspectHeight;
    state.Landscape = photo.Working.Landscape;
    state.PictureWidth = photo.Working.Width;
    state.PictureHeight = photo.Working.Height;
    state.ShapedByGrid = false;
    frames.MainWindow = photo.Working.Window;
    frames.CaptureFrame.Picture = std::move(photo.Picture);
    RefreshPhotoImage(frames, place.Screen);
    frames.CaptureFrame.Visible = false;
    frames.WorkFrame.Visible = true;
    state.PictureLoaded = true;
    ResizePixelMap(state, frames.WorkFrame.Picture);
    place.Screen.SetCaption("Vendrel - " + state.PictureName);
}

void ReadBmpSize(LoadedPhoto& photo) {
    const BitmapSize size = ReadBitmapSize(photo.PicturePath);
    photo.BmpWidth = size.Width;
    photo.BmpHeight = size.Height;
}

PhotoLoad LoadNewPicture(Workplace& place) {
    std::optional<Photo> photo =
        ReadPhoto(place.State->PicturePath, place.Screen.Screen(), place.State->StippleSize);
    if (!photo) {
        ReadBmpSize(place.State);
        return PhotoLoad::Nothing;
    }
    ShowPhoto(place, std::move(*photo));
    return PhotoLoad::Loaded;
}

bool ChoosePhoto(LoadedPhoto& photo, const ProgramFolder& folder, std::string_view fileName) {
    photo.PictureFile = fileName;
    photo.PicturesFolder = folder.Path("Pictures").string() + "/";
    const std::string_view name = PictureNameOf(fileName);
    if (name.size() == fileName.size()) {
        return false;
    }
    photo.PicturePath = folder.Path("Pictures/" + photo.PictureFile).string();
    photo.PictureName = name;
    return true;
}

void RefreshPhotoImage(Surfaces& frames, Ui& screen) {
    frames.WorkFrame.Picture = frames.CaptureFrame.Picture;
    screen.RefreshWorkFrame();
}

}  // namespace vendrel
