#include "export/photo_structure.h"

#include "fuzz/reader.h"

namespace vendrel::fuzz {

const std::size_t kMemoryPerByte = 0;

void Read(Bytes bytes) {
    (void)IsCutShort(bytes);
    (void)JpegCoefficientBytes(bytes);
    (void)IsInterlacedPng(bytes);
    const int orientation = ChunkOrientation(bytes);
    Require(orientation >= 1 && orientation <= 8, "no orientation");
}

}  // namespace vendrel::fuzz
