#pragma once

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {

/// A word that stands for a value.
template <typename Value>
struct Choice {
    std::string_view Word;
    Value Meaning;
};

/// Throws UsageError: the option cannot have that value, choose one of those.
[[noreturn]] void RefuseValue(std::string_view option, std::string_view value,
                              std::string_view choices);

/// "easy, medium or difficult"
template <typename Choices>
std::string Listed(const Choices& choices, std::string_view last) {
    std::string list;
    for (const auto& choice : choices) {
        list += list.empty() ? "" : &choice == &choices.back() ? last : ", ";
        list += choice.Word;
    }
    return list;
}

template <typename Choices>
const auto* FindChoice(const Choices& choices, std::string_view word) {
    const auto found = std::ranges::find_if(
        choices, [word](const auto& choice) { return SameIgnoringCase(choice.Word, word); });
    return found == choices.end() ? nullptr : &found->Meaning;
}

/// Throws UsageError for a word that is none of the choices.
template <typename Choices>
auto Chosen(std::string_view option, std::string_view value, const Choices& choices) {
    const auto* const choice = FindChoice(choices, value);
    if (choice == nullptr) {
        RefuseValue(option, value, Listed(choices, " or "));
    }
    return *choice;
}

/// A number within its range, the unit behind it or not.
struct Measure {
    std::string_view Unit;
    double Least;
    double Most;
    std::string_view Sentence;  // what may be chosen
};

/// Throws UsageError for what is no number of that measure.
[[nodiscard]] double ToNumber(const std::string& option, std::string_view value,
                              const Measure& measure);

struct OptionText {
    std::string Name;
    std::string Value;  // as the help calls it
    std::string Does;   // nothing: left out of the help
};

/// An option with one value, handed to `take` with the option's name; the last one given counts.
template <typename Take>
void AddValue(CLI::App& app, const OptionText& text, Take take) {
    const auto takeEach = [name = text.Name, take](const CLI::results_t& values) {
        for (const std::string& value : values) {
            if (value.empty()) {
                throw UsageError(name + " needs a value that is not empty.");
            }
            take(name, value);
        }
        return true;
    };
    app.add_option(text.Name, takeEach, text.Does)->option_text(text.Value)->take_all();
}

template <typename Choices, typename Value>
void AddChoice(CLI::App& app, const OptionText& text, const Choices& choices, Value& target) {
    AddValue(app, text, [&](const std::string& option, const std::string& value) {
        target = Chosen(option, value, choices);
    });
}

template <typename Text>
void AddText(CLI::App& app, const OptionText& text, Text& target) {
    AddValue(app, text,
             [&target](const std::string&, const std::string& value) { target = value; });
}

void AddSwitch(CLI::App& app, const OptionText& text, bool& target);

}  // namespace vendrel
