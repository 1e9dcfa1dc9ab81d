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
    if (text_[at_] == '"') {
        return ReadQuoted(what);
    }
    const std::size_t begin = at_;
    while (at_ < text_.size() && !EndsField(text_[at_])) {
        ++at_;
    }
    const std::string_view field = text_.substr(begin, at_ - begin);
    SkipSeparator();
    return field;
}

// A quote too few or too many moves all fields behind it, so the line it opens in is the one to
// look at, however many lines were swallowed.
std::string_view FieldReader::ReadQuoted(const char* what) {
    const std::size_t begin = at_ + 1;
    const std::size_t end = text_.find('"', begin);
    if (end == std::string_view::npos) {
        throw FormatError(
            file_, fieldLine_,
            std::string(what) + " opens with a double quote that nothing closes. Close it.");
    }
    const std::string_view field = text_.substr(begin, end - begin);
    line_ += static_cast<int>(std::ranges::count(field, '\n'));
    at_ = end + 1;
    SkipBlanks();
    if (at_ < text_.size() && !EndsField(text_[at_])) {
        throw FormatError(file_, fieldLine_,
                          std::string(what) +
                              " goes on behind its closing double quote. Correct the quotes of "
                              "this line.");
    }
    SkipSeparator();
    return field;
}

FieldReader::LineRange FieldReader::LinesLeft() const {
    const auto isBlank = [](char c) { return IsBlank(c) || c == '\r' || c == '\n'; };
    const std::string_view left = text_.substr(at_);
    const auto first = std::ranges::find_if_not(left, isBlank);
    const auto last = std::find_if_not(left.rbegin(), left.rend(), isBlank).base();
    const auto lineAt = [&](std::string_view::iterator place) {
        return line_ + static_cast<int>(std::count(left.begin(), place, '\n'));
    };
    return first == left.end() ? LineRange{} : LineRange{lineAt(first), lineAt(last)};
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
