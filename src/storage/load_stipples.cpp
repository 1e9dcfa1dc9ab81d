#include "storage/load_stipples.h"

#include <string>
#include <utility>

#include "convert/stipple_conversion.h"
#include "drawing/stipple_brush.h"
#include "shell/found_palette.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"
#include "storage/stipple_file.h"
#include "support/error.h"
#include "support/size_text.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

struct LoadedGrid {
    StippleHeader Header;
    PaintList Palette;
    Grid<StippleCell> Cells;
};

// How many whole stipples the loaded photo holds.
CellPos PhotoCells(const Workplace& place) {
    const TwipsPerPixel twips = place.Screen.Screen().Twips;
    const WorkState& state = place.State;
    return {state.PictureWidth / twips.X / state.StippleSize,
            state.PictureHeight / twips.Y / state.StippleSize};
}

// Reading would run past the end of the file; its counts are right, the photo is another one.
void RefuseTooFew(const std::filesystem::path& path, const StippleHeader& header, CellPos size) {
    if (header.Across * header.Down < size.X * size.Y) {
        throw FileError(path, "was saved for " + SizeText(header.Across, header.Down) +
                                  " stipples, too few for the photo's " + SizeText(size.X, size.Y) +
                                  ". Load the photo it was saved from, or convert this one.");
    }
}

LoadedGrid ReadGrid(const std::filesystem::path& path, CellPos size) {
    const std::string text = ReadTextFile(path);
    StippleFileReader reader(text, path);
    LoadedGrid loaded{reader.Header(), reader.ReadPalette(), {size.X, size.Y}};
    RefuseTooFew(path, loaded.Header, size);
    for (int y = 1; y <= size.Y; ++y) {
        reader.ReadRow(loaded.Cells, y, size.X);
    }
    return loaded;
}

void Commit(WorkState& state, LoadedGrid loaded) {
    state.FinalColors = loaded.Header.FinalColors;
    SetFoundColors(state, loaded.Palette);
    SetPalette(state, std::move(loaded.Palette));
    SetGrid(state, std::move(loaded.Cells));
}

void TellOtherSize(const Workplace& place, const std::filesystem::path& path,
                   const StippleHeader& header) {
    const WorkState& state = place.State;
    if (header.Across == state.CellsAcross && header.Down == state.CellsDown) {
        return;
    }
    place.Screen.ShowMessage(
        "Load Stipple Picture",
        path.filename().string() + " was saved for " + SizeText(header.Across, header.Down) +
            " stipples, but the photo has " + SizeText(state.CellsAcross, state.CellsDown) +
            ". It was read with the photo's size. If the picture looks jumbled, load the photo "
            "again and convert it afresh.");
}

}  // namespace

void CheckSavedStipples(const Workplace& place) {
    place.MainMenu[MenuId::LoadStipples].Enabled = StippleFileExists(place);
}

void LoadStipples_Click(Workplace& place) {
    const std::filesystem::path path = StippleFilePath(place);
    LoadedGrid loaded = ReadGrid(path, PhotoCells(place));
    const StippleHeader header = loaded.Header;
    Commit(place.State, std::move(loaded));
    TellOtherSize(place, path, header);
    SetupMenuItems(place.MainMenu, 3);
    place.MainMenu[MenuId::NextBestColors].Enabled = true;
    SetColorChecks(place.State.Chosen, place.State.FinalColors);
    EraseToColor(place, kBlack);
    DrawStipplePicture(place);
}

}  // namespace vendrel
