#include "desktop/surface_image.h"

#include <algorithm>

namespace vendrel {

QImage ToImage(const Surface& surface) {
    QImage image(surface.Width(), surface.Height(), QImage::Format_RGB32);
    for (int y = 0; y < surface.Height(); ++y) {
        const auto row = surface.Row(y);
        std::transform(row.begin(), row.end(), reinterpret_cast<QRgb*>(image.scanLine(y)),
                       [](Color c) { return qRgb(RedOf(c), GreenOf(c), BlueOf(c)); });
    }
    return image;
}

Surface ToSurface(const QImage& image) {
    const QImage colors = image.convertToFormat(QImage::Format_RGB32);
    Surface surface(colors.width(), colors.height());
    for (int y = 0; y < colors.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(colors.constScanLine(y));
        std::transform(line, line + colors.width(), surface.Row(y).begin(),
                       [](QRgb c) { return Rgb(qRed(c), qGreen(c), qBlue(c)); });
    }
    return surface;
}

}  // namespace vendrel
