#pragma once

#include <QMimeData>
#include <QString>

#include "support/surface.h"

namespace vendrel {

/// What is dropped on the window or lies on the clipboard.
struct Arrival {
    QString File;     // empty when it is none on this computer
    Surface Picture;  // then; empty when it is none either
};

/// Whether there is anything in it that could be a photo.
[[nodiscard]] bool MayBePhoto(const QMimeData& data);
/// The first file, else the picture.
[[nodiscard]] Arrival ArrivalOf(const QMimeData& data);

}  // namespace vendrel
