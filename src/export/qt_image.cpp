#include "export/qt_image.h"

#include <QColorSpace>
#include <QColorTransform>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <span>
#include <utility>

namespace vendrel {
namespace {

bool IsNear(QRgb a, QRgb b) {
    constexpr int kRounding = 2;
    return std::abs(qRed(a) - qRed(b)) <= kRounding &&
           std::abs(qGreen(a) - qGreen(b)) <= kRounding &&
           std::abs(qBlue(a) - qBlue(b)) <= kRounding;
}

// Primaries written down with five digits are not recognized as sRGB's, but behave like them. Asked
// with muted colors: full ones of a wider space are cut off at sRGB's own and look the same.
bool HasSrgbPrimaries(const QColorSpace& space) {
    const QColorTransform toSrgb = space.withTransferFunction(QColorSpace::TransferFunction::SRgb)
                                       .transformationToColorSpace(QColorSpace(QColorSpace::SRgb));
    constexpr std::array<QRgb, 4> kMuted = {qRgb(200, 100, 100), qRgb(100, 200, 100),
                                            qRgb(100, 100, 200), qRgb(255, 255, 255)};
    return std::ranges::all_of(kMuted,
                               [&toSrgb](QRgb color) { return IsNear(toSrgb.map(color), color); });
}

// Many programs note sRGB as "gamma 2.2, sRGB primaries". Taking that at its word would shift the
// dark tones of a picture that is plain sRGB.
bool IsAsGoodAsSrgb(const QColorSpace& space) {
    if (space == QColorSpace(QColorSpace::SRgb)) {
        return true;
    }
    return space.transferFunction() == QColorSpace::TransferFunction::Gamma &&
           std::abs(space.gamma() - 2.2F) < 0.05F && HasSrgbPrimaries(space);
}

QImage::Format PlainFormat(const QImage& image) {
    return image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32;
}

QImage InSrgb(QImage image) {
    const QColorSpace space = image.colorSpace();
    if (!space.isValid() || IsAsGoodAsSrgb(space)) {
        return image;
    }
    const bool deepColor = image.depth() >= 32;  // grey and palettes cannot hold the result
    if (!deepColor) {
        image.convertTo(PlainFormat(image));
    }
    image.convertToColorSpace(QColorSpace(QColorSpace::SRgb));
    return image;
}

int OnWhite(int channel, int alpha) {
    return (channel * alpha + 255 * (255 - alpha) + 127) / 255;
}

Color OpaqueColor(QRgb pixel) {
    return Rgb(qRed(pixel), qGreen(pixel), qBlue(pixel));
}

Color ColorOnWhite(QRgb pixel) {
    const int alpha = qAlpha(pixel);
    return Rgb(OnWhite(qRed(pixel), alpha), OnWhite(qGreen(pixel), alpha),
               OnWhite(qBlue(pixel), alpha));
}

}  // namespace

Surface ToSurface(QImage image) {
    image = InSrgb(std::move(image));
    image.convertTo(PlainFormat(image));
    const bool transparent = image.hasAlphaChannel();
    Surface surface(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        const auto* const from = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        std::ranges::transform(from, from + image.width(), surface.Row(y).begin(),
                               transparent ? ColorOnWhite : OpaqueColor);
    }
    return surface;
}

QImage ToImage(const Surface& surface) {
    QImage image(surface.Width(), surface.Height(), QImage::Format_RGB32);
    for (int y = 0; y < surface.Height(); ++y) {
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (const Color from : surface.Row(y)) {
            *to++ = qRgb(RedOf(from), GreenOf(from), BlueOf(from));
        }
    }
    return image;
}

}  // namespace vendrel
