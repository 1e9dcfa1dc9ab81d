#include <algorithm>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

#include "eye/lab.h"
#include "eye/seen_difference.h"
#include "kit/printable.h"
#include "kit/shelf_commands.h"
#include "kit/shelf_desk.h"
#include "paints/foreign_catalogue.h"
#include "plan/sticker_sheet.h"
#include "shelf/nearest_owned.h"
#include "shelf/paint_import.h"
#include "support/csv_table.h"
#include "support/decimals.h"
#include "support/error.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t kNearest = 12;

// A line of the list: a paint of the catalogue, of the shelf or of both.
struct ListedPaint {
    PaintColor Paint;
    const ShelfPaint* Owned = nullptr;
    std::string Mark;  // how it stands in the catalogue where that is worth a word
    double Seen = 0;
};

std::string MarkOf(const ShelfPaint& paint, const PaintList& catalogue) {
    const CatalogueStanding standing = StandingOf(paint, catalogue);
    switch (standing.What) {
        case InCatalogue::Known:
            return "";
        case InCatalogue::Renamed:
            return "now " + TitleOf(catalogue[standing.Paint]);
        case InCatalogue::Lost:
            return "not in the catalogue any more";
        case InCatalogue::Own:
            return "of your own";
    }
    return "";
}

std::vector<ListedPaint> ListPaints(const ShelfDesk& desk, const PaintsOptions& options) {
    std::vector<ListedPaint> listed;
    for (const ShelfPaint& paint : desk.Owned().Paints) {
        listed.push_back({PaintOf(paint), &paint, MarkOf(paint, desk.Catalogue())});
    }
    for (const PaintColor& paint : desk.Catalogue()) {
        if (!options.OwnedOnly && FindOnShelf(desk.Owned(), IdOf(paint)) == nullptr) {
            listed.push_back({paint, nullptr, ""});
        }
    }
    if (options.Near) {
        for (ListedPaint& paint : listed) {
            paint.Seen = Ciede2000(LabOf(*options.Near), LabOf(ColorOf(paint.Paint)));
        }
        std::ranges::stable_sort(listed, {}, &ListedPaint::Seen);
        listed.resize(std::min(listed.size(), kNearest));
    }
    return listed;
}

Json JsonOf(const PaintColor& paint) {
    return {{"set", paint.Mfg},
            {"name", paint.PaintName},
            {"code", paint.PaintCode},
            {"color", HexOf(paint)}};
}

Json JsonOf(const ListedPaint& listed, bool withSeen) {
    Json json = JsonOf(listed.Paint);
    json["owned"] = listed.Owned != nullptr;
    if (listed.Owned != nullptr) {
        json["label"] = listed.Owned->Label;
        json["mlLeft"] = listed.Owned->MlLeft ? Json(*listed.Owned->MlLeft) : Json();
        json["pots"] = listed.Owned->Pots ? Json(*listed.Owned->Pots) : Json();
        json["left"] = listed.Owned->IsLeft();
        json["standing"] = listed.Mark;
    }
    if (withSeen) {
        json["seenDifference"] = listed.Seen;
    }
    return json;
}

std::string Padded(std::string text, std::size_t width) {
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

std::string LineOf(const ListedPaint& listed, bool withSeen) {
    std::string line =
        Padded(listed.Owned != nullptr ? listed.Owned->Label : "", 4) + HexOf(listed.Paint) + "  ";
    if (withSeen) {
        line += Padded(Decimals(listed.Seen, 1), 6);
    }
    line += TitleOf(listed.Paint);
    if (listed.Owned != nullptr) {
        line += !listed.Owned->IsLeft() ? ", used up"
                : listed.Owned->MlLeft  ? ", " + Decimals(*listed.Owned->MlLeft, 1) + " ml"
                                        : ", owned";
    }
    return line + (listed.Mark.empty() ? "" : " (" + listed.Mark + ")");
}

void List(const ShelfDesk& desk, const PaintsOptions& options, std::ostream& out) {
    Json json = Json::array();
    for (const ListedPaint& listed : ListPaints(desk, options)) {
        if (options.Json) {
            json.push_back(JsonOf(listed, options.Near.has_value()));
        } else {
            out << Printable(LineOf(listed, options.Near.has_value())) << '\n';
        }
    }
    if (options.Json) {
        out << json.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
    }
}

void ListMissing(ShelfDesk& desk, const PaintsOptions& options, std::ostream& out) {
    constexpr int kSubstitutes = 3;
    Json json = Json::array();
    bool none = true;
    for (const ShoppingItem& item : ListShopping(desk.Owned(), {desk.NeedsOf(options.Missing)})) {
        if (item.BuyMl <= 0) {
            continue;
        }
        none = false;
        Json entry = JsonOf(item.Paint);
        entry["neededMl"] = item.NeededMl;
        entry["leftMl"] = item.LeftMl;
        entry["buyMl"] = item.BuyMl;
        entry["pots"] = item.Pots;
        entry["nearestOwned"] = Json::array();
        std::string text = HexOf(item.Paint) + "  " + TitleOf(item.Paint) + ", buy " +
                           Decimals(item.BuyMl, 1) + " ml" +
                           (item.Pots > 0 ? ", pots " + std::to_string(item.Pots) : "");
        for (const NearPaint& near :
             NearestOwned(desk.Owned(), ColorOf(item.Paint), kSubstitutes + 1)) {
            if (IdOf(*near.Paint) == IdOf(item.Paint) ||
                entry["nearestOwned"].size() == static_cast<std::size_t>(kSubstitutes)) {
                continue;  // more of itself is what is missing
            }
            Json substitute = JsonOf(PaintOf(*near.Paint));
            substitute["label"] = near.Paint->Label;
            substitute["seenDifference"] = near.Seen;
            entry["nearestOwned"].push_back(std::move(substitute));
            text += "\n    " + Padded(Decimals(near.Seen, 1), 6) + HexOf(PaintOf(*near.Paint)) +
                    "  " + Padded(near.Paint->Label, 4) + TitleOf(*near.Paint);
        }
        if (!options.Json) {
            out << Printable(text.substr(0, text.find('\n')));
            for (std::size_t at = text.find('\n'); at != text.npos; at = text.find('\n', at + 1)) {
                out << '\n' << Printable(text.substr(at + 1, text.find('\n', at + 1) - at - 1));
            }
            out << '\n';
        }
        json.push_back(std::move(entry));
    }
    if (options.Json) {
        out << json.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
    } else if (none) {
        out << "You have all paints of this kit.\n";
    }
}

// Whether --take names a proposal.
bool IsTaken(const ImportProposal& proposal, const std::string& which) {
    if (proposal.Match == ImportMatch::Unknown || which.empty()) {
        return false;
    }
    if (which == "exact" || which == "all") {
        return which == "all" || proposal.Match == ImportMatch::Exact;
    }
    return ("," + which + ",").find("," + std::to_string(proposal.Line) + ",") != which.npos;
}

void CheckTake(const std::string& which) {
    if (!which.empty() && which != "exact" && which != "all" &&
        which.find_first_not_of("0123456789,") != which.npos) {
        throw UsageError("--take cannot be \"" + which +
                         "\"; choose exact, all or lines of the list, as in 3,7.");
    }
}

std::string LineOf(const ImportProposal& proposal, const PaintList& catalogue) {
    constexpr std::string_view kSigns = "=~?";
    std::string line = std::to_string(proposal.Line) + " " +
                       kSigns[static_cast<std::size_t>(proposal.Match)] + " " + proposal.Text;
    for (std::size_t i = 0; i < proposal.Paints.size(); ++i) {
        line += (i == 0 ? " -> " : " or ") + TitleOf(catalogue[proposal.Paints[i]]);
    }
    return line + (proposal.Paints.empty() ? " -> no paint like it" : "");
}

Json JsonOf(const ImportProposal& proposal, const PaintList& catalogue, bool taken) {
    constexpr std::array<const char*, 3> kWords = {"exact", "near", "unknown"};
    Json json{{"line", proposal.Line},
              {"text", proposal.Text},
              {"match", kWords.at(static_cast<std::size_t>(proposal.Match))},
              {"taken", taken},
              {"paints", Json::array()}};
    for (const int paint : proposal.Paints) {
        json["paints"].push_back(JsonOf(catalogue[paint]));
    }
    return json;
}

void Import(ShelfDesk& desk, const PaintsOptions& options, std::ostream& out) {
    CheckTake(options.Take);
    const std::vector<ImportProposal> proposals =
        ProposeImport(ReadTextFile(options.Import), options.Import, desk.Catalogue());
    std::vector<const ImportProposal*> taken;
    Json json = Json::array();
    for (const ImportProposal& proposal : proposals) {
        const bool isTaken = IsTaken(proposal, options.Take);
        if (isTaken) {
            taken.push_back(&proposal);
        }
        if (options.Json) {
            json.push_back(JsonOf(proposal, desk.Catalogue(), isTaken));
        } else {
            out << Printable(LineOf(proposal, desk.Catalogue())) << '\n';
        }
    }
    if (!taken.empty()) {
        desk.Change([&](Shelf& shelf) {
            for (const ImportProposal* proposal : taken) {
                TakeProposal(shelf, desk.Catalogue(), *proposal, proposal->Paints.front());
            }
        });
    }
    if (options.Json) {
        out << json.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
    } else if (options.Take.empty()) {
        out << "Nothing is taken yet: add --take exact, --take all or --take with line numbers.\n";
    } else {
        out << taken.size() << " taken.\n";
    }
}

// "Hansa Yellow=H2": the paint as a line of a list would name it, among the owned ones.
void Relabel(ShelfDesk& desk, const PaintsOptions& options) {
    desk.Change([&](Shelf& shelf) {
        PaintList owned;
        for (const ShelfPaint& paint : shelf.Paints) {
            owned.Add(PaintOf(paint));
        }
        for (const std::string& word : options.Label) {
            const std::size_t equals = std::min(word.rfind('='), word.size());
            const auto named = ProposeImport(word.substr(0, equals), "--label", owned);
            if (equals == word.size() || named.size() != 1 ||
                named[0].Match != ImportMatch::Exact) {
                throw UsageError("--label \"" + word +
                                 "\" names no one paint of yours. Write its name or code, = and "
                                 "the label, as in \"Hansa Yellow Light=H2\".");
            }
            SetLabel(shelf, IdOf(owned[named[0].Paints.front()]), word.substr(equals + 1));
        }
    });
}

void AddTable(const ShelfDesk& desk, const PaintsOptions& options, const Surroundings& around) {
    const std::filesystem::path& file = options.AddCatalogue;
    const CsvTable table = ParseCsv(ReadTextFile(file), file);
    const CatalogueColumns columns =
        options.Columns.empty() ? GuessColumns(table) : ColumnsNamed(options.Columns, table);
    const std::string name = file.stem().string();
    const ForeignCatalogue read = ReadForeignCatalogue(table, columns, name, file);
    for (const std::string& fault : read.Faults) {
        around.Err << "vendrel: " << Printable(fault) << '\n';
    }
    const std::filesystem::path added = AddCatalogue(desk.Folder(), name, read.Paints);
    around.Out << Printable(added.lexically_normal().string()) << ": " << read.Paints.Count()
               << " paints, " << read.Faults.size() << " lines left out\n";
}

StickerSheet SheetNamed(const std::string& word) {
    const std::span<const StickerSheet> sheets = StickerSheets();
    const auto toNumber = [&word](std::string_view text) {
        const auto number = CsvNumber(text, ';', 1000);
        if (!number) {
            throw UsageError("--sheet cannot be \"" + word +
                             "\"; choose list, the number of a sheet or a size such as 40x20.");
        }
        return *number;
    };
    if (const std::size_t by = word.find('x'); by != word.npos) {
        constexpr double kMargin = 7;
        return StickerGrid({210, 297},
                           {toNumber(word.substr(0, by)), toNumber(word.substr(by + 1))}, kMargin);
    }
    const double number = word.empty() ? 1 : toNumber(word);
    if (number != std::floor(number) || number < 1 || number > static_cast<double>(sheets.size())) {
        throw UsageError("--sheet " + word + " is none of the sheets 1 to " +
                         std::to_string(sheets.size()) + "; --sheet list shows them.");
    }
    return sheets[static_cast<std::size_t>(number) - 1];
}

void PrintStickers(ShelfDesk& desk, const PaintsOptions& options, std::ostream& out) {
    if (options.Sheet == "list") {
        int number = 0;
        for (const StickerSheet& sheet : StickerSheets()) {
            out << ++number << "  " << sheet.Name << '\n';
        }
        return;
    }
    const StickerSheet sheet = SheetNamed(options.Sheet);
    if (options.Used >= sheet.Count()) {
        throw UsageError("--used " + std::to_string(options.Used) +
                         " leaves no label of a sheet of " + std::to_string(sheet.Count()) + ".");
    }
    const std::vector<Sticker> stickers = StickersOf(desk.Owned());
    desk.Fonts().WriteStickers(stickers, sheet, options.Used, options.Stickers);
    out << Printable(options.Stickers.string()) << ": " << stickers.size()
        << (stickers.size() == 1 ? " label\n" : " labels\n");
}

}  // namespace

void RunPaints(const PaintsOptions& options, const Surroundings& around) {
    ShelfDesk desk(options.Folder, around);
    if (!options.Missing.empty()) {
        ListMissing(desk, options, around.Out);
    } else if (!options.Import.empty()) {
        Import(desk, options, around.Out);
    } else if (!options.Stickers.empty()) {
        PrintStickers(desk, options, around.Out);
    } else if (!options.Label.empty()) {
        Relabel(desk, options);
    } else if (!options.AddCatalogue.empty()) {
        AddTable(desk, options, around);
    } else {
        List(desk, options, around.Out);
    }
}

}  // namespace vendrel
