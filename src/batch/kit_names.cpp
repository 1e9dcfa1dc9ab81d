#include "batch/kit_names.h"

#include <algorithm>
#include <utility>

#include "batch/order_columns.h"
#include "plan/leaflet.h"
#include "support/csv_table.h"
#include "support/error.h"
#include "support/placeholders.h"

namespace vendrel {
namespace {

constexpr std::string_view kTitle = "--title=";

// What the customer calls it.
std::string TitleIn(const Order& order) {
    for (const auto& [heading, field] : order.Fields) {
        if (PlaceholderName(heading) == "title" && !field.empty()) {
            return field;
        }
    }
    return order.Photo.stem().string();
}

// A kit tells the rest itself, and better: its canvas with both sides, its difficulty by name.
bool IsForLeaflet(const std::string& heading) {
    const std::string name = PlaceholderName(heading);
    const bool told = LeafletValues({}, {}).contains(name) && name != "title" &&
                      ColumnOf(heading).Kind != ColumnKind::Text;
    return !name.empty() && name.find_first_of("={}") == name.npos && !told;
}

Placeholders ValuesIn(const Order& order) {
    Placeholders values;
    for (const auto& [heading, field] : order.Fields) {
        if (const std::string name = PlaceholderName(heading); !name.empty()) {
            values[name] = field;
        }
    }
    values["order"] = order.Id;
    values["title"] = TitleIn(order);
    return values;
}

}  // namespace

std::string KitNameOf(const Order& order, const std::string& pattern,
                      const std::string& difficulty) {
    Placeholders values = ValuesIn(order);
    values["difficulty"] = difficulty;
    const FilledText filled = FillPlaceholders(pattern, values);
    if (!filled.Problem.empty()) {
        throw UsageError("--names cannot be \"" + pattern + "\": " + filled.Problem);
    }
    return std::string(Trimmed(filled.Text));
}

void NameKit(Order& order, const std::string& name) {
    std::erase_if(order.Words, [](const std::string& word) { return word.starts_with(kTitle); });
    order.Words.push_back(std::string(kTitle) + name);
}

std::vector<std::string> WordsWithOrder(std::vector<std::string> settings, const Order& order) {
    settings.push_back("--order=" + order.Id);
    if (HasLeaflet(settings)) {
        for (const auto& [heading, field] : order.Fields) {
            if (IsForLeaflet(heading)) {
                const bool title = PlaceholderName(heading) == "title";
                settings.push_back("--field=" + heading + "=" + (title ? TitleIn(order) : field));
            }
        }
    }
    return settings;
}

std::vector<std::string> FieldsOf(const Order& order) {
    std::vector<std::string> words;
    for (const auto& [heading, field] : order.Fields) {
        if (IsForLeaflet(heading)) {
            words.push_back("--field=" + heading + "=");
        }
    }
    return words;
}

bool HasLeaflet(const std::vector<std::string>& settings) {
    return std::ranges::any_of(
        settings, [](const std::string& word) { return word.starts_with("--leaflet="); });
}

}  // namespace vendrel
