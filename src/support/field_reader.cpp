#include "support/field_reader.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "support/error.h"

namespace vendrel {
namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

bool EndsField(char c) {
    return c == ',' || c == '\r' || c == '\n';
}

}  // namespace

FieldReader::FieldReader(std::string_view text, std::filesystem::path file)
    : text_(text), file_(std::move(file)) {}

bool FieldReader::AtEnd() const {
    return std::all_of(text_.begin() + static_cast<std::ptrdiff_t>(at_), text_.end(),
                       [](char c) { return IsBlank(c) || c == '\r' || c == '\n'; });
}

void FieldReader::SkipBlanks() {
    while (at_ < text_.size() && IsBlank(text_[at_])) {
        ++at_;
    }
}

void FieldReader::SkipSeparator() {
    SkipBlanks();
    if (at_ < text_.size() && text_[at_] == ',') {
        ++at_;
        return;
    }
    if (at_ < text_.size() && text_[at_] == '\r') {
        ++at_;
    }
    if (at_ < text_.size() && text_[at_] == '\n') {
        ++at_;
        ++line_;
    }
}

std::string_view FieldReader::ReadField(const char* what) {
    SkipBlanks();
    fieldLine_ = line_;
    if (at_ >= text_.size()) {
        throw FormatError(file_, line_,
                          std::string("the file ends where ") + what +
                              " was expected. Restore the file or correct its counts.");
    }
    std::size_t begin = at_;
    std::size_t end = 0;
    if (text_[at_] == '"') {
        ++begin;
        end = std::min(text_.find('"', begin), text_.size());
        line_ +=
            static_cast<int>(std::count(text_.begin() + static_cast<std::ptrdiff_t>(begin),
                                        text_.begin() + static_cast<std::ptrdiff_t>(end), '\n'));
        at_ = std::min(end + 1, text_.size());
    } else {
        while (at_ < text_.size() && !EndsField(text_[at_])) {
            ++at_;
        }
        end = at_;
    }
    SkipSeparator();
    return text_.substr(begin, end - begin);
}

std::string FieldReader::ReadText(const char* what) {
    return std::string(ReadField(what));
}

int FieldReader::ReadInt(const char* what, int min, int max) {
    std::string_view field = ReadField(what);
    while (!field.empty() && IsBlank(field.back())) {
        field.remove_suffix(1);
    }
    int value = 0;
    const auto [end, status] = std::from_chars(field.data(), field.data() + field.size(), value);
    if (field.empty() || status != std::errc() || end != field.data() + field.size() ||
        value < min || value > max) {
        throw FormatError(file_, fieldLine_,
                          std::string(what) + " must be a whole number from " +
                              std::to_string(min) + " to " + std::to_string(max) + ", but is \"" +
                              std::string(field.substr(0, 40)) + "\". Correct this line.");
    }
    return value;
}

}  // namespace vendrel
