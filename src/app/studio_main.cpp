// The half of the program that needs fonts and windows; vendrel starts it when it does.

#include "app/program.h"
#include "desktop/desktop.h"
#include "export/photo_reader.h"
#include "export/qt_exporter.h"
#include "export/symbol_maker.h"

int main(int argc, char** argv) {
    const vendrel::PhotoReader reader;
    const auto openWindow = [&](const std::filesystem::path& folder,
                                const std::filesystem::path& shipped) {
        return vendrel::RunDesktop(argc, argv, vendrel::ProgramFolder(folder, shipped));
    };
    return vendrel::RunProgram(
        vendrel::WordsOf(argc, argv),
        {.Decoder = &reader,
         .MakeSymbols = vendrel::MakeSymbols,
         .MakeExporter = [] { return std::make_unique<vendrel::QtExporter>(); },
         .OpenWindow = openWindow});
}
