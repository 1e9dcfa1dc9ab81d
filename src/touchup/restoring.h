#pragma once

#include <memory>
#include <string>

#include "storage/load_stipples.h"
#include "touchup/edit_history.h"

namespace vendrel {

/// What kept work becomes in an editor.
struct RestoredWork {
    SheetContents Contents;
    EditIntent Intent = EditIntent::Paint;
    std::shared_ptr<const EditLayer> Layer;  // with EditIntent::Layer
    std::string Report;                      // of edits that had to be laid over another base
};

/// Over the present base kept edits give the kept grid, or, where other settings made it, what they
/// give; without edits the grid comes back as it was kept. `finalColors` are the kit's own.
[[nodiscard]] RestoredWork RestoreOver(const KitEdits& present, LoadedGrid kept, int finalColors);

}  // namespace vendrel
