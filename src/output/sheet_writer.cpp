#include "output/sheet_writer.h"

#include <algorithm>
#include <string>
#include <utility>

#include "convert/bitmap_writer.h"
#include "convert/dib_section.h"
#include "output/result_files.h"
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

// Makes a sheet the drawing surface of the work state for as long as the sheet exists.
class SheetInUse {
  public:
    SheetInUse(WorkState& state, const DibView& sheet) : state_(state) { state_.SheetDC = sheet; }
    ~SheetInUse() { state_.SheetDC = {}; }
    SheetInUse(const SheetInUse&) = delete;
    SheetInUse& operator=(const SheetInUse&) = delete;

  private:
    WorkState& state_;
};

void CreateWhite(cDIBSection& sheet, int width, int height) {
    if (!sheet.Create(width, height)) {
        throw Error("There is not enough memory for a sheet of " + std::to_string(width) + " x " +
                    std::to_string(height) + " pixels. Close other programs and try again.");
    }
    std::fill_n(sheet.DIBSectionBitsPtr(),
                static_cast<std::ptrdiff_t>(sheet.BytesPerScanLine()) * height, std::uint8_t{255});
}

NumberingCounts DrawSheet(const Workplace& place, cDIBSection& sheet) {
    WorkState& state = place.State;
    Surface& picture = place.Frames.WorkFrame.Picture;
    if (picture.Empty()) {
        throw Error("There is no painted picture to number. Load a photo and paint it first.");
    }
    state.SheetCellSize = SheetCellSizeFor(state.StippleSize);
    CreateWhite(sheet, picture.Width() * state.SheetCellSize,
                picture.Height() * state.SheetCellSize);
    const SheetInUse inUse(state, sheet.hdc());
    const PaintingKept kept(place);
    return SetupCellNumbers(place, picture);
}

}  // namespace

SavedSheet WriteSheet(const Workplace& place) {
    RequireSymbols(place.State);
    cDIBSection sheet;
    const NumberingCounts counts = DrawSheet(place, sheet);
    std::filesystem::path file = ResultFile(place, "PBS");
    place.Screen.SetCaption("Saving File, Please Wait....");
    WriteBitmap(file, sheet);
    return {std::move(file), counts};
}

SavedSheet PrintAll_Click(const Workplace& place) {
    const BusyPointer busy(place.Screen);
    return WriteSheet(place);
}

}  // namespace vendrel
