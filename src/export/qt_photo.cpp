#include "export/qt_photo.h"

#include <QImageReader>
#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string_view>
#include <utility>

#include "export/counted_bytes.h"
#include "export/decoder_complaints.h"

namespace vendrel {
namespace {

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

std::size_t BytesPerPixel(QImage::Format format) {
    const bool known = format > QImage::Format_Invalid && format < QImage::NImageFormats;
    return known ? (QImage::toPixelFormat(format).bitsPerPixel() + 7U) / 8U : sizeof(QRgb);
}

std::size_t Area(BitmapSize size) {
    return static_cast<std::size_t>(size.Width) * static_cast<std::size_t>(size.Height);
}

class QtPhoto final : public PhotoSource {
  public:
    explicit QtPhoto(PhotoBytes file)
        : file_(file),
          format_(QtFormatOf(file)),
          device_(QByteArray::fromRawData(reinterpret_cast<const char*>(file.data()),
                                          std::ssize(file))),
          reader_(&device_, QByteArray::fromStdString(format_)) {
        reader_.setAutoDetectImageFormat(false);
        QImageReader::setAllocationLimit(0);  // memory is limited for all that a decoder does
        if (!QImageReader::supportedImageFormats().contains(reader_.format())) {
            throw Error("needs a decoder that is not installed (" + format_ +
                        "). Install qt6-image-formats-plugins, or save it as JPEG or PNG.");
        }
        size_ = StoredSize();
        turn_ = reader_.transformation() | TransformationFor(ChunkOrientation(file));
    }

    [[nodiscard]] BitmapSize Size() const override { return size_; }
    [[nodiscard]] QImageIOHandler::Transformations Turn() const override { return turn_; }

    [[nodiscard]] std::size_t MemoryFor(int divisor) const override {
        const std::size_t shrunk = Area({size_.Width / divisor, size_.Height / divisor});
        if (format_ == "jpeg") {
            return JpegCoefficientBytes(file_) + shrunk * sizeof(QRgb);
        }
        if (divisor > 1 && Shrinks()) {
            return shrunk * sizeof(QRgb);
        }
        const std::size_t depth = BytesPerPixel(reader_.imageFormat());
        if (format_ == "webp") {  // holds the file and the picture once more
            return Area(size_) * (depth + sizeof(QRgb)) + std::bit_ceil(file_.size());
        }
        const bool stripBeside = format_ == "tiff" && depth == sizeof(QRgb);
        return Area(size_) * (depth + (stripBeside ? sizeof(QRgb) : 0));
    }

    [[nodiscard]] QImage Read(int divisor, const ReadProgress& progress) override {
        if (IsCutShort(file_)) {
            ThrowDamaged();
        }
        if (divisor > 1 && Shrinks()) {
            reader_.setScaledSize(
                {std::max(1, size_.Width / divisor), std::max(1, size_.Height / divisor)});
        }
        device_.Report(progress);
        const DecoderComplaints complaints;
        QImage image = reader_.read();
        if (complaints.OutOfMemory()) {
            ThrowTooLargeForMemory();
        }
        if (image.isNull() || complaints.Damaged()) {
            ThrowDamaged();
        }
        return image;
    }

  private:
    // A bitmap whose rows are stored from the top is given a negative height.
    [[nodiscard]] BitmapSize StoredSize() {
        const DecoderComplaints silenced;
        const QSize size = reader_.size();
        if (size.width() < 1 || size.height() == 0 ||
            size.height() == std::numeric_limits<int>::min() ||
            (size.height() < 0 && format_ != "bmp")) {
            ThrowDamaged();
        }
        return {size.width(), std::abs(size.height())};
    }

    // While it reads, without ever holding the whole. The others would only do so afterwards.
    [[nodiscard]] bool Shrinks() const {
        const QImage::Format format = reader_.imageFormat();
        return format_ == "jpeg" ||
               (format_ == "png" && !IsInterlacedPng(file_) &&
                (format == QImage::Format_RGB32 || format == QImage::Format_ARGB32));
    }

    PhotoBytes file_;
    std::string format_;
    CountedBytes device_;
    QImageReader reader_;
    BitmapSize size_;
    QImageIOHandler::Transformations turn_;
};

}  // namespace

std::string QtFormatOf(PhotoBytes file) {
    using namespace std::string_view_literals;
    struct Beginning {
        std::string_view Bytes;
        const char* Format;
    };
    static constexpr std::array<Beginning, 8> kBeginnings = {{{"\xFF\xD8\xFF"sv, "jpeg"},
                                                              {"\x89PNG"sv, "png"},
                                                              {"GIF8"sv, "gif"},
                                                              {"II*\0"sv, "tiff"},
                                                              {"MM\0*"sv, "tiff"},
                                                              {"II+\0"sv, "tiff"},
                                                              {"MM\0+"sv, "tiff"},
                                                              {"BM"sv, "bmp"}}};
    const std::string_view lead(reinterpret_cast<const char*>(file.data()),
                                std::min<std::size_t>(file.size(), 12));
    if (lead.starts_with("RIFF") && lead.substr(8) == "WEBP") {
        return "webp";
    }
    const auto* const found = std::ranges::find_if(
        kBeginnings, [lead](const Beginning& start) { return lead.starts_with(start.Bytes); });
    return found == kBeginnings.end() ? "" : found->Format;
}

std::unique_ptr<PhotoSource> OpenQtPhoto(PhotoBytes file) {
    return std::make_unique<QtPhoto>(file);
}

}  // namespace vendrel
