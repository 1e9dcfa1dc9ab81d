#include "export/symbol_maker.h"

#include "export/gui_application.h"
#include "export/symbol_font.h"
#include "export/text_canvas.h"
#include "output/symbol_set.h"
#include "shell/work_settings.h"

namespace vendrel {
namespace {

// Larger than any character at this size, ascenders and descenders included.
constexpr int kCanvasSize = 32;

}  // namespace

MadeSymbols MakeSymbols(const ProgramFolder& folder) {
    const GuiApplication application;
    MadeSymbols made{folder.Path("Data/Symbols.txt"), UseVersion(kSymbolFont)};
    Symbols symbols;
    TextCanvas canvas(kCanvasSize, kCanvasSize);
    MakeSymbolFile(symbols, WorkSettings().SymbolColor, made.File, canvas);
    return made;
}

}  // namespace vendrel
