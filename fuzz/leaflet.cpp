#include "plan/leaflet.h"

#include "fuzz/reader.h"
#include "support/text_file.h"

namespace vendrel::fuzz {

const std::size_t kMemoryPerByte = 512;

// Nothing is lost or made up: braces are the only characters that mean something.
void Read(Bytes bytes) {
    const std::string text = ToUtf8(TextOf(bytes));
    const auto parts = ParseLeaflet(text, "leaflet.txt", LeafletValues({.Order = "7"}, {}));
    std::size_t length = 0;
    for (const LeafletPart& part : parts) {
        length += part.Text.size();
    }
    Require(length <= text.size(), "a leaflet grows");
}

}  // namespace vendrel::fuzz
