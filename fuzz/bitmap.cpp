#include "convert/bitmap_reader.h"
#include "fuzz/reader.h"

namespace vendrel::fuzz {

// Two bytes of run lengths stand for 255 pixels, half of which may be left out.
const std::size_t kMemoryPerByte = sizeof(Color) * 256;

void Read(Bytes bytes) {
    const auto file = FileWith("photo.bmp", TextOf(bytes));
    const BitmapSize claimed = ReadBitmapSize(file);
    BitmapFile bitmap(file);
    const Surface picture = bitmap.Picture();
    Require(bitmap.Size() == claimed && picture.Width() == claimed.Width &&
                picture.Height() == claimed.Height,
            "the picture has another size than its header");
}

}  // namespace vendrel::fuzz
