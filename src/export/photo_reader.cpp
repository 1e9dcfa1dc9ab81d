#include "export/photo_reader.h"

#include <QImageReader>
#include <QTransform>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <future>
#include <string_view>
#include <utility>

#include "convert/bitmap_input.h"
#include "export/counted_bytes.h"
#include "export/decoder_complaints.h"
#include "export/photo_structure.h"
#include "export/qt_image.h"
#include "support/error.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// Other things the toolkit could read (icons, drawings) are no photos, and some need a display.
constexpr std::array<std::string_view, 8> kEndings = {"bmp", "gif", "jpeg", "jpg",
                                                      "png", "tif", "tiff", "webp"};
constexpr std::uint64_t kMaxFileBytes = std::uint64_t{1} << 30;
// Decoders that shrink while they read hold little more than the result; the others hold all.
constexpr qint64 kMaxShrinkablePixels = 300'000'000;
constexpr qint64 kMaxPixels = 100'000'000;
constexpr int kAllocationLimit = 1024;  // MiB, 100 megapixels of 8 bytes with room to spare

// Not by the toolkit, which takes no names from old disks that are no valid UTF-8.
QByteArray ReadBytes(const fs::path& photo) {
    BitmapInput file(photo);
    if (file.Size() > kMaxFileBytes) {
        throw FormatError(photo, 0, "is larger than 1 GB. Save the photo as JPEG.");
    }
    QByteArray bytes(static_cast<qsizetype>(file.Size()), Qt::Uninitialized);
    file.Read({reinterpret_cast<std::uint8_t*>(bytes.data()), file.Size()});
    return bytes;
}

PhotoBytes BytesOf(const QByteArray& bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.constData()),
            static_cast<std::size_t>(bytes.size())};
}

// How a stored picture is brought upright: mirrored, flipped, then turned a quarter clockwise.
QImageIOHandler::Transformations TransformationFor(int exifOrientation) {
    using Handler = QImageIOHandler;
    static constexpr std::array<Handler::Transformation, 9> kTransformations = {
        Handler::TransformationNone,     Handler::TransformationNone,
        Handler::TransformationMirror,   Handler::TransformationRotate180,
        Handler::TransformationFlip,     Handler::TransformationFlipAndRotate90,
        Handler::TransformationRotate90, Handler::TransformationMirrorAndRotate90,
        Handler::TransformationRotate270};
    return kTransformations[static_cast<std::size_t>(exifOrientation)];
}

QImage Upright(QImage image, QImageIOHandler::Transformations transformation) {
    const bool mirror = transformation.testFlag(QImageIOHandler::TransformationMirror);
    const bool flip = transformation.testFlag(QImageIOHandler::TransformationFlip);
    if (mirror || flip) {
        image = std::move(image).mirrored(mirror, flip);
    }
    if (transformation.testFlag(QImageIOHandler::TransformationRotate90)) {
        image = image.transformed(QTransform().rotate(90));
    }
    return image;
}

std::string Listed(const std::vector<std::string>& endings) {
    std::string list;
    for (const std::string& ending : endings) {
        list += (list.empty() ? "" : ", ") + ending;
    }
    return list;
}

// One photo file opened for reading: its bytes, and a decoder chosen by their content.
class OpenPhoto {
  public:
    OpenPhoto(fs::path file, const std::vector<std::string>& endings)
        : file_(std::move(file)), bytes_(ReadBytes(file_)), device_(bytes_), reader_(&device_) {
        reader_.setDecideFormatFromContent(true);
        const bool known = reader_.canRead() && std::ranges::count(endings, Format()) != 0;
        if (!known) {
            throw FormatError(file_, 0,
                              "is no photo in a format that can be read here (" + Listed(endings) +
                                  "). Open it in a photo program and save it as JPEG or PNG.");
        }
        transformation_ =
            reader_.transformation() | TransformationFor(ChunkOrientation(BytesOf(bytes_)));
        CheckSize();
    }

    [[nodiscard]] BitmapSize UprightSize() const {
        const QSize size = StoredSize();
        if (transformation_.testFlag(QImageIOHandler::TransformationRotate90)) {
            return {size.height(), size.width()};
        }
        return {size.width(), size.height()};
    }

    [[nodiscard]] Surface Decode(const ReadProgress& progress) {
        if (IsCutShort(BytesOf(bytes_))) {
            ThrowBroken();
        }
        ShrinkLargePhoto();
        const DecoderComplaints complaints;
        QImage image = progress ? ReadWatched(progress) : reader_.read();
        if (image.isNull() || complaints.Damaged()) {
            ThrowBroken();
        }
        return ToSurface(Upright(std::move(image), transformation_));
    }

  private:
    // The decoder that was chosen, or "" when it refuses the file at second sight.
    [[nodiscard]] std::string Format() const { return reader_.format().toStdString(); }

    // A bitmap whose rows are stored from the top is given a negative height.
    [[nodiscard]] QSize StoredSize() const {
        const QSize size = reader_.size();
        return {std::abs(size.width()), std::abs(size.height())};
    }

    // Only a JPEG decoder never holds the whole.
    [[nodiscard]] qint64 MostPixels() const {
        if (Format() == "jpeg" || Format() == "jpg") {
            return kMaxShrinkablePixels;
        }
        const qint64 pixelBytes =
            std::max(4, QImage::toPixelFormat(reader_.imageFormat()).bitsPerPixel() / 8);
        const bool shrinks = reader_.supportsOption(QImageIOHandler::ScaledSize);
        return std::min(shrinks ? kMaxShrinkablePixels : kMaxPixels,
                        (qint64{kAllocationLimit} << 20) / pixelBytes);
    }

    void CheckSize() const {
        const QSize size = StoredSize();
        if (size.isEmpty()) {
            ThrowBroken();
        }
        const qint64 limit = MostPixels();
        if (qint64{size.width()} * size.height() > limit) {
            throw FormatError(file_, 0,
                              "is too large: " + std::to_string(size.width()) + " x " +
                                  std::to_string(size.height()) + " pixels, at most " +
                                  std::to_string(limit / 1'000'000) +
                                  " million can be read. Save it smaller.");
        }
    }

    [[noreturn]] void ThrowBroken() const {
        throw FormatError(file_, 0,
                          "is damaged or cut short, so that the picture cannot be read. Copy the "
                          "photo again from where it came from, or choose another one.");
    }

    // By powers of two: a JPEG decoder does those while it reads, without ever holding the whole.
    void ShrinkLargePhoto() {
        QImageReader::setAllocationLimit(kAllocationLimit);
        const QSize size = StoredSize();
        int divisor = 1;
        while (std::max(size.width(), size.height()) / divisor > kMaxPhotoSide) {
            divisor *= 2;
        }
        if (divisor > 1) {
            reader_.setScaledSize(
                {std::max(1, size.width() / divisor), std::max(1, size.height() / divisor)});
        }
    }

    // Decoders have no way to report how far they are, but the bytes they took tell.
    QImage ReadWatched(const ReadProgress& progress) {
        struct CancelAtEnd {
            CountedBytes& Device;
            ~CancelAtEnd() { Device.Cancel(); }
        };
        auto reading = std::async(std::launch::async, [this] { return reader_.read(); });
        // A progress function that throws leaves here: the decoder must not read on to the end.
        const CancelAtEnd cancel{device_};
        while (reading.wait_for(std::chrono::milliseconds(50)) != std::future_status::ready) {
            progress(device_.Percent());
        }
        progress(100);
        return reading.get();
    }

    fs::path file_;
    QByteArray bytes_;
    CountedBytes device_;
    QImageReader reader_;
    QImageIOHandler::Transformations transformation_;
};

}  // namespace

std::vector<std::string> PhotoReader::Endings() const {
    const QList<QByteArray> supported = QImageReader::supportedImageFormats();
    std::vector<std::string> endings;
    for (const std::string_view ending : kEndings) {
        if (supported.contains(QByteArrayView(ending.data(), std::ssize(ending)))) {
            endings.emplace_back(ending);
        }
    }
    return endings;
}

BitmapSize PhotoReader::Size(const fs::path& photo) const {
    return OpenPhoto(photo, Endings()).UprightSize();
}

Surface PhotoReader::Decode(const fs::path& photo, const ReadProgress& progress) const {
    return OpenPhoto(photo, Endings()).Decode(progress);
}

}  // namespace vendrel
