#include "shelf/paint_import.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "support/csv_table.h"
#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

constexpr std::size_t kLongestText = 200;  // nobody calls a paint anything longer

// Small letters and digits, with one blank between words: commas, brackets and dashes are written
// as one likes.
std::string WordsOf(std::string_view text) {
    constexpr std::string_view kBetween = " \t,.;:()[]{}/\\-_'\"#*|\u2019";
    std::string words;
    for (const char c : ToLower(text)) {
        const bool between = kBetween.find(c) != kBetween.npos;
        if (!between) {
            words += c;
        } else if (!words.empty() && words.back() != ' ') {
            words += ' ';
        }
    }
    if (words.ends_with(' ')) {
        words.pop_back();
    }
    return words;
}

// Letters to put in, take out, change or swap with a neighbor; `most` + 1 for anything beyond.
int EditDistance(std::string_view one, std::string_view other, int most) {
    const auto size = [](std::string_view text) { return static_cast<int>(text.size()); };
    if (std::abs(size(one) - size(other)) > most) {
        return most + 1;
    }
    std::vector<int> before;
    std::vector<int> row(other.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (std::size_t i = 1; i <= one.size(); ++i) {
        const std::vector<int> last = std::exchange(row, std::vector<int>(other.size() + 1));
        row[0] = static_cast<int>(i);
        for (std::size_t j = 1; j <= other.size(); ++j) {
            const int change = one[i - 1] == other[j - 1] ? 0 : 1;
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + change});
            if (i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1]) {
                row[j] = std::min(row[j], before[j - 2] + 1);
            }
        }
        if (*std::ranges::min_element(row) > most) {
            return most + 1;
        }
        before = last;
    }
    return std::min(row.back(), most + 1);
}

// What may be written for a paint.
struct Spellings {
    std::string Code;
    std::string Name;
    std::vector<std::string> Whole;  // with set, code or both
    std::string Set;
};

Spellings SpellingsOf(const PaintColor& paint) {
    const std::string set = WordsOf(paint.Mfg);
    const std::string name = WordsOf(paint.PaintName);
    const std::string code = WordsOf(paint.PaintCode);
    std::vector<std::string> whole{set + " " + name, name + " " + set};
    if (!code.empty()) {
        for (const std::string& text :
             {name + " " + code, code + " " + name, set + " " + code, set + " " + name + " " + code,
              set + " " + code + " " + name}) {
            whole.push_back(text);
        }
    }
    return {code, name, std::move(whole), set};
}

struct Wanted {
    std::string Set;  // in a column of its own
    std::string Name;
    std::string Code;
};

class Matcher {
  public:
    explicit Matcher(const PaintList& catalogue) {
        for (const PaintColor& paint : catalogue) {
            spellings_.push_back(SpellingsOf(paint));
        }
    }

    void Match(const Wanted& wanted, ImportProposal& proposal) const {
        std::vector<std::pair<int, int>> hits;  // how far, and the paint
        for (std::size_t i = 0; i < spellings_.size(); ++i) {
            if (const int far = FarFrom(wanted, spellings_[i]); far >= 0) {
                hits.emplace_back(far, static_cast<int>(i) + 1);
            }
        }
        std::ranges::sort(hits);
        const bool exact = !hits.empty() && hits[0].first == 0;
        const bool alone = hits.size() == 1 || (hits.size() > 1 && hits[1].first > 0);
        for (const auto& [far, paint] : hits) {
            if (proposal.Paints.size() < kImportChoices && (!exact || far == 0)) {
                proposal.Paints.push_back(paint);
            }
        }
        proposal.Match = hits.empty()     ? ImportMatch::Unknown
                         : exact && alone ? ImportMatch::Exact
                                          : ImportMatch::Near;
    }

  private:
    // Two letters of a name, none of a code: another code is another paint.
    [[nodiscard]] static int MostFor(std::string_view text) {
        return text.size() < 4 ? 0 : text.size() < 8 ? 1 : text.size() < 16 ? 2 : 3;
    }

    // 0 for the paint's own spelling, -1 for nothing like it.
    [[nodiscard]] static int FarFrom(const Wanted& wanted, const Spellings& paint) {
        const int set = wanted.Set.empty() ? 0 : Far(wanted.Set, paint.Set);
        if (set < 0) {
            return -1;
        }
        if (!wanted.Code.empty() && wanted.Code == paint.Code) {
            const int name = wanted.Name.empty() ? 0 : Far(wanted.Name, paint.Name);
            return set + (name < 0 ? 1 : name);
        }
        if (wanted.Name.empty()) {
            return -1;
        }
        if (wanted.Name == paint.Code && wanted.Code.empty()) {
            return set;
        }
        int best = Far(wanted.Name, paint.Name);
        for (const std::string& whole : paint.Whole) {
            const int far = Far(wanted.Name, whole);
            best = far >= 0 && (best < 0 || far < best) ? far : best;
        }
        // A code that the paint does not have is a doubt.
        return best < 0 ? -1 : set + best + (wanted.Code.empty() ? 0 : 1);
    }

    [[nodiscard]] static int Far(std::string_view text, std::string_view spelling) {
        const int most = MostFor(spelling);
        const int far = EditDistance(text, spelling, most);
        return far > most ? -1 : far;
    }

    std::vector<Spellings> spellings_;
};

struct ListColumns {
    std::optional<std::size_t> Set;
    std::optional<std::size_t> Name;
    std::optional<std::size_t> Code;
    std::optional<std::size_t> Ml;
    std::optional<std::size_t> Pots;

    [[nodiscard]] bool NameSome() const { return Name || Code; }
};

ListColumns ColumnsOf(const CsvRow& heading) {
    return {CsvColumn(heading, {"set", "brand", "range", "paint set", "mfg"}),
            CsvColumn(heading, {"name", "paint", "color", "colour", "paint name"}),
            CsvColumn(heading, {"code", "number", "no", "no.", "paint code", "sku"}),
            CsvColumn(heading, {"ml left", "ml"}), CsvColumn(heading, {"pots", "count"})};
}

std::string Joined(const CsvRow& row) {
    std::string text;
    for (const std::string& field : row.Fields) {
        if (!field.empty()) {
            text += (text.empty() ? "" : ", ") + field;
        }
    }
    return text;
}

std::string FieldOf(const CsvRow& row, const std::optional<std::size_t>& column) {
    return column ? std::string(row.Field(*column)) : std::string();
}

std::optional<double> AmountOf(const CsvRow& row, const std::optional<std::size_t>& column,
                               const CsvTable& table, const std::filesystem::path& file) {
    constexpr double kMost = 1'000'000;
    const std::string text = FieldOf(row, column);
    if (text.empty()) {
        return std::nullopt;
    }
    const auto number = CsvNumber(text, table.Separator);
    if (!number || *number < 0 || *number > kMost ||
        row.Fields.size() > table.Rows[0].Fields.size()) {
        throw FormatError(
            file, row.Line,
            "\"" + text +
                "\" cannot be read as an amount. Write a number from 0 on, and put it "
                "in quotes where it has a comma.");
    }
    return number;
}

std::string Short(std::string_view text) {
    return WordsOf(text.substr(0, kLongestText));
}

void ReadTable(const CsvTable& table, const ListColumns& columns, const std::filesystem::path& file,
               const Matcher& matcher, std::vector<ImportProposal>& proposals) {
    for (std::size_t i = 1; i < table.Rows.size(); ++i) {
        const CsvRow& row = table.Rows[i];
        ImportProposal proposal{row.Line, Joined(row)};
        proposal.MlLeft = AmountOf(row, columns.Ml, table, file);
        if (const auto pots = AmountOf(row, columns.Pots, table, file)) {
            proposal.Pots = static_cast<int>(std::min(*pots, 10'000.0));
        }
        matcher.Match({Short(FieldOf(row, columns.Set)), Short(FieldOf(row, columns.Name)),
                       Short(FieldOf(row, columns.Code))},
                      proposal);
        proposals.push_back(std::move(proposal));
    }
}

}  // namespace

std::vector<ImportProposal> ProposeImport(std::string_view text, const std::filesystem::path& file,
                                          const PaintList& catalogue) {
    std::vector<ImportProposal> proposals;
    const Matcher matcher(catalogue);
    const std::string_view first = text.substr(0, text.find_first_of("\r\n"));
    const bool mayBeTable = first.starts_with("sep=") ||
                            first.find_first_of(",;\t") != first.npos ||
                            ColumnsOf({1, {std::string(Trimmed(first))}}).NameSome();
    if (mayBeTable) {
        // A quote in a plain list is an inch or a nickname: only a heading makes a table.
        const CsvTable heading = ParseCsv(first.starts_with("sep=") ? text : first, file);
        if (!heading.Rows.empty() && ColumnsOf(heading.Rows[0]).NameSome()) {
            const CsvTable table = ParseCsv(text, file);
            ReadTable(table, ColumnsOf(table.Rows[0]), file, matcher, proposals);
            return proposals;
        }
    }
    int line = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view words = text.substr(0, end);
        const std::size_t last = words.find_last_not_of("\r");
        const std::string_view plain = Trimmed(words.substr(0, last + 1));
        text.remove_prefix(std::min(end + 1, text.size()));
        ++line;
        if (!WordsOf(plain).empty()) {
            ImportProposal proposal{line, std::string(plain)};
            matcher.Match({{}, Short(plain), {}}, proposal);
            proposals.push_back(std::move(proposal));
        }
    }
    return proposals;
}

void TakeProposal(Shelf& shelf, const PaintList& catalogue, const ImportProposal& proposal,
                  int paint) {
    ShelfPaint& owned = AddToShelf(shelf, catalogue[paint]);
    owned.MlLeft = proposal.MlLeft ? proposal.MlLeft : owned.MlLeft;
    owned.Pots = proposal.Pots ? proposal.Pots : owned.Pots;
}

}  // namespace vendrel
