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

SheetRecord Number(const Workplace& place) {
    RequireSymbols(place.State);
    Surface& painting = place.Frames.WorkFrame.Picture;
    if (painting.Empty()) {
        throw Error("There is no painted picture to number. Load a photo and paint it first.");
    }
    if (!place.Screen.Watched()) {  // recolouring for nobody costs a tenth of the time
        return SetupCellNumbers(place, nullptr);
    }
    const PaintingKept kept(place);
    return SetupCellNumbers(place, &painting);
}

OneBased<Color> InksOnPaints(const WorkState& state) {
    OneBased<Color> inks;
    for (const PaintColor& paint : state.PaintColors) {
        inks.Add(InkOn(ColorOf(paint)));
    }
    return inks;
}

}  // namespace

NumberedPainting::NumberedPainting(const Workplace& place) : place_(place), record_(Number(place)) {
    place.Screen.SetCaption("Saving File, Please Wait....");
}

void NumberedPainting::WriteSheet(const Target& target) const {
    const WorkState& state = place_.State;
    const OneBased<Color> inks(state.PaintCount, state.SymbolColor);
    WriteDrawing(target, state, record_, {.Ground = nullptr, .Inks = inks});
}

void NumberedPainting::WriteReference(const Target& target) const {
    WriteDrawing(target, place_.State, record_,
                 {.Ground = &place_.Frames.WorkFrame.Picture, .Inks = InksOnPaints(place_.State)});
}

}  // namespace vendrel
