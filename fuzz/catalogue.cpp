#include "paints/catalogue.h"

#include "fuzz/reader.h"
#include "shell/catalogue.h"
#include "shell/given_warnings.h"
#include "shell/quiet_ui.h"

namespace vendrel::fuzz {

const std::size_t kMemoryPerByte = 64;

void Read(Bytes bytes) {
    FileWith("Data/studiopaint.csv", TextOf(bytes));
    Catalogue catalogue;
    GivenWarnings given;
    QuietUi screen{ScreenSize{}};
    LoadMasterColors(catalogue, given, screen, Folder());
    BuildPaintSets(catalogue);
    Require(catalogue.MasterCount == catalogue.MasterColors.Count() &&
                catalogue.PaintSetCount <= catalogue.MasterCount,
            "the catalogue's counts differ");
}

}  // namespace vendrel::fuzz
