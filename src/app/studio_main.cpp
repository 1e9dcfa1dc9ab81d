// The half of the program that needs fonts, photo decoders and windows; vendrel starts it when it
// does.

#include "app/decode_command.h"
#include "app/join_command.h"
#include "app/program.h"
#include "convert/child_decoder.h"
#include "desktop/desktop.h"
#include "export/qt_exporter.h"
#include "export/symbol_maker.h"

int main(int argc, char** argv) {
    const auto words = vendrel::WordsOf(argc, argv);
    if (words.size() == 1 && words.front() == "--decode") {
        return vendrel::RunDecodeCommand();
    }
    if (words.size() > 2 && words.front() == "--join") {
        return vendrel::RunJoinCommand(std::span(words).subspan(1));
    }
    // Not by its path, where another version may lie by now.
    const vendrel::ChildDecoder decoder("/proc/self/exe");
    const auto openWindow = [&](const vendrel::ProgramFolder& folder,
                                const std::filesystem::path& file) {
        return vendrel::RunDesktop({argc, argv}, folder, decoder, file);
    };
    return vendrel::RunProgram(
        words, {.Decoder = &decoder,
                .MakeSymbols = vendrel::MakeSymbols,
                .MakeExporter = [] { return std::make_unique<vendrel::QtExporter>(); },
                .Documents = vendrel::DocumentsFolder,
                .OpenWindow = openWindow});
}
