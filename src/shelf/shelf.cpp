#include "shelf/shelf.h"

#include <algorithm>
#include <map>

#include "shelf/labels.h"
#include "support/error.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

[[noreturn]] void RefuseUnowned(const PaintId& paint) {
    throw Error("The paint " + paint.Set + ": " + paint.Name +
                " is not among your paints. Add it first.");
}

ShelfPaint& Require(Shelf& shelf, const PaintId& paint) {
    ShelfPaint* const found = FindOnShelf(shelf, paint);
    if (found == nullptr) {
        RefuseUnowned(paint);
    }
    return *found;
}

template <class Value>
void TakeChange(Value& now, const Value& before, const Value& after) {
    if (!(before == after)) {
        now = after;
    }
}

// Columns may stand in another order by now.
void TakeOthers(Shelf& merged, ShelfPaint& now, const Shelf& from, const ShelfPaint& before,
                const ShelfPaint& after) {
    for (std::size_t i = 0; i < after.Others.size(); ++i) {
        const std::string& was = i < before.Others.size() ? before.Others[i] : std::string();
        if (after.Others[i] == was) {
            continue;
        }
        auto column = std::ranges::find(merged.OtherColumns, from.OtherColumns[i]);
        if (column == merged.OtherColumns.end()) {
            merged.OtherColumns.push_back(from.OtherColumns[i]);
            column = merged.OtherColumns.end() - 1;
        }
        const auto at = static_cast<std::size_t>(column - merged.OtherColumns.begin());
        now.Others.resize(std::max(now.Others.size(), at + 1));
        now.Others[at] = after.Others[i];
    }
}

void TakeFields(ShelfPaint& now, const ShelfPaint& before, const ShelfPaint& after) {
    TakeChange(now.MlLeft, before.MlLeft, after.MlLeft);
    TakeChange(now.Pots, before.Pots, after.Pots);
    TakeChange(now.Label, before.Label, after.Label);
    TakeChange(now.Measured, before.Measured, after.Measured);
    TakeChange(now.LastSeen, before.LastSeen, after.LastSeen);
    TakeChange(now.Note, before.Note, after.Note);
    TakeChange(now.Taken, before.Taken, after.Taken);
}

// Two programs may have given one label to two paints.
void PartLabels(Shelf& merged, const Shelf& now) {
    for (ShelfPaint& paint : merged.Paints) {
        const ShelfPaint* const stood = FindOnShelf(now, IdOf(paint));
        const bool changed = stood == nullptr || stood->Label != paint.Label;
        const auto isAlike = [&paint](const std::string& other) {
            return AreLabelsAlike(paint.Label, other);
        };
        if (changed && std::ranges::any_of(LabelsOf(merged, &paint), isAlike)) {
            paint.Label = stood == nullptr ? std::string() : stood->Label;
            if (!paint.Label.empty() && std::ranges::any_of(LabelsOf(merged, &paint), isAlike)) {
                paint.Label.clear();
            }
        }
    }
    GiveLabels(merged);
}

}  // namespace

PaintId IdOf(const ShelfPaint& paint) {
    return {ToLower(paint.Set), ToLower(paint.Name), ToLower(paint.Code)};
}

PaintColor PaintOf(const ShelfPaint& paint) {
    const Color color = paint.LooksLike().value_or(kBlack);
    return {RedOf(color), GreenOf(color), BlueOf(color), paint.Set, paint.Code, paint.Name, 0};
}

const ShelfPaint* FindOnShelf(const Shelf& shelf, const PaintId& paint) {
    const auto found =
        std::ranges::find(shelf.Paints, paint, [](const ShelfPaint& each) { return IdOf(each); });
    return found == shelf.Paints.end() ? nullptr : &*found;
}

ShelfPaint* FindOnShelf(Shelf& shelf, const PaintId& paint) {
    const auto found =
        std::ranges::find(shelf.Paints, paint, [](const ShelfPaint& each) { return IdOf(each); });
    return found == shelf.Paints.end() ? nullptr : &*found;
}

ShelfPaint& AddToShelf(Shelf& shelf, const PaintColor& paint) {
    if (ShelfPaint* const found = FindOnShelf(shelf, IdOf(paint))) {
        return *found;
    }
    shelf.Paints.push_back({paint.Mfg, paint.PaintName, paint.PaintCode});
    ShelfPaint& added = shelf.Paints.back();
    added.LastSeen = ColorOf(paint);
    added.Label = NextFreeLabel(LabelsOf(shelf, &added));
    return added;
}

void RemoveFromShelf(Shelf& shelf, const PaintId& paint) {
    const ShelfPaint& found = Require(shelf, paint);
    shelf.Paints.erase(shelf.Paints.begin() + (&found - shelf.Paints.data()));
}

void SetLabel(Shelf& shelf, const PaintId& paint, std::string_view label) {
    ShelfPaint& found = Require(shelf, paint);
    found.Label = RequireFreeLabel(label, LabelsOf(shelf, &found));
}

std::vector<std::string> LabelsOf(const Shelf& shelf, const ShelfPaint* but) {
    std::vector<std::string> labels;
    for (const ShelfPaint& paint : shelf.Paints) {
        if (&paint != but && !paint.Label.empty()) {
            labels.push_back(paint.Label);
        }
    }
    return labels;
}

void GiveLabels(Shelf& shelf) {
    std::vector<std::string> taken = LabelsOf(shelf);
    for (ShelfPaint& paint : shelf.Paints) {
        if (paint.Label.empty()) {
            paint.Label = NextFreeLabel(taken);
            taken.push_back(paint.Label);
        }
    }
}

CatalogueStanding StandingOf(const ShelfPaint& paint, const PaintList& catalogue) {
    CatalogueStanding standing;
    const PaintId id = IdOf(paint);
    for (int i = 1; i <= catalogue.Count(); ++i) {
        const PaintId other = IdOf(catalogue[i]);
        if (other == id) {
            return {InCatalogue::Known, i};
        }
        if (other.Set != id.Set || standing.What == InCatalogue::Renamed) {
            continue;
        }
        const bool renamed = (!id.Code.empty() && other.Code == id.Code) ||
                             (!id.Name.empty() && other.Name == id.Name);
        standing = {renamed ? InCatalogue::Renamed : InCatalogue::Lost, renamed ? i : 0};
    }
    return standing;
}

void SeeInCatalogue(Shelf& shelf, const PaintList& catalogue) {
    std::map<PaintId, Color> colors;
    for (const PaintColor& paint : catalogue) {
        colors.emplace(IdOf(paint), ColorOf(paint));
    }
    for (ShelfPaint& paint : shelf.Paints) {
        if (const auto found = colors.find(IdOf(paint)); found != colors.end()) {
            paint.LastSeen = found->second;
        }
    }
}

PaintList OwnedPaints(const Shelf& shelf) {
    PaintList paints;
    for (const ShelfPaint& paint : shelf.Paints) {
        if (paint.IsLeft() && paint.LooksLike()) {
            paints.Add(PaintOf(paint));
        }
    }
    return paints;
}

Shelf MergeShelves(const Shelf& now, const Shelf& before, const Shelf& after) {
    Shelf merged = now;
    for (const ShelfPaint& paint : after.Paints) {
        const PaintId id = IdOf(paint);
        const ShelfPaint* const was = FindOnShelf(before, id);
        if (was != nullptr && *was == paint) {
            continue;
        }
        ShelfPaint* mine = FindOnShelf(merged, id);
        if (mine == nullptr) {
            merged.Paints.push_back(paint);
            mine = &merged.Paints.back();
            mine->Others.clear();
        }
        const ShelfPaint none{paint.Set, paint.Name, paint.Code};
        TakeFields(*mine, was != nullptr ? *was : none, paint);
        TakeOthers(merged, *mine, after, was != nullptr ? *was : none, paint);
    }
    for (const ShelfPaint& paint : before.Paints) {
        const PaintId id = IdOf(paint);
        if (FindOnShelf(after, id) == nullptr && FindOnShelf(merged, id) != nullptr) {
            RemoveFromShelf(merged, id);
        }
    }
    PartLabels(merged, now);
    return merged;
}

}  // namespace vendrel
