#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

#include "kitfile/kit_file.h"
#include "kitfile/kit_words.h"

namespace vendrel {

using KitJson = nlohmann::ordered_json;

/// What all readers of one file share.
struct KitText {
    std::filesystem::path File;
    UnknownFields Unknown;

    /// "beach.kit: settings.detail must be a whole number from 0 to 100. Restore the file or
    /// correct it."
    [[noreturn]] void Refuse(const std::string& place, const std::string& demand) const;
};

struct WholeRange {
    int Least;
    int Most;
};
struct NumberRange {
    double Least;
    double Most;
};

/// Reads the members of one object by name. All throw FormatError naming the member. What was never
/// asked for is kept as unknown.
class ObjectReader {
  public:
    /// The object must live as long.
    ObjectReader(KitText& text, const KitJson& object, std::string place);

    [[nodiscard]] bool Has(const char* name) const { return object_.contains(name); }
    [[nodiscard]] const KitJson& Member(const char* name);
    [[nodiscard]] int Whole(const char* name, WholeRange range);
    [[nodiscard]] double Number(const char* name, NumberRange range);
    [[nodiscard]] bool Flag(const char* name);
    [[nodiscard]] std::string Words(const char* name);
    [[nodiscard]] std::vector<std::string> List(const char* name);
    [[nodiscard]] const KitJson& Array(const char* name);
    [[nodiscard]] ObjectReader Object(const char* name);
    template <class Choices>
    [[nodiscard]] auto Choice(const char* name, const Choices& choices) {
        const std::string word = Words(name);
        std::string known;
        for (const auto& choice : choices) {
            if (choice.Word == word) {
                return choice.Meaning;
            }
            known += (known.empty() ? "" : ", ") + std::string(choice.Word);
        }
        Refuse(name, "must be one of " + known);
    }

    [[nodiscard]] std::string PlaceOf(const char* name) const;
    [[noreturn]] void Refuse(const char* name, const std::string& demand) const;
    [[nodiscard]] KitText& Text() const { return text_; }
    /// All members were asked for: keeps the others under that place, or under the object's own.
    void KeepUnknown(const std::string& place);
    void KeepUnknown() { KeepUnknown(place_); }

  private:
    KitText& text_;
    const KitJson& object_;
    std::string place_;
    std::set<std::string> known_;
};

}  // namespace vendrel
