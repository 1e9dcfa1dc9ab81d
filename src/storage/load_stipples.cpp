#include "storage/load_stipples.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "convert/photo_import.h"
#include "convert/stipple_conversion.h"
#include "drawing/stipple_brush.h"
#include "edits/kit_base.h"
#include "shell/found_palette.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"
#include "storage/stipple_file.h"
#include "support/counter.h"
#include "support/error.h"
#include "support/size_text.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

// How many whole stipples the loaded photo holds.
CellPos PhotoCells(const LoadedPhoto& photo, TwipsPerPixel twips, int stippleSize) {
    return {photo.PictureWidth / twips.X / stippleSize,
            photo.PictureHeight / twips.Y / stippleSize};
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

void Commit(WorkState& state, LoadedGrid loaded) {
    state.FinalColors = loaded.Header.FinalColors;
    SetFoundColors(state, loaded.Palette);
    SetPalette(state, std::move(loaded.Palette));
    SetGrid(state, std::move(loaded.Cells));
    state.PaintableKit = false;  // a file does not know
    StartBase(state, state, state, state);
}

void TellOtherShape(Ui& screen, const StippleGrid& grid, const std::filesystem::path& path,
                    CellPos own) {
    screen.ShowMessage("Load Stipple Picture",
                       path.filename().string() + " has a shape of its own, " +
                           SizeText(grid.CellsAcross, grid.CellsDown) +
                           " stipples, where the photo has " + SizeText(own.X, own.Y) +
                           ". The kit is made in that shape.");
}

LoadedGrid ReadAllCells(StippleFileReader& reader, const std::filesystem::path& path,
                        int stippleTwips) {
    const CellPos shape{reader.Header().Across, reader.Header().Down};
    LoadedGrid loaded{reader.Header(), reader.ReadPalette(), {}, {}};
    reader.RequireCells();
    RequireSides(path, shape, stippleTwips);
    loaded.Cells = {shape.X, shape.Y};
    for (int y = 1; y <= shape.Y; ++y) {
        reader.ReadRow(loaded.Cells, y, shape.X);
    }
    return loaded;
}

}  // namespace

LoadedGrid ReadGrid(const std::filesystem::path& path, int stippleTwips) {
    const std::string text = ReadTextFile(path);
    StippleFileReader reader(text, path);
    return ReadAllCells(reader, path, stippleTwips);
}

LoadedGrid ReadGridAndEdits(const std::filesystem::path& path, int stippleTwips) {
    const std::string text = ReadTextFile(path);
    StippleFileReader reader(text, path);
    LoadedGrid loaded = ReadAllCells(reader, path, stippleTwips);
    loaded.Edits = reader.ReadEdits();
    return loaded;
}

// A grid made for another screen or from another crop of the photo stays what it is; the photo
// takes its shape. Rows of the photo's length would cut it to noise.
bool ShapePhotoBy(Workplace& place, CellPos stipples) {
    WorkState& state = place.State;
    const ScreenSize screen = place.Screen.Screen();
    if (stipples == PhotoCells(state, screen.Twips, state.StippleSize)) {
        return false;
    }
    std::optional<Photo> photo =
        ReadPhotoInShape(state.PicturePath, screen, stipples, state.StippleSize);
    if (photo) {
        ShowPhoto(place, std::move(*photo));
        state.ShapedByGrid = true;
    }
    return photo.has_value();
}

void CheckSavedStipples(Workplace& place) {
    place.MainMenu[MenuId::LoadStipples].Enabled =
        StippleFileExists(place.Folder, place.State, place.State);
}

void LoadStipples_Click(Workplace& place) {
    WorkState& state = place.State;
    const ScreenSize screen = place.Screen.Screen();
    const std::filesystem::path path = StippleFilePath(place.Folder, state, state);
    LoadedGrid loaded = ReadGrid(path, state.StippleSize * screen.Twips.X);
    const CellPos own = PhotoCells(state, screen.Twips, state.StippleSize);
    const bool reshaped = ShapePhotoBy(place, {loaded.Cells.Across(), loaded.Cells.Down()});
    Commit(state, std::move(loaded));
    SetupMenuItems(place.MainMenu, 3);
    place.MainMenu[MenuId::NextBestColors].Enabled = true;
    SetColorChecks(state.Chosen, state.FinalColors);
    EraseToColor(EaselOf(place), kBlack);
    DrawStipplePicture(place);
    if (reshaped) {
        TellOtherShape(place.Screen, state, path, own);
    }
}

}  // namespace vendrel
