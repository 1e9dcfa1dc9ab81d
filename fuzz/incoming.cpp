#include "convert/photo_decoder.h"
#include "fuzz/reader.h"
#include "intake/incoming_photo.h"

namespace vendrel::fuzz {

// A picture of one row is held twice while it is read.
const std::size_t kMemoryPerByte = sizeof(Color) * 256 * 2;

void Read(Bytes bytes) {
    const NoPhotoDecoder decoder;
    IncomingPhoto photo(FileWith("photo.bmp", TextOf(bytes)), decoder);
    const BitmapSize size = photo.Size();
    (void)photo.HasOwnColors();
    // What its size was told of is sound.
    const Surface picture = photo.Picture();
    Require(picture.Width() == size.Width && picture.Height() == size.Height, "another size");
}

}  // namespace vendrel::fuzz
