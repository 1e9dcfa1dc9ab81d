#include "output/sheet_writer.h"

#include <utility>

#include "output/cell_numbering.h"
#include "output/contrast.h"
#include "output/sheet_drawing.h"
#include "support/error.h"

namespace vendrel {
namespace {

// Numbering recolours the work picture, but what is saved next must be the painting again, in
// whatever order the painter saves.
class PaintingKept {
  public:
    PaintingKept(Surface& picture, Ui& screen)
        : picture_(picture), screen_(screen), painting_(picture) {}
    ~PaintingKept() {
        std::swap(picture_, painting_);
        screen_.RefreshWorkFrame();
    }
    PaintingKept(const PaintingKept&) = delete;
    PaintingKept& operator=(const PaintingKept&) = delete;

  private:
    Surface& picture_;
    Ui& screen_;
    Surface painting_;
};

SheetRecord Number(Workplace& place) {
    RequireSymbols(place.State);
    Surface& painting = place.Frames->WorkFrame.Picture;
    if (painting.Empty()) {
        throw Error("There is no painted picture to number. Load a photo and paint it first.");
    }
    if (!place.Screen.Watched()) {  // recolouring for nobody costs a tenth of the time
        return SetupCellNumbers(place, nullptr);
    }
    const PaintingKept kept(painting, place.Screen);
    return SetupCellNumbers(place, &painting);
}

OneBased<Color> InksOnPaints(const Palette& palette) {
    OneBased<Color> inks;
    for (const PaintColor& paint : palette.PaintColors) {
        inks.Add(InkOn(ColorOf(paint)));
    }
    return inks;
}

}  // namespace

NumberedPainting::NumberedPainting(Workplace& place) : place_(place), record_(Number(place)) {
    place.Screen.SetCaption("Saving File, Please Wait....");
}

SheetLook NumberedPainting::Look(const Surface* ground, OneBased<Color> inks) const {
    const WorkState& state = place_.State;
    return {state, state, state, ground, std::move(inks)};
}

void NumberedPainting::WriteSheet(const Target& target) const {
    const WorkState& state = place_.State;
    WriteDrawing(target, record_,
                 Look(nullptr, OneBased<Color>(state.PaintCount, state.SymbolColor)));
}

void NumberedPainting::WriteReference(const Target& target) const {
    WriteDrawing(target, record_,
                 Look(&place_.Frames->WorkFrame.Picture, InksOnPaints(place_.State)));
}

}  // namespace vendrel
