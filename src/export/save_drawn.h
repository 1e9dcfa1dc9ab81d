#pragma once

#include <QtCore/QByteArray>

#include "shell/ui.h"
#include "support/whole_file.h"

namespace vendrel {

/// Writes what was drawn, whole or not at all. Throws FileError.
inline void SaveDrawn(Ui& screen, const QByteArray& drawn, const Target& target) {
    screen.SetCaption("Saving File, Please Wait....");
    WriteWholeFile(target, {drawn.constData(), static_cast<std::size_t>(drawn.size())});
}

}  // namespace vendrel
