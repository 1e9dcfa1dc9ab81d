#include "support/placeholders.h"

#include <algorithm>

#include "support/letter_case.h"

namespace vendrel {
namespace {

std::string KnownNames(const Placeholders& values) {
    std::string names;
    for (const auto& [name, value] : values) {
        names += (names.empty() ? "{" : ", {") + name + "}";
    }
    return names;
}

}  // namespace

std::string PlaceholderName(std::string_view name) {
    std::string plain = ToLower(name);
    std::ranges::replace(plain, '-', ' ');
    std::ranges::replace(plain, '_', ' ');
    const std::size_t first = std::min(plain.find_first_not_of(" \t"), plain.size());
    plain.erase(0, first);
    plain.erase(plain.find_last_not_of(" \t") + 1);
    return plain;
}

FilledText FillPlaceholders(std::string_view text, const Placeholders& values) {
    FilledText filled;
    while (!text.empty()) {
        const std::size_t brace = std::min(text.find_first_of("{}"), text.size());
        filled.Text += text.substr(0, brace);
        text.remove_prefix(brace);
        if (text.empty()) {
            break;
        }
        if (text.starts_with("{{") || text.starts_with("}}") || text.front() == '}') {
            filled.Text += text.front();
            text.remove_prefix(text.starts_with("{{") || text.starts_with("}}") ? 2 : 1);
            continue;
        }
        const std::size_t end = text.find('}');
        if (end == text.npos) {
            filled.Problem = "a { is never closed. Write {{ for a plain one.";
            return filled;
        }
        const std::string_view name = text.substr(1, end - 1);
        const auto value = values.find(PlaceholderName(name));
        if (value == values.end()) {
            filled.Problem = "there is no {" + std::string(name) + "}. Choose one of " +
                             KnownNames(values) + ", or write {{ for a plain brace.";
            return filled;
        }
        filled.Text += value->second;
        text.remove_prefix(end + 1);
    }
    return filled;
}

}  // namespace vendrel
