#include "kitfile/object_reader.h"

#include <utility>

#include "support/decimals.h"
#include "support/error.h"

namespace vendrel {
namespace {

std::string RangeText(double least, double most) {
    return " from " + Decimals(least, 0) + " to " + Decimals(most, 0);
}

}  // namespace

void KitText::Refuse(const std::string& place, const std::string& demand) const {
    throw FormatError(File, 0, place + " " + demand + ". Restore the file or correct it.");
}

ObjectReader::ObjectReader(KitText& text, const KitJson& object, std::string place)
    : text_(text), object_(object), place_(std::move(place)) {
    if (!object_.is_object()) {
        text_.Refuse(place_.empty() ? "the whole text" : place_, "must be a JSON object");
    }
}

std::string ObjectReader::PlaceOf(const char* name) const {
    return place_.empty() ? name : place_ + "." + name;
}

void ObjectReader::Refuse(const char* name, const std::string& demand) const {
    text_.Refuse(PlaceOf(name), demand);
}

const KitJson& ObjectReader::Member(const char* name) {
    known_.insert(name);
    const auto found = object_.find(name);
    if (found == object_.end()) {
        Refuse(name, "is missing");
    }
    return *found;
}

int ObjectReader::Whole(const char* name, WholeRange range) {
    const KitJson& member = Member(name);
    const double number = member.is_number_integer() ? member.get<double>() : range.Least - 1.0;
    if (number < range.Least || number > range.Most) {
        Refuse(name, "must be a whole number" + RangeText(range.Least, range.Most));
    }
    return member.get<int>();
}

double ObjectReader::Number(const char* name, NumberRange range) {
    const KitJson& member = Member(name);
    const double number = member.is_number() ? member.get<double>() : range.Least - 1;
    if (!(number >= range.Least && number <= range.Most)) {
        Refuse(name, "must be a number" + RangeText(range.Least, range.Most));
    }
    return number;
}

bool ObjectReader::Flag(const char* name) {
    const KitJson& member = Member(name);
    if (!member.is_boolean()) {
        Refuse(name, "must be true or false");
    }
    return member.get<bool>();
}

std::string ObjectReader::Words(const char* name) {
    const KitJson& member = Member(name);
    if (!member.is_string()) {
        Refuse(name, "must be a text in quotes");
    }
    return member.get<std::string>();
}

const KitJson& ObjectReader::Array(const char* name) {
    const KitJson& member = Member(name);
    if (!member.is_array()) {
        Refuse(name, "must be a list");
    }
    return member;
}

std::vector<std::string> ObjectReader::List(const char* name) {
    std::vector<std::string> list;
    for (const KitJson& entry : Array(name)) {
        if (!entry.is_string()) {
            Refuse(name, "must be a list of texts in quotes");
        }
        list.push_back(entry.get<std::string>());
    }
    return list;
}

ObjectReader ObjectReader::Object(const char* name) {
    return {text_, Member(name), PlaceOf(name)};
}

void ObjectReader::KeepUnknown(const std::string& place) {
    for (const auto& [name, value] : object_.items()) {
        if (!known_.contains(name)) {
            text_.Unknown[place].emplace_back(name, value.dump());
        }
    }
}

}  // namespace vendrel
