#pragma once

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "shell/records.h"
#include "shell/work_settings.h"
#include "support/cell_queue.h"
#include "support/color.h"
#include "support/grid.h"
#include "support/held_file.h"

namespace vendrel {

/// What every procedure and form reads and writes, from start-up to exit. Lists and grids keep an
/// empty element 0. Colours are packed, sizes in pixels or twips as named.
struct WorkState : WorkSettings {
    // The catalogue and its ranges: never changed after loading.
    PaintList MasterColors;
    int MasterCount = 0;
    OneBased<PaintSet> PaintSets;
    int PaintSetCount = 0;

    std::set<std::string> WarningsGiven;  // none is given twice

    // The working palette.
    PaintList PaintColors;
    int PaintCount = 0;
    PaintList FoundColors;
    int FoundCount = 0;
    OneBased<int> ColorCounts;  // stipples per paint, rebuilt by every count

    // What the paint shop keeps while it is closed.
    bool PaintShopLoaded = false;
    bool MfgSelected = true;  // paint sets rather than a template
    std::vector<std::string> SelectedPaintsList;
    bool TemplateMode = false;
    bool TemplateLoaded = false;
    std::string SelectedTemplate;
    std::string LastTemplate;
    int SwatchSize = 0;  // pixels

    // The photo.
    std::string PicturesFolder;
    std::string PictureFile;
    std::string PicturePath;
    std::string PictureName;
    bool PictureLoaded = false;
    int BmpWidth = 0;  // pixels, from the file's header
    int BmpHeight = 0;
    int AspectWidth = 0;
    int AspectHeight = 0;
    bool Landscape = true;
    int PictureWidth = 0;  // twips
    int PictureHeight = 0;
    bool ShapedByGrid = false;  // its size is that of a loaded grid, not its own

    // The stipple grid.
    Grid<StippleCell> Stipples;
    Grid<CellMark> CellMarks;
    Grid<StippleCell> EditStipples;  // the touch-up editor's copy; its paints are FoundColors
    int CellsAcross = 0;
    int CellsDown = 0;
    bool StipplesMade = false;
    bool StipplesShown = false;
    int WorkStage = 0;
    bool HasUnsavedWork = false;               // touched up and accepted, but in no saved grid yet
    std::shared_ptr<const HeldFile> Recovery;  // keeps unsaved work, while this program has any

    // The paint pass.
    Grid<MapPixel> PixelMap;  // one per photo pixel, 0..width, 0..height
    OneBased<PaintArea> Areas;
    int AreaCount = 0;  // one more than the areas found
    int NextAreaNumber = 1;
    bool PaintingDone = false;
    CellQueue TestCells;

    // The numbers of the sheet made last, one per picture pixel.
    int NumberWidth = 0;
    int NumberHeight = 0;
    Grid<NumberPixel> NumberGrid;
    Grid<NumberMark> NumberMarks;

    // Symbols.
    OneBased<std::int16_t> SymbolCodes;
    OneBased<SymbolGlyph> SymbolGlyphs;
};

}  // namespace vendrel
