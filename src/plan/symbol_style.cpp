#include "plan/symbol_style.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

#include "output/symbol_set.h"

namespace vendrel {
namespace {

// The sheet's letters, those that are told apart best in print first (bench/symbol_order.cpp).
constexpr std::string_view kClearestFirst = "L7A51dFUzXJmYWCksTfN9c4RZx3ag2EtrnweyKBHuDGIPMS068";
static_assert(kClearestFirst.size() == kSymbolCharacters.size());

}  // namespace

std::string LettersFor(SymbolStyle style, int paints) {
    if (style != SymbolStyle::Clear) {
        return std::string(kSymbolCharacters);
    }
    const std::string_view kept = kClearestFirst.substr(0, static_cast<std::size_t>(paints));
    std::string letters;
    std::ranges::copy_if(kSymbolCharacters, std::back_inserter(letters),
                         [kept](char letter) { return kept.find(letter) != kept.npos; });
    return letters;
}

}  // namespace vendrel
