#include "fuzz/reader.h"
#include "paints/paint_fields.h"
#include "paints/template_file.h"

namespace vendrel::fuzz {

const std::size_t kMemoryPerByte = 256;

// What was read is written and reads the same.
void Read(Bytes bytes) {
    const PaintList paints = ReadPaintFile(FileWith("template.csv", TextOf(bytes))).Paints;
    const auto again = FileWith("again.csv", "");
    WriteTemplate(again, paints);
    Require(ReadTemplate(again) == paints, "a template reads otherwise than it was written");
}

}  // namespace vendrel::fuzz
