#include "fuzz/reader.h"
#include "touchup/cell_patch.h"

namespace vendrel::fuzz {

const std::size_t kMemoryPerByte = 64;

// What was pasted is copied and pastes the same, but for double quotes, which no paint keeps.
void Read(Bytes bytes) {
    const CellPatch patch = ReadPatch(TextOf(bytes));
    const CellPatch copied = ReadPatch(PatchText(patch));
    Require(ReadPatch(PatchText(copied)) == copied && copied.Cells == patch.Cells,
            "a patch reads otherwise than it was written");
    Require(Mirrored(Mirrored(patch, MirrorWay::LeftRight), MirrorWay::LeftRight) == patch,
            "a patch mirrored twice is another one");
}

}  // namespace vendrel::fuzz
