#pragma once

#include <vector>

#include "plan/sticker_sheet.h"
#include "support/target.h"

namespace vendrel {

/// Writes sheets of pot labels at their true size as a PDF: see StickerPlace for `used`. Throws
/// Error without stickers or for a missing font, FileError.
void WriteStickerPages(const std::vector<Sticker>& stickers, const StickerSheet& sheet, int used,
                       const Target& target);

}  // namespace vendrel
