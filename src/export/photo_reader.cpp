#include "export/photo_reader.h"

#include <QColorSpace>
#include <algorithm>
#include <utility>

#include "convert/decoding_limits.h"
#include "export/heif_photo.h"
#include "export/qt_image.h"
#include "export/qt_photo.h"

namespace vendrel {
namespace {

// What the libraries and a decoder's tables take stays free.
constexpr std::size_t kMemory = (kDecodingMegabytes - 48) << 20;
constexpr std::size_t kMaxPixels = 300'000'000;  // those that shrink have to be read as well

std::string Listed() {
    std::string list;
    for (const std::string_view ending : kPhotoEndings) {
        list += (list.empty() ? "" : ", ") + std::string(ending);
    }
    return list;
}

std::unique_ptr<PhotoSource> Open(PhotoBytes file) {
    if (!QtFormatOf(file).empty()) {
        return OpenQtPhoto(file);
    }
    if (IsHeif(file)) {
        return OpenHeifPhoto(file);
    }
    throw Error("is no photo in a format that can be read here (" + Listed() +
                "). Open it in a photo program and save it as JPEG or PNG.");
}

// Where the pixels of a stored picture lie in the upright one.
class UprightOrder {
  public:
    UprightOrder(BitmapSize stored, QImageIOHandler::Transformations turn)
        : origin_(IndexOf(stored, turn, 0, 0)),
          stepX_(IndexOf(stored, turn, 1, 0) - origin_),
          stepY_(IndexOf(stored, turn, 0, 1) - origin_) {}

    /// Where the first pixel of row y goes.
    [[nodiscard]] std::ptrdiff_t Row(int y) const { return origin_ + stepY_ * y; }
    /// From there to the next one.
    [[nodiscard]] std::ptrdiff_t Step() const { return stepX_; }

  private:
    static std::ptrdiff_t IndexOf(BitmapSize stored, QImageIOHandler::Transformations turn, int x,
                                  int y) {
        using Handler = QImageIOHandler;
        x = turn.testFlag(Handler::TransformationMirror) ? stored.Width - 1 - x : x;
        y = turn.testFlag(Handler::TransformationFlip) ? stored.Height - 1 - y : y;
        return turn.testFlag(Handler::TransformationRotate90)
                   ? std::ptrdiff_t{x} * stored.Height + stored.Height - 1 - y
                   : std::ptrdiff_t{y} * stored.Width + x;
    }

    std::ptrdiff_t origin_;
    std::ptrdiff_t stepX_;
    std::ptrdiff_t stepY_;
};

// Rows of a picture, without a copy.
QImage Strip(const QImage& image, int top, int rows) {
    QImage strip(image.constScanLine(top), image.width(), std::min(rows, image.height() - top),
                 image.bytesPerLine(), image.format());
    strip.setColorTable(image.colorTable());
    strip.setColorSpace(image.colorSpace());
    return strip;
}

Color MeanOf(const Surface& picture, int left, int top, int side) {
    int red = 0;
    int green = 0;
    int blue = 0;
    for (int y = top; y < top + side; ++y) {
        for (const Color color : picture.Row(y).From(left).First(side)) {
            red += RedOf(color);
            green += GreenOf(color);
            blue += BlueOf(color);
        }
    }
    const int count = side * side;
    return Rgb((red + count / 2) / count, (green + count / 2) / count, (blue + count / 2) / count);
}

void PlaceRow(RowView<const Color> row, Color* to, std::ptrdiff_t step) {
    for (const Color color : row) {
        *to = color;
        to += step;
    }
}

// Strip by strip: a second whole copy of a large picture in other colors would not fit.
void Deliver(const QImage& image, int divisor, BitmapSize size, const UprightOrder& order,
             std::span<Color> pixels) {
    constexpr int kStripRows = 64;
    const int rows = std::max(1, kStripRows / divisor);
    for (int first = 0; first < size.Height; first += rows) {
        const Surface strip = ToSurface(Strip(image, first * divisor, rows * divisor));
        const int last = std::min(first + rows, size.Height);
        for (int y = first; y < last; ++y) {
            Color* const to = pixels.data() + order.Row(y);
            if (divisor == 1) {
                PlaceRow(strip.Row(y - first), to, order.Step());
                continue;
            }
            for (int x = 0; x < size.Width; ++x) {
                to[order.Step() * x] = MeanOf(strip, x * divisor, (y - first) * divisor, divisor);
            }
        }
    }
}

}  // namespace

PhotoReader::PhotoReader(PhotoBytes file) : source_(Open(file)) {
    const BitmapSize size = source_->Size();
    while (std::max(size.Width, size.Height) / divisor_ > kMaxPhotoSide) {
        divisor_ *= 2;
    }
    RequireMemory();
}

void PhotoReader::RequireMemory() const {
    const BitmapSize size = source_->Size();
    const std::size_t pixels =
        static_cast<std::size_t>(size.Width) * static_cast<std::size_t>(size.Height);
    const std::size_t memory = source_->MemoryFor(divisor_);
    if (memory <= kMemory && pixels <= kMaxPixels) {
        return;
    }
    const double share =
        static_cast<double>(kMemory) / static_cast<double>(std::max(memory, kMemory));
    const auto most = static_cast<std::size_t>(static_cast<double>(pixels) * share);
    throw Error("is too large: " + std::to_string(size.Width) + " x " +
                std::to_string(size.Height) + " pixels, at most " +
                std::to_string(std::min(most, kMaxPixels) / 1'000'000) +
                " million of this kind can be read. Save it smaller.");
}

BitmapSize PhotoReader::AsTurned(int divisor) const {
    const BitmapSize stored = source_->Size();
    const BitmapSize size{std::max(1, stored.Width / divisor),
                          std::max(1, stored.Height / divisor)};
    const bool lying = source_->Turn().testFlag(QImageIOHandler::TransformationRotate90);
    return lying ? BitmapSize{size.Height, size.Width} : size;
}

BitmapSize PhotoReader::Size() const {
    return AsTurned(1);
}

BitmapSize PhotoReader::PictureSize() const {
    return AsTurned(divisor_);
}

void PhotoReader::Read(std::span<Color> pixels, const ReadProgress& progress) {
    const QImage image = source_->Read(divisor_, progress);
    const BitmapSize stored = source_->Size();
    const BitmapSize size{std::max(1, stored.Width / divisor_),
                          std::max(1, stored.Height / divisor_)};
    const bool shrunk = image.size() == QSize(size.Width, size.Height);
    if (!shrunk && image.size() != QSize(stored.Width, stored.Height)) {
        ThrowDamaged();
    }
    Deliver(image, shrunk ? 1 : divisor_, size, UprightOrder(size, source_->Turn()), pixels);
}

}  // namespace vendrel
