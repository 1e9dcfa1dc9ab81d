#include "kitfile/json_layout.h"

#include <algorithm>

#include "support/error.h"

namespace vendrel {
namespace {

constexpr std::size_t kShort = 80;
constexpr std::size_t kStep = 2;

std::string ScalarText(const KitJson& json) {
    try {
        return json.dump();
    } catch (const KitJson::type_error&) {
        throw Error("\"" + json.dump(-1, ' ', false, KitJson::error_handler_t::replace) +
                    "\" has letters that a kit file cannot keep. Rename it.");
    }
}

std::string OnOneLine(const KitJson& json) {
    if (!json.is_structured()) {
        return ScalarText(json);
    }
    std::string members;
    for (const auto& [name, value] : json.items()) {
        members += (members.empty() ? "" : ", ") +
                   (json.is_object() ? ScalarText(name) + ": " : "") + OnOneLine(value);
    }
    return json.is_object() ? "{" + members + "}" : "[" + members + "]";
}

bool IsFlat(const KitJson& json) {
    return std::ranges::none_of(json, [](const KitJson& value) { return value.is_structured(); });
}

void Append(std::string& text, const KitJson& json, std::size_t indent) {
    const std::string line = OnOneLine(json);
    if (!json.is_structured() || json.empty() || (IsFlat(json) && line.size() <= kShort)) {
        text += line;
        return;
    }
    const std::string margin = "\n" + std::string(indent + kStep, ' ');
    const char* lead = json.is_object() ? "{" : "[";
    for (const auto& [name, value] : json.items()) {
        text += lead + margin;
        lead = ",";
        if (json.is_object()) {
            text += ScalarText(name) + ": ";
            Append(text, value, indent + kStep);
        } else {
            text += OnOneLine(value);
        }
    }
    text += "\n" + std::string(indent, ' ') + (json.is_object() ? "}" : "]");
}

}  // namespace

std::string LayOutJson(const KitJson& json) {
    std::string text;
    Append(text, json, 0);
    return text + "\n";
}

}  // namespace vendrel
