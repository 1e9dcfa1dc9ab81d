#include "kit/json.h"

#include <array>
#include <charconv>

#include "support/text_file.h"

namespace vendrel {
namespace {

void AppendEscaped(std::string& out, char c) {
    constexpr std::string_view kHex = "0123456789abcdef";
    if (c == '"' || c == '\\') {
        out += '\\';
        out += c;
    } else if (c == '\n') {
        out += "\\n";
    } else if (static_cast<unsigned char>(c) < 0x20) {
        const auto code = static_cast<unsigned char>(c);
        out += "\\u00";
        out += kHex[code >> 4U];
        out += kHex[code & 15U];
    } else {
        out += c;
    }
}

}  // namespace

std::string JsonString(std::string_view text) {
    std::string out = "\"";
    for (const char c : ToUtf8(text)) {
        AppendEscaped(out, c);
    }
    return out + '"';
}

JsonObject& JsonObject::AddRaw(std::string_view name, std::string_view value) {
    if (!members_.empty()) {
        members_ += ", ";
    }
    members_ += JsonString(name);
    members_ += ": ";
    members_ += value;
    return *this;
}

JsonObject& JsonObject::Add(std::string_view name, std::string_view text) {
    return AddRaw(name, JsonString(text));
}

JsonObject& JsonObject::Add(std::string_view name, bool value) {
    return AddRaw(name, value ? "true" : "false");
}

JsonObject& JsonObject::Add(std::string_view name, double number) {
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, 2);
    return AddRaw(name, {text.data(), end.ptr});
}

JsonObject& JsonObject::Add(std::string_view name, const JsonObject& object) {
    return AddRaw(name, object.Text());
}

JsonObject& JsonObject::Add(std::string_view name, const std::vector<std::string>& texts) {
    std::string list = "[";
    for (const std::string& text : texts) {
        list += (list.size() > 1 ? ", " : "") + JsonString(text);
    }
    return AddRaw(name, list + "]");
}

}  // namespace vendrel
