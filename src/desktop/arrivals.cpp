#include "desktop/arrivals.h"

#include <QImage>
#include <QUrl>

#include "export/qt_image.h"

namespace vendrel {
namespace {

QString FileIn(const QMimeData& data) {
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) {
            return url.toLocalFile();
        }
    }
    return {};
}

}  // namespace

bool MayBePhoto(const QMimeData& data) {
    return data.hasImage() || !FileIn(data).isEmpty();
}

Arrival ArrivalOf(const QMimeData& data) {
    Arrival arrival{FileIn(data), {}};
    if (arrival.File.isEmpty() && data.hasImage()) {
        const auto image = qvariant_cast<QImage>(data.imageData());
        if (!image.isNull()) {
            arrival.Picture = ToSurface(image);
        }
    }
    return arrival;
}

}  // namespace vendrel
