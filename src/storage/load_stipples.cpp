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
CellPos PhotoCells(const LoadedPhoto& photo, TwipsPerPixel twips, int stippleSize) {
    return {photo.PictureWidth / twips.X / stippleSize,
            photo.PictureHeight / twips.Y / stippleSize};
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

void TellOtherSize(Ui& screen, const StippleGrid& grid, const std::filesystem::path& path,
                   const StippleHeader& header) {
    if (header.Across == grid.CellsAcross && header.Down == grid.CellsDown) {
        return;
    }
    screen.ShowMessage(
        "Load Stipple Picture",
        path.filename().string() + " was saved for " + SizeText(header.Across, header.Down) +
            " stipples, but the photo has " + SizeText(grid.CellsAcross, grid.CellsDown) +
            ". It was read with the photo's size. If the picture looks jumbled, load the photo "
            "again and convert it afresh.");
}

}  // namespace

void CheckSavedStipples(Workplace& place) {
    place.MainMenu[MenuId::LoadStipples].Enabled =
        StippleFileExists(place.Folder, place.State, place.State);
}

void LoadStipples_Click(Workplace& place) {
    WorkState& state = place.State;
    const std::filesystem::path path = StippleFilePath(place.Folder, place.State, place.State);
    LoadedGrid loaded =
        ReadGrid(path, PhotoCells(state, place.Screen.Screen().Twips, state.StippleSize));
    const StippleHeader header = loaded.Header;
    Commit(state, std::move(loaded));
    TellOtherSize(place.Screen, state, path, header);
    SetupMenuItems(place.MainMenu, 3);
    place.MainMenu[MenuId::NextBestColors].Enabled = true;
    SetColorChecks(state.Chosen, state.FinalColors);
    EraseToColor(EaselOf(place), kBlack);
    DrawStipplePicture(place);
}

}  // namespace vendrel
