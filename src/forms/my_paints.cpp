#include "forms/my_paints.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <sstream>
#include <utility>

#include "eye/lab.h"
#include "eye/seen_difference.h"
#include "output/chart_contents.h"
#include "shelf/labels.h"
#include "shelf/shelf_file.h"
#include "support/csv_table.h"
#include "support/decimals.h"
#include "support/error.h"
#include "support/letter_case.h"
#include "support/list.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

constexpr double kMostMl = 1'000'000;

std::string StandingText(const ShelfPaint& paint, const PaintList& catalogue) {
    const CatalogueStanding standing = StandingOf(paint, catalogue);
    switch (standing.What) {
        case InCatalogue::Known:
            return "";
        case InCatalogue::Renamed:
            return "Now " + PaintLabel(catalogue[standing.Paint]);
        case InCatalogue::Lost:
            return "Not in the catalogue any more";
        case InCatalogue::Own:
            return "Your own";
    }
    return "";
}

std::string Shortest(double number) {
    std::ostringstream text;
    text << number;
    return text.str();
}

// Grays come last, light ones first.
std::pair<double, double> HueKey(const PaintColor& paint) {
    const Lab lab = LabOf(ColorOf(paint));
    return {HueAngleOf(lab), -lab.L};
}

bool HasAllWords(const std::string& lower, std::string_view words) {
    std::istringstream each{std::string(words)};
    for (std::string word; each >> word;) {
        if (lower.find(word) == lower.npos) {
            return false;
        }
    }
    return true;
}

std::optional<double> AmountTyped(std::string_view text, const char* what) {
    const std::string_view trimmed = Trimmed(text);
    if (trimmed.empty()) {
        return std::nullopt;
    }
    const auto number = CsvNumber(trimmed, ';', kMostMl);
    if (!number || *number < 0 || *number > kMostMl) {
        throw Error("\"" + std::string(trimmed) + "\" cannot be read as " + what +
                    ". Write a number from 0 on, or nothing when you did not measure.");
    }
    return number;
}

std::optional<int> PotsTyped(std::string_view text) {
    const auto number = AmountTyped(text, "a number of pots");
    if (number && *number != std::floor(*number)) {
        throw Error("Write whole pots, as in 2.");
    }
    return number ? std::optional(static_cast<int>(*number)) : std::nullopt;
}

}  // namespace

void MyPaints::Form_Load() {
    before_ = ReadShelf(place_.Folder);
    shelf_ = before_;
    SeeInCatalogue(shelf_, place_.State->MasterColors);
    GiveLabels(shelf_);
    before_ = shelf_;  // what nobody did by hand is nothing to ask about
    past_.clear();
    dropped_.clear();
    List();
}

void MyPaints::Search_Change(const MyPaintsSearch& search) {
    search_ = search;
    List();
}

MyPaintsRow MyPaints::RowOf(const ShelfPaint& paint) const {
    return {.Paint = PaintOf(paint),
            .Owned = true,
            .Left = paint.IsLeft(),
            .Label = paint.Label,
            .MlLeft = paint.MlLeft ? Shortest(*paint.MlLeft) : "",
            .Pots = paint.Pots ? std::to_string(*paint.Pots) : "",
            .Note = paint.Note,
            .Standing = StandingText(paint, place_.State->MasterColors)};
}

bool MyPaints::Shows(const MyPaintsRow& row, std::string_view lowerText) const {
    if ((!search_.Set.empty() && row.Paint.Mfg != search_.Set) ||
        (search_.OwnedOnly && !row.Owned)) {
        return false;
    }
    return HasAllWords(ToLower(row.Paint.Mfg + '\n' + row.Paint.PaintName + '\n' +
                               row.Paint.PaintCode + '\n' + row.Label + '\n' + row.Note),
                       lowerText);
}

void MyPaints::List() {
    rows_.clear();
    const std::string text = ToLower(search_.Text);
    std::map<PaintId, const ShelfPaint*> owned;
    for (const ShelfPaint& paint : shelf_.Paints) {
        owned.emplace(IdOf(paint), &paint);
    }
    const auto show = [&](MyPaintsRow row) {
        if (Shows(row, text)) {
            rows_.push_back(std::move(row));
        }
    };
    std::set<PaintId> listed;
    for (const PaintColor& paint : place_.State->MasterColors) {
        const PaintId id = IdOf(paint);
        if (listed.insert(id).second) {
            const auto found = owned.find(id);
            show(found == owned.end() ? MyPaintsRow{.Paint = paint} : RowOf(*found->second));
        }
    }
    for (const ShelfPaint& paint : shelf_.Paints) {
        if (!listed.contains(IdOf(paint))) {
            show(RowOf(paint));
        }
    }
    Sort();
    ListSets();
}

void MyPaints::Sort() {
    if (search_.Near) {
        const Lab wanted = LabOf(*search_.Near);
        for (MyPaintsRow& row : rows_) {
            row.Seen = Ciede2000(wanted, LabOf(ColorOf(row.Paint)));
        }
        std::ranges::stable_sort(rows_, {}, &MyPaintsRow::Seen);
    } else if (search_.Order == PaintOrderBy::Name) {
        std::ranges::stable_sort(
            rows_, {}, [](const MyPaintsRow& row) { return ToLower(row.Paint.PaintName); });
    } else if (search_.Order == PaintOrderBy::Hue) {
        std::ranges::stable_sort(rows_, {},
                                 [](const MyPaintsRow& row) { return HueKey(row.Paint); });
    }
}

// In the catalogue's order, the painter's own sets behind.
void MyPaints::ListSets() {
    sets_.clear();
    const auto setOf = [this](const std::string& name) -> MyPaintsSet& {
        const auto found = std::ranges::find(sets_, name, &MyPaintsSet::Name);
        return found != sets_.end() ? *found : sets_.emplace_back(MyPaintsSet{.Name = name});
    };
    std::set<PaintId> listed;
    for (const PaintColor& paint : place_.State->MasterColors) {
        listed.insert(IdOf(paint));
        ++setOf(paint.Mfg).Paints;
    }
    for (const ShelfPaint& paint : shelf_.Paints) {
        MyPaintsSet& set = setOf(paint.Set);
        ++set.Owned;
        set.Paints += listed.contains(IdOf(paint)) ? 0 : 1;
    }
}

void MyPaints::Begin() {
    past_.push_back(shelf_);
}

void MyPaints::Own(const PaintColor& paint, bool owned) {
    const PaintId id = IdOf(paint);
    ShelfPaint* const there = FindOnShelf(shelf_, id);
    if (owned == (there != nullptr)) {
        return;
    }
    if (!owned) {
        dropped_[id] = *there;
        RemoveFromShelf(shelf_, id);
        return;
    }
    ShelfPaint& added = AddToShelf(shelf_, paint);
    if (const auto known = dropped_.find(id); known != dropped_.end()) {
        const std::string label = added.Label;
        added = known->second;
        const std::vector<std::string> taken = LabelsOf(shelf_, &added);
        if (std::ranges::any_of(taken, [&added](const std::string& other) {
                return AreLabelsAlike(added.Label, other);
            })) {
            added.Label = label;
        }
    }
}

void MyPaints::Own_Click(const std::vector<int>& rows, bool owned) {
    Begin();
    for (const int row : rows) {
        if (Holds(rows_, row)) {
            Own(At(rows_, row).Paint, owned);
        }
    }
    List();
}

void MyPaints::OwnSet_Click(const std::string& set, bool owned) {
    Begin();
    for (const PaintColor& paint : place_.State->MasterColors) {
        if (paint.Mfg == set) {
            Own(paint, owned);
        }
    }
    if (!owned) {
        for (const ShelfPaint& paint : std::vector<ShelfPaint>(shelf_.Paints)) {
            if (paint.Set == set) {
                Own(PaintOf(paint), false);
            }
        }
    }
    List();
}

ShelfPaint& MyPaints::RequireOwned(int row) {
    ShelfPaint* const paint =
        Holds(rows_, row) ? FindOnShelf(shelf_, IdOf(At(rows_, row).Paint)) : nullptr;
    if (paint == nullptr) {
        throw Error("Tick the paint first: only of a paint that you own can this be noted.");
    }
    return *paint;
}

void MyPaints::Field_Change(int row, ShelfField field, std::string_view text) {
    ShelfPaint changed = RequireOwned(row);
    switch (field) {
        case ShelfField::Label:
            changed.Label = RequireFreeLabel(text, LabelsOf(shelf_, &RequireOwned(row)));
            break;
        case ShelfField::MlLeft:
            changed.MlLeft = AmountTyped(text, "milliliters");
            break;
        case ShelfField::Pots:
            changed.Pots = PotsTyped(text);
            break;
        case ShelfField::Note:
            changed.Note = Trimmed(text);
            break;
    }
    if (!(changed == RequireOwned(row))) {
        Begin();
        RequireOwned(row) = std::move(changed);
        At(rows_, row) = RowOf(RequireOwned(row));
    }
}

void MyPaints::Color_Change(int row, Color measured) {
    (void)RequireOwned(row);
    Begin();
    RequireOwned(row).Measured = measured;
    List();
}

void MyPaints::AddOwn_Click(const PaintColor& paint) {
    if (Trimmed(paint.PaintName).empty()) {
        throw Error("Give the paint a name.");
    }
    if (FindOnShelf(shelf_, IdOf(paint)) != nullptr) {
        throw Error("\"" + paint.PaintName + "\" is among your paints already.");
    }
    Begin();
    AddToShelf(shelf_, paint).Measured = ColorOf(paint);
    List();
}

void MyPaints::ReadList_Click(const std::filesystem::path& file) {
    proposals_ = ProposeImport(ReadTextFile(file), file, place_.State->MasterColors);
}

void MyPaints::TakeList_Click(const std::vector<int>& paints) {
    Begin();
    for (std::size_t i = 0; i < std::min(paints.size(), proposals_.size()); ++i) {
        if (paints[i] > 0) {
            TakeProposal(shelf_, place_.State->MasterColors, proposals_[i], paints[i]);
        }
    }
    GiveLabels(shelf_);
    proposals_.clear();
    List();
}

void MyPaints::Undo_Click() {
    if (!past_.empty()) {
        shelf_ = std::move(past_.back());
        past_.pop_back();
        List();
    }
}

void MyPaints::Save() {
    if (Changed()) {
        shelf_ = SaveShelf(place_.Folder, before_, shelf_);
        before_ = shelf_;
    }
}

void MyPaints::Done_Click() {
    Save();
    if (place_.State->Chosen.Buying.Asked) {
        place_.State->OwnedPaints = OwnedPaints(shelf_);
    }
    place_.Screen.CloseForm(FormId::MyPaints);
}

void MyPaints::Cancel_Click() {
    if (!Changed() || place_.Screen.Ask("My Paints", "Give up what you changed here?")) {
        shelf_ = before_;
        place_.Screen.CloseForm(FormId::MyPaints);
    }
}

std::string MyPaints::Summary() const {
    const std::size_t owned = shelf_.Paints.size();
    return std::to_string(owned) + (owned == 1 ? " paint of yours" : " paints of yours") + ", " +
           std::to_string(rows_.size()) + " shown";
}

}  // namespace vendrel
