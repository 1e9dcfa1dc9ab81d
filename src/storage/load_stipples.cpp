#include "storage/load_stipples.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "convert/photo_import.h"
#include "convert/stipple_conversion.h"
#include "drawing/stipple_brush.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"
#include "storage/stipple_file.h"
#include "support/counter.h"
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

// Sides of a sheet are counted in twips up to there.
void RequireSides(const std::filesystem::path& path, CellPos shape, int stippleTwips) {
    if (std::max(shape.X, shape.Y) > kMaxCounter / stippleTwips) {
        throw FormatError(path, 1,
                          SizeText(shape.X, shape.Y) +
                              " stipples are more than a sheet can have. Restore the file or "
                              "correct its counts.");
    }
}

LoadedGrid ReadGrid(const std::filesystem::path& path, int stippleTwips) {
    const std::string text = ReadTextFile(path);
    StippleFileReader reader(text, path);
    const CellPos shape{reader.Header().Across, reader.Header().Down};
    LoadedGrid loaded{reader.Header(), reader.ReadPalette(), {}};
    reader.RequireCells();
    RequireSides(path, shape, stippleTwips);
    loaded.Cells = {shape.X, shape.Y};
    for (int y = 1; y <= shape.Y; ++y) {
        reader.ReadRow(loaded.Cells, y, shape.X);
    }
    return loaded;
}

// A grid made for another screen or from another crop of the photo stays what it is; the photo
// takes its shape. Rows of the photo's length would cut it to noise.
std::optional<Photo> PhotoInShapeOf(const Workplace& place, const Grid<StippleCell>& cells) {
    const CellPos own = PhotoCells(place);
    if (cells.Across() == own.X && cells.Down() == own.Y) {
        return std::nullopt;
    }
    return ReadPhotoInShape(place.State.PicturePath, place.Screen.Screen(),
                            {cells.Across(), cells.Down()}, place.State.StippleSize);
}

void Commit(WorkState& state, LoadedGrid loaded) {
    state.FinalColors = loaded.Header.FinalColors;
    SetFoundColors(state, loaded.Palette);
    SetPalette(state, std::move(loaded.Palette));
    SetGrid(state, std::move(loaded.Cells));
}

void TellOtherShape(const Workplace& place, const std::filesystem::path& path, CellPos own) {
    const WorkState& state = place.State;
    place.Screen.ShowMessage("Load Stipple Picture",
                             path.filename().string() + " has a shape of its own, " +
                                 SizeText(state.CellsAcross, state.CellsDown) +
                                 " stipples, where the photo has " + SizeText(own.X, own.Y) +
                                 ". The kit is made in that shape.");
}

}  // namespace

void CheckSavedStipples(const Workplace& place) {
    place.MainMenu[MenuId::LoadStipples].Enabled = StippleFileExists(place);
}

void LoadStipples_Click(Workplace& place) {
    const std::filesystem::path path = StippleFilePath(place);
    const int twips = place.Screen.Screen().Twips.X;
    LoadedGrid loaded = ReadGrid(path, place.State.StippleSize * twips);
    const CellPos own = PhotoCells(place);
    std::optional<Photo> photo = PhotoInShapeOf(place, loaded.Cells);
    if (photo) {
        ShowPhoto(place, std::move(*photo));
        place.State.ShapedByGrid = true;
    }
    Commit(place.State, std::move(loaded));
    SetupMenuItems(place.MainMenu, 3);
    place.MainMenu[MenuId::NextBestColors].Enabled = true;
    SetColorChecks(place.State.Chosen, place.State.FinalColors);
    EraseToColor(place, kBlack);
    DrawStipplePicture(place);
    if (photo) {
        TellOtherShape(place, path, own);
    }
}

}  // namespace vendrel
