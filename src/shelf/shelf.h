#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/paint_id.h"
#include "shell/records.h"
#include "support/color.h"

namespace vendrel {

/// What painting a kit took of a paint.
struct TakenPaint {
    std::string Kit;  // its title
    double Ml = 0;

    bool operator==(const TakenPaint&) const = default;
};

/// A paint that the painter owns, or once did.
struct ShelfPaint {
    std::string Set;
    std::string Name;
    std::string Code;
    std::optional<double> MlLeft{};  // in all its pots; nothing: nobody measured
    std::optional<int> Pots{};
    std::string Label{};              // as LabelOf gives it; empty: none yet
    std::optional<Color> Measured{};  // by the painter's own eye; goes before every other color
    std::optional<Color> LastSeen{};  // in a catalogue, which may lose the paint
    std::string Note{};
    std::vector<TakenPaint> Taken{};    // by kits, the last one last
    std::vector<std::string> Others{};  // by Shelf::OtherColumns; may be shorter

    bool operator==(const ShelfPaint&) const = default;

    /// False for one that is used up.
    [[nodiscard]] bool IsLeft() const {
        return MlLeft.value_or(1) > 0 && (MlLeft || Pots.value_or(1) > 0);
    }
    [[nodiscard]] std::optional<Color> LooksLike() const { return Measured ? Measured : LastSeen; }
};

/// The painter's paints. No two are one paint, and no two labels are alike.
struct Shelf {
    std::vector<ShelfPaint> Paints;
    std::vector<std::string> OtherColumns{};  // that this version knows nothing of
    char Separator = ',';                     // of the file: with ; numbers have decimal commas

    bool operator==(const Shelf&) const = default;
};

[[nodiscard]] PaintId IdOf(const ShelfPaint& paint);
/// As a paint to paint with: black where nobody knows its color.
[[nodiscard]] PaintColor PaintOf(const ShelfPaint& paint);

/// Null when it is not there.
[[nodiscard]] const ShelfPaint* FindOnShelf(const Shelf& shelf, const PaintId& paint);
[[nodiscard]] ShelfPaint* FindOnShelf(Shelf& shelf, const PaintId& paint);

/// Puts a catalogue's paint there unless it is there, with the first free label, and answers it.
ShelfPaint& AddToShelf(Shelf& shelf, const PaintColor& paint);
/// Throws Error, with a sentence, when it is not there.
void RemoveFromShelf(Shelf& shelf, const PaintId& paint);

/// Gives a paint of the shelf a label. Throws Error, with a sentence, for a paint that is not there
/// and for a label that is none or is like another's.
void SetLabel(Shelf& shelf, const PaintId& paint, std::string_view label);
/// All of the shelf, or but that of one paint.
[[nodiscard]] std::vector<std::string> LabelsOf(const Shelf& shelf,
                                                const ShelfPaint* but = nullptr);
/// Gives the first free label to every paint without one.
void GiveLabels(Shelf& shelf);

/// How a paint of the shelf stands in the catalogue.
enum class InCatalogue {
    Known,
    Renamed,  // a paint of that set has its code under another name, or its name with another code
    Lost,     // the catalogue has the set without it
    Own       // no set of that name: a paint of the painter's own
};
struct CatalogueStanding {
    InCatalogue What = InCatalogue::Own;
    int Paint = 0;  // in the catalogue: itself, or what it seems to have become; 0: none
};
[[nodiscard]] CatalogueStanding StandingOf(const ShelfPaint& paint, const PaintList& catalogue);

/// Notes the catalogue's colors of the paints that it knows.
void SeeInCatalogue(Shelf& shelf, const PaintList& catalogue);

/// The paints that are left and whose color is known, in the shelf's order.
[[nodiscard]] PaintList OwnedPaints(const Shelf& shelf);

/// What came to be when two programs changed one shelf: `now` with what one of them changed between
/// `before` and `after`, paint by paint and field by field. A paint that it added is there once,
/// one that it removed is gone, and of two labels that became alike the one in `now` stays.
[[nodiscard]] Shelf MergeShelves(const Shelf& now, const Shelf& before, const Shelf& after);

}  // namespace vendrel
