#include <gmock/gmock.h>

#include <algorithm>

#include "convert/child_decoder.h"
#include "export/encoded_photos.h"
#include "support/error.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

using test::Encoded;
using testing::HasSubstr;

class StudioDecoder : public ::testing::Test {
  protected:
    [[nodiscard]] std::string Refusal(const std::string& bytes) const {
        try {
            static_cast<void>(decoder_.Decode(files_.Write("photo.any", bytes), {}));
        } catch (const FormatError& error) {
            return error.what();
        }
        return "no complaint";
    }

    test::TempFolder files_;
    ChildDecoder decoder_{VENDREL_STUDIO};
};

TEST_F(StudioDecoder, ReadsPhotosInAnotherProcess) {
    QImage image(40, 24, QImage::Format_RGB32);
    image.fill(qRgb(10, 200, 90));
    image.setPixel(39, 1, qRgb(250, 0, 0));
    const auto file = files_.Write("photo.png", Encoded(image, "png"));
    EXPECT_EQ(decoder_.Size(file), (BitmapSize{40, 24}));
    std::vector<int> seen;
    const Surface photo = decoder_.Decode(file, [&seen](int percent) { seen.push_back(percent); });
    EXPECT_EQ(photo.Get(39, 1), Rgb(250, 0, 0));
    EXPECT_EQ(photo.Get(38, 1), Rgb(10, 200, 90));
    EXPECT_EQ(seen.back(), 100);
    // Another photo in the same place.
    files_.Write("photo.png", Encoded(image.copy(0, 0, 7, 5), "png"));
    EXPECT_EQ(decoder_.Size(file), (BitmapSize{7, 5}));
}

TEST_F(StudioDecoder, NamesThePhotoThatItRefuses) {
    QImage image(640, 480, QImage::Format_RGB32);
    image.fill(qRgb(10, 200, 90));
    for (const char* format : {"jpeg", "png", "gif", "tiff", "webp", "bmp", "heic", "avif"}) {
        const std::string whole = Encoded(image, format);
        const std::string cut = whole.substr(0, std::min<std::size_t>(200, whole.size() / 2));
        EXPECT_THAT(Refusal(cut), HasSubstr("photo.any: is damaged or cut short")) << format;
    }
    EXPECT_THAT(Refusal("A letter to my aunt"), HasSubstr("photo.any: is no photo"));
}

}  // namespace
}  // namespace vendrel
