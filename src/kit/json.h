#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <vector>

namespace vendrel {

/// A text as a JSON string, quotes included. Bytes that are no UTF-8 are taken for Windows-1252.
[[nodiscard]] std::string JsonString(std::string_view text);

/// One JSON object on one line, members in the order in which they are added.
class JsonObject {
  public:
    JsonObject& Add(std::string_view name, std::string_view text);
    JsonObject& Add(std::string_view name, const char* text) {
        return Add(name, std::string_view(text));
    }
    JsonObject& Add(std::string_view name, bool value);
    template <std::integral Number>
    JsonObject& Add(std::string_view name, Number number) {
        return AddRaw(name, std::to_string(number));
    }
    /// Two decimals, whatever the locale.
    JsonObject& Add(std::string_view name, double number);
    JsonObject& Add(std::string_view name, const JsonObject& object);
    JsonObject& Add(std::string_view name, const std::vector<std::string>& texts);

    [[nodiscard]] std::string Text() const { return "{" + members_ + "}"; }

  private:
    JsonObject& AddRaw(std::string_view name, std::string_view value);

    std::string members_;
};

}  // namespace vendrel
