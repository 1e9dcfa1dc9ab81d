#include "kit/shelf_desk.h"

#include "kit/kit_keeping.h"
#include "kit/printable.h"
#include "kitfile/kit_needs.h"
#include "kitfile/kit_photo.h"
#include "paints/catalogue.h"
#include "startup/start_up.h"
#include "support/error.h"

namespace vendrel {

ShelfDesk::ShelfDesk(const std::filesystem::path& folder, const Surroundings& around)
    : around_(around),
      folder_(folder, around.Shipped),
      ui_(around.Err, Chatter::None, kDrawingBoard, around.StopAsked) {
    LoadMasterColors(state_, state_, ui_, folder_);
    BuildPaintSets(state_);
    shelf_ = ReadShelf(folder_);
    SeeInCatalogue(shelf_, state_.MasterColors);
    for (const std::string& warning : ui_.TakeMessages()) {
        around.Err << "vendrel: " << Printable(warning) << '\n';
    }
}

void ShelfDesk::Change(const std::function<void(Shelf&)>& change) {
    shelf_ = ChangeShelf(folder_, [&](Shelf& shelf) {
        SeeInCatalogue(shelf, state_.MasterColors);
        change(shelf);
        GiveLabels(shelf);
    });
}

KitNeeds ShelfDesk::NeedsOf(const std::string& kit) {
    const std::filesystem::path file = FindKit(folder_, kit);
    const KitFile read = ReadKitFile(file);
    const FoundPhoto photo = FindKitPhoto(folder_, read.Photo);
    if (!photo.Problem.empty()) {
        throw FileError(file, photo.Problem);
    }
    const Exporter& fonts = Fonts();
    WorkState state = state_;
    Workplace place{state, frames_, menu_, ui_, folder_};
    ui_.SetScreen(read.Board);
    PrepareSettings(place);
    return NeedsOfKit(place, read, photo.File, fonts);
}

const Exporter& ShelfDesk::Fonts() {
    if (exporter_ == nullptr && around_.MakeExporter) {
        exporter_ = around_.MakeExporter();
    }
    if (exporter_ == nullptr) {
        throw Error("This build has no fonts to lay out pages with; build it with Qt.");
    }
    return *exporter_;
}

std::string TitleOf(const PaintColor& paint) {
    return (paint.Mfg.empty() ? "" : paint.Mfg + ": ") + paint.PaintName +
           (paint.PaintCode.empty() ? "" : " [" + paint.PaintCode + "]");
}

std::string TitleOf(const ShelfPaint& paint) {
    return TitleOf(PaintOf(paint));
}

}  // namespace vendrel
