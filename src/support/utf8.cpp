#include "support/utf8.h"

namespace vendrel {

std::size_t Utf8Length(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x80) {
        return 1;
    }
    const std::size_t length = first >= 0xC2 && first < 0xE0   ? 2
                               : first >= 0xE0 && first < 0xF0 ? 3
                               : first >= 0xF0 && first < 0xF5 ? 4
                                                               : 0;
    if (length == 0 || text.size() < length) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) {
            return 0;
        }
    }
    const auto second = static_cast<unsigned char>(text[1]);
    const bool overlongOrSurrogate =
        (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
        (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
    return overlongOrSurrogate ? 0 : length;
}

char32_t Utf8Code(std::string_view character) {
    const auto byte = [character](std::size_t i) {
        return static_cast<unsigned char>(character[i]);
    };
    if (character.size() == 1) {
        return byte(0);
    }
    char32_t code = byte(0) & (0x7FU >> character.size());
    for (std::size_t i = 1; i < character.size(); ++i) {
        code = (code << 6) | (byte(i) & 0x3FU);
    }
    return code;
}

void AppendUtf8(std::string& out, char32_t code) {
    const auto continued = [&out, code](unsigned shift) {
        out += static_cast<char>(0x80 | ((code >> shift) & 0x3F));
    };
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | (code >> 6));
        continued(0);
    } else if (code < 0x10000) {
        out += static_cast<char>(0xE0 | (code >> 12));
        continued(6);
        continued(0);
    } else {
        out += static_cast<char>(0xF0 | (code >> 18));
        continued(12);
        continued(6);
        continued(0);
    }
}

}  // namespace vendrel
