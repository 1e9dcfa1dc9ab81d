#include "fuzz/reader.h"
#include "shelf/shelf_file.h"
#include "support/text_file.h"

namespace vendrel::fuzz {

const std::size_t kMemoryPerByte = 512;

// What was read comes back the same when it is written.
void Read(Bytes bytes) {
    const Shelf shelf = ParseShelf(ToUtf8(TextOf(bytes)), "mypaints.csv");
    const std::string text = FormatShelf(shelf);
    const Shelf again = ParseShelf(ToUtf8(text), "mypaints.csv");
    Require(again.Paints.size() == shelf.Paints.size(), "the shelf written has other paints");
    Require(FormatShelf(again) == text, "the shelf changes each time that it is written");
}

}  // namespace vendrel::fuzz
