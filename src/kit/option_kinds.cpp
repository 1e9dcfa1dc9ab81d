#include "kit/option_kinds.h"

#include <charconv>
#include <system_error>

namespace vendrel {

void RefuseValue(std::string_view option, std::string_view value, std::string_view choices) {
    throw UsageError(std::string(option) + " cannot be \"" + std::string(value) + "\"; choose " +
                     std::string(choices) + ".");
}

double ToNumber(const std::string& option, std::string_view value, const Measure& measure) {
    const std::string_view number =
        value.ends_with(measure.Unit) ? value.substr(0, value.size() - measure.Unit.size()) : value;
    double result = 0;
    const auto [end, failure] =
        std::from_chars(number.data(), number.data() + number.size(), result);
    if (failure != std::errc() || end != number.data() + number.size() ||
        !(result >= measure.Least && result <= measure.Most)) {
        RefuseValue(option, value, measure.Sentence);
    }
    return result;
}

void AddSwitch(CLI::App& app, const OptionText& text, bool& target) {
    app.add_flag(text.Name, target, text.Does)->disable_flag_override();
}

}  // namespace vendrel
