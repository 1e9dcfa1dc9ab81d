#include "output/sheet_writer.h"

#include <utility>

#include "output/contrast.h"
#include "output/result_files.h"
#include "output/sheet_drawing.h"
#include "output/sheet_record.h"
#include "shell/busy_pointer.h"
#include "support/error.h"

namespace vendrel {
namespace {

// Numbering recolours the work picture, but what is saved next must be the painting again, in
// whatever order the painter saves.
class PaintingKept {
  public:
    explicit PaintingKept(const Workplace& place)
        : place_(place), painting_(place.Frames.WorkFrame.Picture) {}
    ~PaintingKept() {
        std::swap(place_.Frames.WorkFrame.Picture, painting_);
        place_.Screen.RefreshWorkFrame();
    }
    PaintingKept(const PaintingKept&) = delete;
    PaintingKept& operator=(const PaintingKept&) = delete;

  private:
    const Workplace& place_;
    Surface painting_;
};

NumberingCounts Number(const Workplace& place, SheetRecord& record) {
    if (!place.Screen.Watched()) {  // recolouring for nobody costs a tenth of the time
        return NumberUnseen(place, record);
    }
    const PaintingKept kept(place);
    return SetupCellNumbers(place, place.Frames.WorkFrame.Picture, record);
}

OneBased<Color> InksOnPaints(const WorkState& state) {
    OneBased<Color> inks;
    for (const PaintColor& paint : state.PaintColors) {
        inks.Add(InkOn(ColorOf(paint)));
    }
    return inks;
}

}  // namespace

SavedSheets WriteSheets(const Workplace& place, const SheetKinds& kinds) {
    WorkState& state = place.State;
    const Surface& painting = place.Frames.WorkFrame.Picture;
    RequireSymbols(state);
    if (painting.Empty()) {
        throw Error("There is no painted picture to number. Load a photo and paint it first.");
    }
    state.SheetCellSize = TraitsOf(state.Chosen.Level).SheetCellSize;
    SheetRecord record(painting.Width(), painting.Height());
    SavedSheets saved;
    saved.Counts = Number(place, record);
    place.Screen.SetCaption("Saving File, Please Wait....");
    if (kinds.Sheet) {
        saved.Sheet = ResultFile(place, "PBS");
        const OneBased<Color> inks(state.PaintCount, state.SymbolColor);
        WriteDrawing(saved.Sheet, state, record, {.Ground = nullptr, .Inks = inks});
    }
    if (kinds.Reference) {
        saved.Reference = ResultFile(place, "Symbol Reference");
        WriteDrawing(saved.Reference, state, record,
                     {.Ground = &painting, .Inks = InksOnPaints(state)});
    }
    return saved;
}

SavedSheet WriteSheet(const Workplace& place) {
    SavedSheets saved = WriteSheets(place, {.Sheet = true, .Reference = false});
    return {std::move(saved.Sheet), saved.Counts};
}

std::filesystem::path SaveReference_Click(const Workplace& place) {
    const BusyPointer busy(place.Screen);
    return WriteSheets(place, {.Sheet = false, .Reference = true}).Reference;
}

SavedSheet PrintAll_Click(const Workplace& place) {
    const BusyPointer busy(place.Screen);
    return WriteSheet(place);
}

}  // namespace vendrel
