#include "paints/paint_list.h"

#include "fuzz/reader.h"
#include "paints/catalogue.h"
#include "shell/catalogue.h"
#include "shell/given_warnings.h"
#include "shell/palette.h"
#include "shell/quiet_ui.h"

namespace vendrel::fuzz {
namespace {

constexpr const char* kSets =
    "3\n1,2,3,\"Artist Acrylics\",\"A\",\"White\"\n4,5,6,\"Craft\",\"\",\"Red\"\n"
    "7,8,9,\"Gr\xC3\xBCn\",\"C\",\"Green\"\n";

}  // namespace

const std::size_t kMemoryPerByte = 256;  // a set may be named in every line

void Read(Bytes bytes) {
    FileWith("Data/studiopaint.csv", kSets);
    FileWith("Data/paintlist.txt", TextOf(bytes));
    Catalogue catalogue;
    Palette palette;
    GivenWarnings given;
    QuietUi screen{ScreenSize{}};
    LoadMasterColors(catalogue, given, screen, Folder());
    BuildPaintSets(catalogue);
    LoadPaintList(catalogue, palette, given, screen, Folder());
    Require(palette.PaintCount == palette.PaintColors.Count(), "the palette's counts differ");
}

}  // namespace vendrel::fuzz
