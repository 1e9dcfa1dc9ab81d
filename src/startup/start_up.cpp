#include "startup/start_up.h"

#include <filesystem>
#include <string_view>
#include <system_error>

#include "convert/photo_decoder.h"
#include "convert/settings.h"
#include "intake/incoming_photo.h"
#include "kitset/settle.h"
#include "output/symbol_set.h"
#include "paints/catalogue.h"
#include "paints/paint_list.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/leftovers.h"
#include "support/text_file.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

/// True when the folder had to be created.
bool CreateFolder(const ProgramFolder& program, std::string_view name) {
    const fs::path folder = program.Path(name);
    if (Stands(folder)) {
        return false;
    }
    std::error_code failure;
    fs::create_directories(folder, failure);
    if (failure) {
        throw FileError(folder,
                        "cannot be created (" + failure.message() + "). " +
                            AdviceOn(failure, "Start the program in a folder you may write to."));
    }
    return true;
}

// Without it the first set of the catalogue alone would be chosen, which suits few portraits.
void CopyShippedPaintList(const ProgramFolder& program) {
    const fs::path shipped = program.DataFile("Data/paintlist.txt");
    if (Stands(shipped)) {
        WriteWholeFile(program.Path("Data/paintlist.txt"), ReadTextFile(shipped));
    }
}

}  // namespace

void PrepareSettings(Workplace& place) {
    WorkState& state = place.State;
    Menu& menu = place.MainMenu;
    state.SymbolCodes.Clear();
    state.TemplateMode = false;
    state.PaintingDone = false;
    state.Chosen.Sample = Sampling::Average;
    SetupBMPSymbols(state, place.Folder);
    state.EdgeColor = Rgb(0, 255, 0);
    state.BorderColor = Rgb(0, 0, 0);
    state.SymbolColor = Rgb(125, 125, 125);
    state.CleanLevel = 8;
    SetupMenuItems(menu, 1);
    menu[MenuId::NextBestColors].Enabled = false;
    menu[MenuId::PaintItNow].Enabled = false;
    menu[MenuId::ColorPickerSelect].Enabled = false;
    menu[MenuId::PrintAll].Enabled = false;
    SetStippleSize(place, TraitsOf(Difficulty::Easy).StippleSize);
    state.FinalColors = 50;
    SetColorChecks(state.Chosen, state.FinalColors);
}

bool PrepareFolders(const ProgramFolder& program) {
    if (CreateFolder(program, "Data")) {
        CopyShippedPaintList(program);
    }
    CreateFolder(program, "Results");
    for (const char* folder :
         {"Data", "Results", "Pictures", "Saved Stipples", "templates", "Kits"}) {
        RemoveLeftovers(program.Path(folder));
    }
    SettleKits(program);
    return CreateFolder(program, "Pictures");
}

void OfferSample(const Workplace& place) {
    static constexpr const char* kSample = "Pictures/PBNLady.bmp";
    const fs::path shipped = place.Folder.DataFile(kSample);
    const fs::path own = place.Folder.Path(kSample);
    if (shipped != own) {
        const NoPhotoDecoder none;
        (void)IncomingPhoto(shipped, none).CopyTo(own);
    }
}

void PreparePaints(Workplace& place) {
    WorkState& state = place.State;
    LoadMasterColors(state, state, place.Screen, place.Folder);
    BuildPaintSets(state);
    LoadPaintList(state, state, state, place.Screen, place.Folder);
}

}  // namespace vendrel
