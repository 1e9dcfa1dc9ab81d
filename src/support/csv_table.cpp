#include "support/csv_table.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

constexpr auto kBlanks = std::to_array<std::string_view>({" ", "\t", "\xC2\xA0"});

class CsvReader {
  public:
    CsvReader(std::string_view text, const std::filesystem::path& file)
        : text_(text), file_(file) {}

    [[nodiscard]] CsvTable Read() {
        table_.Separator = NamedSeparator();
        if (table_.Separator == 0) {
            table_.Separator = LikelySeparator();
        }
        while (at_ < text_.size()) {
            ReadRow();
        }
        return std::move(table_);
    }

  private:
    // Some spreadsheets say it in a line of their own.
    [[nodiscard]] char NamedSeparator() {
        constexpr std::string_view kNamed = "sep=";
        const std::string_view line = text_.substr(0, text_.find_first_of("\r\n"));
        if (line.size() != kNamed.size() + 1 || ToLower(line.substr(0, 4)) != kNamed) {
            return 0;
        }
        at_ = line.size();
        EndLine();
        return line.back();
    }

    [[nodiscard]] char LikelySeparator() const {
        constexpr std::string_view kSeparators = ";\t,";
        std::array<int, kSeparators.size()> counts{};
        bool quoted = false;
        for (const char c : text_.substr(0, text_.find_first_of("\r\n"))) {
            quoted = quoted != (c == '"');
            if (const auto which = kSeparators.find(c); !quoted && which != kSeparators.npos) {
                ++counts.at(which);
            }
        }
        const auto most = std::ranges::max_element(counts);
        return *most == 0 ? ',' : kSeparators[static_cast<std::size_t>(most - counts.begin())];
    }

    void ReadRow() {
        CsvRow row{line_, {}};
        bool more = true;
        while (more) {
            row.Fields.push_back(ReadField());
            more = at_ < text_.size() && text_[at_] == table_.Separator;
            at_ += more ? 1 : 0;
        }
        EndLine();
        if (std::ranges::any_of(row.Fields, [](const auto& field) { return !field.empty(); })) {
            table_.Rows.push_back(std::move(row));
        }
    }

    [[nodiscard]] std::string ReadField() {
        std::size_t start = at_;
        while (start < text_.size() && text_[start] == ' ') {
            ++start;
        }
        if (start < text_.size() && text_[start] == '"') {
            at_ = start + 1;
            return ReadQuoted();
        }
        const std::size_t end = std::min(
            text_.find_first_of(std::string{table_.Separator, '\r', '\n'}, at_), text_.size());
        const std::string_view field = Trimmed(text_.substr(at_, end - at_));
        at_ = end;
        return std::string(field);
    }

    [[nodiscard]] std::string ReadQuoted() {
        const int line = line_;
        std::string field;
        for (; at_ < text_.size(); ++at_) {
            const bool quote = text_[at_] == '"';
            if (quote && !text_.substr(at_ + 1).starts_with('"')) {
                ++at_;
                return field + RestBehindQuote();
            }
            at_ += quote ? 1 : 0;
            line_ += text_[at_] == '\n' ? 1 : 0;
            field += text_[at_];
        }
        throw FormatError(file_, line,
                          "a quote is opened and never closed. Close it or take it out.");
    }

    [[nodiscard]] std::string RestBehindQuote() {
        const std::size_t end = std::min(
            text_.find_first_of(std::string{table_.Separator, '\r', '\n'}, at_), text_.size());
        const std::string_view rest = Trimmed(text_.substr(at_, end - at_));
        at_ = end;
        return std::string(rest);
    }

    void EndLine() {
        if (at_ < text_.size() && text_[at_] == '\r') {
            ++at_;
        }
        if (at_ < text_.size() && text_[at_] == '\n') {
            ++at_;
        }
        ++line_;
    }

    std::string_view text_;
    const std::filesystem::path& file_;
    CsvTable table_;
    std::size_t at_ = 0;
    int line_ = 1;
};

// Whether digits before and three behind may stand for thousands.
bool MayBeThousands(std::string_view text, std::size_t mark, double most) {
    const std::string whole(text.substr(0, mark));
    return text.size() - mark == 4 && whole.size() <= 3 && !whole.empty() && whole != "0" &&
           std::stod(whole) * 1000 <= most;
}

}  // namespace

std::string_view Trimmed(std::string_view text) {
    // The blank that no line breaks at has two bytes, which other letters have too.
    for (bool goesOn = true; goesOn;) {
        goesOn = false;
        for (const std::string_view blank : kBlanks) {
            if (text.starts_with(blank)) {
                text.remove_prefix(blank.size());
                goesOn = true;
            }
            if (text.ends_with(blank)) {
                text.remove_suffix(blank.size());
                goesOn = true;
            }
        }
    }
    return text;
}

CsvTable ParseCsv(std::string_view text, const std::filesystem::path& file) {
    return CsvReader(text, file).Read();
}

std::optional<double> CsvNumber(std::string_view text, char separator, double most) {
    text = Trimmed(text);
    std::string plain(text.starts_with('+') ? text.substr(1) : text);
    const std::size_t mark = plain.find_first_of(",.");
    const std::string_view digits = std::string_view(plain).substr(plain.starts_with('-') ? 1 : 0);
    if (digits.empty() || digits.find_first_not_of("0123456789,.") != digits.npos ||
        (mark != plain.npos && plain.find_first_of(",.", mark + 1) != plain.npos)) {
        return std::nullopt;
    }
    if (mark != plain.npos) {
        const std::size_t sign = plain.size() - digits.size();
        if ((plain[mark] == ',' || separator == ';') && MayBeThousands(digits, mark - sign, most)) {
            return std::nullopt;
        }
        plain[mark] = '.';
    }
    double number = 0;
    const auto [end, failure] = std::from_chars(plain.data(), plain.data() + plain.size(), number);
    if (failure != std::errc{} || end != plain.data() + plain.size()) {
        return std::nullopt;
    }
    return number;
}

std::optional<std::size_t> CsvColumn(const CsvRow& heading,
                                     const std::vector<std::string_view>& names) {
    for (std::size_t i = 0; i < heading.Fields.size(); ++i) {
        if (std::ranges::find(names, ToLower(heading.Fields[i])) != names.end()) {
            return i;
        }
    }
    return std::nullopt;
}

std::string CsvField(std::string_view text, char separator) {
    const bool plain = text.find_first_of(std::string{separator, '"', '\r', '\n'}) == text.npos &&
                       Trimmed(text) == text;
    if (plain) {
        return std::string(text);
    }
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    }
    return quoted + "\"";
}

}  // namespace vendrel
