#include "kit/printable.h"

#include <algorithm>
#include <cstddef>

namespace vendrel {
namespace {

unsigned char ByteAt(std::string_view text, std::size_t at) {
    return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

// How many bytes from the front belong together; 1 for what is no UTF-8.
std::size_t CharacterLength(std::string_view text) {
    const unsigned char first = ByteAt(text, 0);
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC2 ? 2 : 1;
    for (std::size_t i = 1; i < length; ++i) {
        if ((ByteAt(text, i) & 0xC0) != 0x80) {
            return 1;
        }
    }
    return length;
}

// The control characters above the ASCII ones come as two bytes in UTF-8 and as one elsewhere.
bool IsControl(std::string_view character) {
    const unsigned char first = ByteAt(character, 0);
    if (character.size() == 1) {
        return first < 0x20 || (first >= 0x7F && first < 0xA0);
    }
    return first == 0xC2 && ByteAt(character, 1) < 0xA0;
}

void AppendEscaped(std::string& out, char c) {
    constexpr std::string_view kHex = "0123456789abcdef";
    if (c == '\n' || c == '\t') {
        out += c == '\n' ? "\\n" : "\\t";
        return;
    }
    const auto code = static_cast<unsigned char>(c);
    out += "\\x";
    out += kHex[code >> 4U];
    out += kHex[code & 15U];
}

}  // namespace

std::string Printable(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        const std::string_view character = text.substr(0, CharacterLength(text));
        text.remove_prefix(character.size());
        if (IsControl(character)) {
            std::ranges::for_each(character, [&out](char c) { AppendEscaped(out, c); });
        } else {
            out += character;
        }
    }
    return out;
}

}  // namespace vendrel
