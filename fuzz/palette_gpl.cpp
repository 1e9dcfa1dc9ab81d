#include "fuzz/reader.h"
#include "paints/palette_files.h"

namespace vendrel::fuzz {

const std::size_t kMemoryPerByte = 256;

void Read(Bytes bytes) {
    const PaintFile read = ReadPaletteFile(FileWith("palette.gpl", TextOf(bytes)));
    const auto again = FileWith("again.gpl", GplText("Again", read.Paints));
    Require(ReadPaletteFile(again).Paints.Count() == read.Paints.Count(),
            "a palette loses colors when it is written");
}

}  // namespace vendrel::fuzz
