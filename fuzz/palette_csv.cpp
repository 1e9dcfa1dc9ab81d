#include "fuzz/reader.h"
#include "paints/palette_files.h"

namespace vendrel::fuzz {

const std::size_t kMemoryPerByte = 256;

void Read(Bytes bytes) {
    (void)ReadPaletteFile(FileWith("palette.csv", TextOf(bytes)));
}

}  // namespace vendrel::fuzz
