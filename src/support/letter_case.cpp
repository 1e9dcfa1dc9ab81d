#include "support/letter_case.h"

#include <algorithm>
#include <locale>
#include <stdexcept>

#include "support/utf8.h"

namespace vendrel {
namespace {

// Not the painter's own language, in which an I may have another small letter than elsewhere.
std::locale PlainLetters() {
    try {
        return std::locale("C.UTF-8");
    } catch (const std::runtime_error&) {
        return std::locale::classic();  // knows those of ASCII
    }
}

char32_t SmallLetter(char32_t letter) {
    static_assert(sizeof(wchar_t) == sizeof(char32_t));
    static const std::locale letters = PlainLetters();
    const auto& cases = std::use_facet<std::ctype<wchar_t>>(letters);
    // By way of the capital, which several small letters share.
    return static_cast<char32_t>(cases.tolower(cases.toupper(static_cast<wchar_t>(letter))));
}

char SmallLetter(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

}  // namespace

std::string ToLower(std::string_view text) {
    std::string lower;
    lower.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = Utf8Length(text);
        if (length > 1) {
            AppendUtf8(lower, SmallLetter(Utf8Code(text.substr(0, length))));
        } else {
            lower += SmallLetter(text.front());
        }
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return lower;
}

bool SameIgnoringCase(std::string_view a, std::string_view b) {
    if (std::ranges::all_of(a, IsAscii) && std::ranges::all_of(b, IsAscii)) {
        return std::ranges::equal(a, b,
                                  [](char x, char y) { return SmallLetter(x) == SmallLetter(y); });
    }
    return ToLower(a) == ToLower(b);
}

}  // namespace vendrel
