#include "export/symbol_maker.h"

#include "export/gui_application.h"
#include "export/text_canvas.h"
#include "output/symbol_set.h"
#include "shell/work_settings.h"

namespace vendrel {
namespace {

// Larger than any character at this size, ascenders and descenders included.
constexpr int kCanvasSize = 32;

}  // namespace

std::filesystem::path MakeSymbols(const ProgramFolder& folder) {
    const GuiApplication application;
    std::filesystem::path file = folder.Path("Data/Symbols.txt");
    Symbols symbols;
    TextCanvas canvas(kCanvasSize, kCanvasSize);
    MakeSymbolFile(symbols, WorkSettings().SymbolColor, file, canvas);
    return file;
}

}  // namespace vendrel
