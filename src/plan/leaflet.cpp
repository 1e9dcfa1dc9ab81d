#include "plan/leaflet.h"

#include "support/csv_table.h"
#include "support/error.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostLeafletBytes = 100'000;

class LeafletReader {
  public:
    LeafletReader(const fs::path& file, const Placeholders& values)
        : file_(file), values_(values) {}

    std::vector<LeafletPart> Read(std::string_view text) {
        for (const std::string& line : SplitLines(text)) {
            ++line_;
            Take(Trimmed(line));
        }
        return std::move(parts_);
    }

  private:
    void Take(std::string_view line) {
        if (line.empty()) {
            open_ = false;
        } else if (line.starts_with("# ")) {
            Begin(LeafletKind::Heading, line.substr(2));
            open_ = false;
        } else if (line.starts_with("- ")) {
            Begin(LeafletKind::Item, line.substr(2));
        } else if (open_) {
            parts_.back().Text += " " + Filled(line);
        } else {
            Begin(LeafletKind::Text, line);
        }
    }

    void Begin(LeafletKind kind, std::string_view line) {
        parts_.push_back({kind, Filled(Trimmed(line))});
        open_ = true;
    }

    [[nodiscard]] std::string Filled(std::string_view line) const {
        FilledText filled = FillPlaceholders(line, values_);
        if (!filled.Problem.empty()) {
            throw FormatError(file_, line_, filled.Problem);
        }
        return std::move(filled.Text);
    }

    const fs::path& file_;
    const Placeholders& values_;
    std::vector<LeafletPart> parts_;
    int line_ = 0;
    bool open_ = false;  // the next line goes on with the last part
};

}  // namespace

Placeholders LeafletValues(const LeafletFacts& facts, const ShopFace& shop) {
    Placeholders values = shop.Fields;
    values.insert({{"order", facts.Order},
                   {"title", facts.Title},
                   {"paints", facts.Paints},
                   {"difficulty", facts.Difficulty},
                   {"canvas", facts.Canvas},
                   {"hours", facts.Hours},
                   {"maker", facts.Maker}});
    return values;
}

std::vector<LeafletPart> ParseLeaflet(std::string_view text, const fs::path& file,
                                      const Placeholders& values) {
    return LeafletReader(file, values).Read(text);
}

std::vector<LeafletPart> ReadLeaflet(const ShopFace& shop, const LeafletFacts& facts) {
    if (shop.Leaflet.empty()) {
        return {};
    }
    std::error_code missing;
    if (fs::file_size(shop.Leaflet, missing) > kMostLeafletBytes && !missing) {
        throw FileError(shop.Leaflet, "is too long for a leaflet. Keep it below 100 kilobytes.");
    }
    std::vector<LeafletPart> parts =
        ParseLeaflet(ReadTextFile(shop.Leaflet), shop.Leaflet, LeafletValues(facts, shop));
    if (parts.empty()) {
        throw FileError(shop.Leaflet, "has no text. Write the leaflet into it or leave it out.");
    }
    return parts;
}

}  // namespace vendrel
