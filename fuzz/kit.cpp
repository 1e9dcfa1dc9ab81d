#include "fuzz/reader.h"
#include "kitfile/kit_file.h"

namespace vendrel::fuzz {

// Stipples are packed: a byte unfolds to some two hundred of them.
const std::size_t kMemoryPerByte = 16 * 1024;

// What was read is written and reads the same.
void Read(Bytes bytes) {
    const KitFile kit = ReadKitFile(FileWith("some.kit", TextOf(bytes)));
    const std::string text = FormatKitFile(kit);
    const KitFile again = ParseKitFile(text, "again.kit");
    Require(FormatKitFile(again) == text, "a kit reads otherwise than it was written");
}

}  // namespace vendrel::fuzz
