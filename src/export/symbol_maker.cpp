#include "export/symbol_maker.h"

#include <QtGui/QGuiApplication>
#include <memory>

#include "export/text_canvas.h"
#include "output/symbol_set.h"

namespace vendrel {
namespace {

// Larger than any character at this size, ascenders and descenders included.
constexpr int kCanvasSize = 32;

// Fonts need an application; a maker of data files must not need a screen.
std::unique_ptr<QGuiApplication> EnsureApplication() {
    static int argc = 1;
    static char name[] = "vendrel";
    static char* argv[] = {name, nullptr};
    if (QGuiApplication::instance() != nullptr) {
        return nullptr;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

}  // namespace

std::filesystem::path MakeSymbols(const ProgramFolder& folder) {
    const auto application = EnsureApplication();
    std::filesystem::path file = folder.Path("Data/Symbols.txt");
    WorkState state;
    TextCanvas canvas(kCanvasSize, kCanvasSize);
    MakeSymbolFile(state, file, canvas);
    return file;
}

}  // namespace vendrel
