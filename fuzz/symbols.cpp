#include "output/symbol_set.h"

#include "fuzz/reader.h"

namespace vendrel::fuzz {

const std::size_t kMemoryPerByte = 32;

void Read(Bytes bytes) {
    FileWith("Data/Symbols.txt", TextOf(bytes));
    Symbols symbols;
    SetupBMPSymbols(symbols, Folder());
    Require(symbols.SymbolGlyphs.Count() == kSymbolCount, "symbols are missing");
}

}  // namespace vendrel::fuzz
