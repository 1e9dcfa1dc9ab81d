#include "export/photo_reader.h"

#include <gmock/gmock.h>

#include <QColorSpace>
#include <QImage>
#include <QImageReader>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "export/encoded_photos.h"
#include "support/error.h"

namespace vendrel {
namespace {

using test::Encoded;
using ::testing::HasSubstr;

constexpr Color kRed = Rgb(255, 0, 0);

QRgb ColorOfLetter(char letter) {
    switch (letter) {
        case 'R':
            return qRgb(220, 30, 30);
        case 'G':
            return qRgb(30, 200, 30);
        case 'B':
            return qRgb(30, 30, 220);
        default:
            return qRgb(250, 250, 250);
    }
}

char LetterAt(const Surface& picture, int x, int y) {
    const Color seen = picture.Get(x, y);
    for (const char letter : {'R', 'G', 'B', 'W'}) {
        const QRgb color = ColorOfLetter(letter);
        if (std::abs(RedOf(seen) - qRed(color)) < 25 &&
            std::abs(GreenOf(seen) - qGreen(color)) < 25 &&
            std::abs(BlueOf(seen) - qBlue(color)) < 25) {
            return letter;
        }
    }
    return '?';
}

// Four fields of one colour each: "RGBW" has red and green on top, blue and white below.
QImage Quadrants(std::string_view letters, int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const std::size_t field = (y < height / 2 ? 0U : 2U) + (x < width / 2 ? 0U : 1U);
            image.setPixel(x, y, ColorOfLetter(letters[field]));
        }
    }
    return image;
}

std::string QuadrantsOf(const Surface& picture) {
    const int left = picture.Width() / 4;
    const int top = picture.Height() / 4;
    std::string letters;
    for (const int y : {top, 3 * top}) {
        for (const int x : {left, 3 * left}) {
            letters += LetterAt(picture, x, y);
        }
    }
    return letters;
}

std::string Number(std::size_t value, int bytes, bool bigEndian) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        const int shift = 8 * (bigEndian ? bytes - 1 - i : i);
        text += static_cast<char>((value >> shift) & 255);
    }
    return text;
}

std::uint32_t PngChecksum(std::string_view bytes) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<std::uint8_t>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum >> 1) ^ (sum % 2 == 1 ? 0xEDB88320 : 0);
        }
    }
    return ~sum;
}

// An EXIF block with one entry, the orientation.
std::string ExifBlock(int orientation, bool bigEndian) {
    const auto number = [bigEndian](int value, int bytes) {
        return Number(static_cast<std::size_t>(value), bytes, bigEndian);
    };
    return (bigEndian ? "MM" : "II") + number(42, 2) + number(8, 4) + number(1, 2) +
           number(0x0112, 2) + number(3, 2) + number(1, 4) + number(orientation, 2) + number(0, 2) +
           number(0, 4);
}

std::string WithExif(const std::string& file, std::string_view format, int orientation) {
    const std::string exif = ExifBlock(orientation, orientation % 2 == 0);
    if (format == "jpeg") {
        const std::string block = std::string("Exif\0\0", 6) + exif;
        return file.substr(0, 2) + "\xFF\xE1" + Number(block.size() + 2, 2, true) + block +
               file.substr(2);
    }
    if (format == "png") {
        constexpr std::size_t kBehindHeader = 8 + 25;
        const std::string chunk = "eXIf" + exif;
        return file.substr(0, kBehindHeader) + Number(exif.size(), 4, true) + chunk +
               Number(PngChecksum(chunk), 4, true) + file.substr(kBehindHeader);
    }
    const std::string chunks = file.substr(8) + "EXIF" + Number(exif.size(), 4, false) + exif;
    return "RIFF" + Number(chunks.size(), 4, false) + chunks;
}

// Two by one pixels, the left one red, the right one transparent, then a frame in blue.
std::string TwoFrameGif() {
    using namespace std::string_view_literals;
    return std::string(
        "GIF89a\x02\0\x01\0\x80\0\0\xFF\0\0\0\0\xFF"
        "!\xF9\x04\x01\0\0\x01\0,\0\0\0\0\x02\0\x01\0\0\x02\x02\x44\x0A\0"
        ",\0\0\0\0\x02\0\x01\0\0\x02\x02\x4C\x0A\0;"sv);
}

PhotoBytes BytesOf(const std::string& file) {
    return {reinterpret_cast<const std::uint8_t*>(file.data()), file.size()};
}

BitmapSize SizeOf(const std::string& file) {
    return PhotoReader(BytesOf(file)).Size();
}

Surface Decode(const std::string& file, const ReadProgress& progress = {}) {
    PhotoReader reader(BytesOf(file));
    const BitmapSize size = reader.PictureSize();
    Surface picture(size.Width, size.Height);
    reader.Read({picture.Row(0).data(), static_cast<std::size_t>(size.Width * size.Height)},
                progress);
    return picture;
}

// The sentence with which a file is refused.
std::string Refusal(const std::string& bytes) {
    try {
        static_cast<void>(Decode(bytes));
    } catch (const Error& error) {
        return error.what();
    }
    return "no complaint";
}

TEST(PhotoReader, ReadsEveryFormatByItsContent) {
    for (const char* format : {"jpeg", "png", "webp", "tiff", "bmp", "heic", "avif"}) {
        const Surface photo = Decode(Encoded(Quadrants("RGBW", 32, 16), format));
        EXPECT_EQ(photo.Width(), 32) << format;
        EXPECT_EQ(photo.Height(), 16) << format;
        EXPECT_EQ(QuadrantsOf(photo), "RGBW") << format;
    }
    const QList<QByteArray> readable =
        QImageReader::supportedImageFormats() + QList<QByteArray>{"avif", "heic", "heif"};
    for (const std::string_view ending : kPhotoEndings) {
        EXPECT_TRUE(readable.contains(QByteArrayView(ending.data(), std::ssize(ending)))) << ending;
    }
}

TEST(PhotoReader, ReadsTheFirstFrameOfAGif) {
    const Surface photo = Decode(TwoFrameGif());
    ASSERT_EQ(photo.Width(), 2);
    EXPECT_EQ(photo.Get(0, 0), kRed);
    EXPECT_EQ(photo.Get(1, 0), kWhite);
}

TEST(PhotoReader, TurnsPhotosUpright) {
    // What a camera stores for each orientation so that the photo shows "RGBW".
    const std::vector<std::string> stored = {"RGBW", "GRWB", "WBGR", "BWRG",
                                             "RBGW", "GWRB", "WGBR", "BRWG"};
    for (const char* format : {"jpeg", "png", "webp", "heic"}) {
        for (int orientation = 1; orientation <= 8; ++orientation) {
            SCOPED_TRACE(format + std::to_string(orientation));
            const bool lying = orientation >= 5;
            const QImage image = Quadrants(stored[static_cast<std::size_t>(orientation - 1)],
                                           lying ? 16 : 32, lying ? 32 : 16);
            // A telephone's file says it twice; once is meant.
            const std::string file =
                std::string_view(format) == "heic"
                    ? test::EncodedHeif(image, format,
                                        {.Orientation = static_cast<heif_orientation>(orientation),
                                         .Exif = ExifBlock(orientation, true)})
                    : WithExif(Encoded(image, format), format, orientation);
            const Surface photo = Decode(file);
            EXPECT_EQ(QuadrantsOf(photo), "RGBW");
            EXPECT_EQ(photo.Width(), 32);
            EXPECT_EQ(SizeOf(file), (BitmapSize{32, 16}));
        }
    }
}

TEST(PhotoReader, PutsTransparencyOnWhite) {
    QImage image(3, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(255, 0, 0, 255));
    image.setPixel(1, 0, qRgba(0, 0, 0, 128));
    image.setPixel(2, 0, qRgba(0, 0, 255, 0));
    for (const char* format : {"png", "tiff"}) {
        const Surface photo = Decode(Encoded(image, format));
        EXPECT_EQ(photo.Get(0, 0), kRed) << format;
        EXPECT_EQ(photo.Get(1, 0), Rgb(127, 127, 127)) << format;
        EXPECT_EQ(photo.Get(2, 0), kWhite) << format;
    }
}

TEST(PhotoReader, ReadsGreyPaletteAndSixteenBitPictures) {
    QImage image(1, 1, QImage::Format_RGB32);
    image.fill(qRgb(200, 200, 200));
    for (const auto format :
         {QImage::Format_Grayscale8, QImage::Format_Grayscale16, QImage::Format_Indexed8,
          QImage::Format_RGBX64, QImage::Format_RGBA64}) {
        EXPECT_EQ(Decode(Encoded(image.convertToFormat(format), "png")).Get(0, 0),
                  Rgb(200, 200, 200))
            << format;
    }
}

TEST(PhotoReader, BringsColorsToSrgb) {
    QImage image(1, 1, QImage::Format_RGB32);
    image.fill(qRgb(55, 55, 55));
    image.setColorSpace(QColorSpace(QColorSpace::SRgbLinear));
    for (const auto format :
         {QImage::Format_RGB32, QImage::Format_Indexed8, QImage::Format_RGBA64}) {
        EXPECT_EQ(Decode(Encoded(image.convertToFormat(format), "png")).Get(0, 0),
                  Rgb(128, 128, 128))
            << format;
    }
    image.fill(qRgb(100, 160, 90));
    image.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
    const Color wide = Decode(Encoded(image, "png")).Get(0, 0);
    EXPECT_LT(RedOf(wide), 75);  // greener and purer than the bare figures say
    EXPECT_GE(GreenOf(wide), 160);
    // sRGB in the words of many programs: nothing to do.
    image.fill(qRgb(55, 55, 55));
    image.setColorSpace(QColorSpace(QColorSpace::Primaries::SRgb, 2.2F));
    EXPECT_EQ(Decode(Encoded(image, "png")).Get(0, 0), Rgb(55, 55, 55));
}

TEST(PhotoReader, BringsTheColorsOfTelephonesToSrgb) {
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(qRgb(100, 160, 90));
    const std::string profile = QColorSpace(QColorSpace::DisplayP3).iccProfile().toStdString();
    using Curve = QColorSpace::TransferFunction;
    const std::vector<std::pair<test::HeifNotes, QColorSpace>> cases = {
        {{}, QColorSpace(QColorSpace::SRgb)},
        {{.Profile = profile}, QColorSpace(QColorSpace::DisplayP3)},
        {{.Primaries = 12}, QColorSpace(QColorSpace::DisplayP3)},
        {{.Primaries = 12, .Bits = 10}, QColorSpace(QColorSpace::DisplayP3)},
        {{.Curve = 8}, QColorSpace(QColorSpace::Primaries::SRgb, Curve::Linear)}};
    for (const auto& [notes, space] : cases) {
        const Color seen =
            Decode(test::EncodedHeif(image, notes.Bits > 8 ? "heic" : "avif", notes)).Get(9, 9);
        const QRgb meant =
            space.transformationToColorSpace(QColorSpace(QColorSpace::SRgb)).map(image.pixel(9, 9));
        EXPECT_NEAR(RedOf(seen), qRed(meant), 2) << notes.Primaries << notes.Curve;
        EXPECT_NEAR(GreenOf(seen), qGreen(meant), 2) << notes.Primaries << notes.Curve;
        EXPECT_NEAR(BlueOf(seen), qBlue(meant), 2) << notes.Primaries << notes.Curve;
    }
}

TEST(PhotoReader, ReadsLargePhotosSmaller) {
    const QImage wide = Quadrants("RGBW", 4102, 64);
    for (const std::string& file :
         {Encoded(wide, "jpeg"), Encoded(wide, "png"), Encoded(wide, "heic"), Encoded(wide, "tiff"),
          Encoded(wide.convertToFormat(QImage::Format_Indexed8), "png"),
          test::EncodedHeif(wide, "heic", {.Bits = 10})}) {
        const Surface photo = Decode(file);
        EXPECT_EQ(photo.Width(), 2051);
        EXPECT_EQ(photo.Height(), 32);
        EXPECT_EQ(QuadrantsOf(photo), "RGBW");
        EXPECT_EQ(SizeOf(file), (BitmapSize{4102, 64}));
    }
    EXPECT_EQ(Decode(Encoded(Quadrants("RGBW", 4096, 16), "jpeg")).Width(), 4096);
}

TEST(PhotoReader, ReportsProgress) {
    std::vector<int> seen;
    static_cast<void>(Decode(Encoded(Quadrants("RGBW", 64, 64), "png"),
                             [&seen](int percent) { seen.push_back(percent); }));
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
    EXPECT_EQ(seen.back(), 100);
}

TEST(PhotoReader, RefusesPhotosThatAreCutShort) {
    std::mt19937 random(1);
    QImage noise(64, 64, QImage::Format_RGB32);
    for (int i = 0; i < 64 * 64; ++i) {
        noise.setPixel(i % 64, i / 64, static_cast<QRgb>(random()) | 0xFF000000U);
    }
    for (const char* format : {"jpeg", "png", "webp", "tiff", "bmp", "gif", "heic", "avif"}) {
        const std::string whole = Encoded(noise, format);
        EXPECT_EQ(Refusal(whole), "no complaint") << format;
        for (const std::size_t length :
             {std::size_t{18}, std::size_t{40}, std::size_t{400}, whole.size() / 6,
              whole.size() / 2, whole.size() * 5 / 6}) {
            EXPECT_THAT(Refusal(whole.substr(0, length)), HasSubstr("is damaged or cut short"))
                << format << length;
        }
    }
}

TEST(PhotoReader, RefusesAJpegThatIsDamagedInItsMiddle) {
    std::string jpeg = Encoded(Quadrants("RGBW", 320, 240), "jpeg");
    std::fill_n(jpeg.begin() + static_cast<std::ptrdiff_t>(jpeg.size() / 2), 300, '\0');
    EXPECT_THAT(Refusal(jpeg), HasSubstr("is damaged"));
}

TEST(PhotoReader, ReadsBitmapsStoredFromTheTop) {
    std::string bitmap = Encoded(Quadrants("RGBW", 16, 8), "bmp");
    bitmap.replace(22, 4, Number(static_cast<std::uint32_t>(-8), 4, false));
    EXPECT_EQ(SizeOf(bitmap), (BitmapSize{16, 8}));
    EXPECT_EQ(QuadrantsOf(Decode(bitmap)), "BWRG");
}

TEST(PhotoReader, AcceptsWhatTelephonesPutBehindThePicture) {
    const std::string jpeg = Encoded(Quadrants("RGBW", 32, 16), "jpeg");
    EXPECT_EQ(QuadrantsOf(Decode(jpeg + "a film of the moment before")), "RGBW");
}

TEST(PhotoReader, RefusesWhatIsNoPhoto) {
    for (const std::string& bytes :
         {std::string(), std::string("A letter to my aunt"), std::string(4000, '\0'),
          std::string("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>")}) {
        EXPECT_THAT(Refusal(bytes), HasSubstr("save it as JPEG or PNG")) << bytes;
    }
}

TEST(PhotoReader, RefusesPhotosTooLargeForMemory) {
    std::string bitmap = Encoded(Quadrants("RGBW", 4, 4), "bmp");
    bitmap.replace(18, 8, Number(12000, 4, false) + Number(12000, 4, false));
    EXPECT_THAT(Refusal(bitmap), HasSubstr("too large: 12000 x 12000 pixels"));
    // What is shrunk while it is read may be larger, unless it comes in several passes.
    const std::string sides = Number(16000, 2, true) + Number(16000, 2, true);
    std::string jpeg = Encoded(Quadrants("RGBW", 16, 16), "jpeg");
    const std::size_t frame = jpeg.find("\xFF\xC0");
    jpeg.replace(frame + 5, 4, sides);
    EXPECT_EQ(SizeOf(jpeg), (BitmapSize{16000, 16000}));
    jpeg[frame + 1] = '\xC2';
    EXPECT_THAT(Refusal(jpeg), HasSubstr("too large: 16000 x 16000 pixels"));
}

}  // namespace
}  // namespace vendrel
