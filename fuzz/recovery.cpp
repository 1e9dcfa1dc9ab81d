#include "fuzz/reader.h"
#include "shell/work_state.h"
#include "support/text_file.h"
#include "touchup/sheet_file.h"

namespace vendrel::fuzz {
namespace {

// The kit whose editor takes the work up.
void OpenKit(WorkState& kit, EditSheet& sheet) {
    PaintList paints;
    for (int i = 1; i <= 4; ++i) {
        paints.Add({i, i, i, "Own", "", "Paint", 0});
    }
    Grid<StippleCell> cells(6, 5);
    for (StippleCell& cell : cells.All()) {
        cell.ColorIndex = 1;
    }
    SetPalette(kit, std::move(paints));
    SetGrid(kit, std::move(cells));
    sheet.Open(kit, kit);
}

}  // namespace

const std::size_t kMemoryPerByte = 64;

void Read(Bytes bytes) {
    WorkState kit;
    EditSheet sheet(kit, kit, kit);
    OpenKit(kit, sheet);
    const auto file = FileWith("kept.recovery.stp", TextOf(bytes));
    const std::string text = ReadTextFile(file);
    RequireFit(text, file, sheet);
    StippleFileReader reader(text, file);
    ReadIntoSheet(reader, sheet);
    if (sheet.Flaw().empty()) {
        sheet.Recount();
    }
}

}  // namespace vendrel::fuzz
