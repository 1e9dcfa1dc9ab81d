#include "output/sheet_writer.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "convert/bitmap_writer.h"
#include "convert/dib_section.h"
#include "output/contrast.h"
#include "output/result_files.h"
#include "output/symbol_set.h"
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

// Draws every dot and symbol on all pictures asked for, so that they agree to the pixel.
class SheetPainter final : public NumberSink {
  public:
    SheetPainter(WorkState& state, const DibView& sheet, const DibView& reference)
        : state_(state), sheet_(sheet), reference_(reference) {
        for (const PaintColor& paint : state.PaintColors) {
            inks_.push_back(InkOn(ColorOf(paint)));
        }
    }
    ~SheetPainter() override { state_.SheetDC = {}; }

    void Dot(CellPos at) override {
        const int x = state_.SheetCellSize * at.X;
        const int y = state_.SheetCellSize * at.Y;
        sheet_.Set(x, y, state_.BorderColor);
        reference_.Set(x, y, state_.BorderColor);
    }
    void Stamp(int paint, CellPos at) override {
        StampOn(sheet_, paint, at, state_.SymbolColor);
        StampOn(reference_, paint, at, inks_[static_cast<std::size_t>(paint)]);
    }

  private:
    void StampOn(const DibView& picture, int paint, CellPos at, Color ink) {
        if (!picture.Empty()) {
            state_.SheetDC = picture;
            Number2CDIB(state_, paint, state_.SheetCellSize, ink, at);
        }
    }

    WorkState& state_;
    DibView sheet_;
    DibView reference_;
    std::vector<Color> inks_;  // per paint, on the reference
};

void CreateSheet(cDIBSection& sheet, int width, int height, std::uint8_t fill) {
    if (!sheet.Create(width, height, fill)) {
        throw Error("There is not enough memory for a sheet of " + std::to_string(width) + " x " +
                    std::to_string(height) + " pixels. Close other programs and try again.");
    }
}

void CreateWhite(cDIBSection& sheet, int width, int height) {
    CreateSheet(sheet, width, height, 255);
}

// Every pixel of the painting becomes a square.
void CreateEnlarged(cDIBSection& sheet, const Surface& painting, int scale) {
    CreateSheet(sheet, painting.Width() * scale, painting.Height() * scale, 0);
    const auto rowBytes = static_cast<std::size_t>(sheet.BytesPerScanLine());
    std::uint8_t* to = sheet.DIBSectionBitsPtr();
    for (int y = painting.Height() - 1; y >= 0; --y) {
        std::uint8_t* const first = to;
        for (const Color color : painting.Row(y)) {
            for (int i = 0; i < scale; ++i) {
                *to++ = static_cast<std::uint8_t>(BlueOf(color));
                *to++ = static_cast<std::uint8_t>(GreenOf(color));
                *to++ = static_cast<std::uint8_t>(RedOf(color));
            }
        }
        to = first + rowBytes;
        for (int i = 1; i < scale; ++i, to += rowBytes) {
            std::copy_n(first, rowBytes, to);
        }
    }
}

struct DrawnSheets {
    cDIBSection Sheet;
    cDIBSection Reference;
};

NumberingCounts DrawSheets(const Workplace& place, const SheetKinds& kinds, DrawnSheets& drawn) {
    WorkState& state = place.State;
    Surface& picture = place.Frames.WorkFrame.Picture;
    if (picture.Empty()) {
        throw Error("There is no painted picture to number. Load a photo and paint it first.");
    }
    state.SheetCellSize = SheetCellSizeFor(state.StippleSize);
    if (kinds.Sheet) {
        CreateWhite(drawn.Sheet, picture.Width() * state.SheetCellSize,
                    picture.Height() * state.SheetCellSize);
    }
    if (kinds.Reference) {
        CreateEnlarged(drawn.Reference, picture, state.SheetCellSize);
    }
    SheetPainter painter(state, drawn.Sheet.hdc(), drawn.Reference.hdc());
    if (!place.Screen.Watched()) {  // recolouring for nobody costs a tenth of the time
        return NumberUnseen(place, painter);
    }
    const PaintingKept kept(place);
    return SetupCellNumbers(place, picture, painter);
}

}  // namespace

SavedSheets WriteSheets(const Workplace& place, const SheetKinds& kinds) {
    RequireSymbols(place.State);
    DrawnSheets drawn;
    SavedSheets saved;
    saved.Counts = DrawSheets(place, kinds, drawn);
    place.Screen.SetCaption("Saving File, Please Wait....");
    if (kinds.Sheet) {
        saved.Sheet = ResultFile(place, "PBS");
        WriteBitmap(saved.Sheet, drawn.Sheet);
    }
    if (kinds.Reference) {
        saved.Reference = ResultFile(place, "Symbol Reference");
        WriteBitmap(saved.Reference, drawn.Reference);
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
