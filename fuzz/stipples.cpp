#include "fuzz/reader.h"
#include "storage/load_stipples.h"

namespace vendrel::fuzz {

const std::size_t kMemoryPerByte = 64;

// What was read is written and reads the same.
void Read(Bytes bytes) {
    constexpr int kStipple = 8 * 15;  // twips
    const LoadedGrid grid = ReadGrid(FileWith("grid.stp", TextOf(bytes)), kStipple);
    const auto again =
        FileWith("again.stp", FormatStippleFile({grid.Palette, grid.Cells, grid.Header.Across,
                                                 grid.Header.Down, grid.Header.FinalColors}));
    Require(ReadGrid(again, kStipple).Cells == grid.Cells,
            "stipples read otherwise than they were written");
}

}  // namespace vendrel::fuzz
