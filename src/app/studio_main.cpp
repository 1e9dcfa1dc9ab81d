// The half of the program that needs fonts and windows; vendrel starts it when it does.

#include "app/program.h"
#include "export/symbol_maker.h"

int main(int argc, char** argv) {
    return vendrel::RunProgram(vendrel::WordsOf(argc, argv),
                               {.MakeSymbols = vendrel::MakeSymbols, .OpenWindow = {}});
}
