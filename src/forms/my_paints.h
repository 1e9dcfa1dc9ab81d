#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shelf/paint_import.h"
#include "shelf/shelf.h"
#include "shell/workplace.h"

namespace vendrel {

enum class PaintOrderBy { Set, Name, Hue };

/// Which paints are shown, and in which order.
struct MyPaintsSearch {
    std::string Text{};      // words of set, name, code (often a pigment), label or note
    std::string Set{};       // one set only; empty: all
    bool OwnedOnly = false;  // the painter's alone
    PaintOrderBy Order = PaintOrderBy::Set;
    std::optional<Color> Near{};  // nearest by eye first, whatever the order
};

/// A paint of the catalogue, of the painter's own, or both.
struct MyPaintsRow {
    PaintColor Paint;
    bool Owned = false;
    bool Left = true;  // false: used up
    std::string Label{};
    std::string MlLeft{};  // as it is typed
    std::string Pots{};
    std::string Note{};
    std::string Standing{};  // how it stands in the catalogue where that is worth a word
    double Seen = 0;         // from the color looked for
};

/// A paint set, and how much of it is owned.
struct MyPaintsSet {
    std::string Name;
    int Owned = 0;
    int Paints = 0;
};

/// What of an owned paint is written by hand.
enum class ShelfField { Label, MlLeft, Pots, Note };

/// The painter's own paints beside the catalogue. Works on a copy of the shelf until done.
class MyPaints {
  public:
    explicit MyPaints(Workplace& place) : place_(place) {}

    /// Throws FileError and FormatError for a shelf that cannot be read.
    void Form_Load();
    void Search_Change(const MyPaintsSearch& search);
    /// Owns paints of Rows(), counted from 0, or owns them no more, in one step. One that was owned
    /// in this window before gets back what was written of it.
    void Own_Click(const std::vector<int>& rows, bool owned);
    /// The same with all of a set, whatever is shown.
    void OwnSet_Click(const std::string& set, bool owned);
    /// Throws Error, with everything as it was, for what cannot be read or a label that is taken.
    void Field_Change(int row, ShelfField field, std::string_view text);
    /// A paint that no catalogue has. Throws Error without a name and for one that is there.
    void AddOwn_Click(const PaintColor& paint);
    /// The painter's own eye before the catalogue's color.
    void Color_Change(int row, Color measured);

    /// What the lines of a list may mean; nothing is taken yet. Throws FileError, FormatError.
    void ReadList_Click(const std::filesystem::path& file);
    [[nodiscard]] const std::vector<ImportProposal>& Proposals() const { return proposals_; }
    /// Takes what was confirmed: for each proposal the paint of the catalogue, or 0 for none.
    void TakeList_Click(const std::vector<int>& paints);

    void Undo_Click();
    /// Saves what was changed, beside whatever other programs changed meanwhile, and closes. Throws
    /// FileError, FormatError; the window then stays open.
    void Done_Click();
    /// Asks before changes go.
    void Cancel_Click();
    /// The same without closing, for the end of a session.
    void Save();

    [[nodiscard]] const std::vector<MyPaintsRow>& Rows() const { return rows_; }
    [[nodiscard]] const std::vector<MyPaintsSet>& Sets() const { return sets_; }
    [[nodiscard]] const MyPaintsSearch& Search() const { return search_; }
    [[nodiscard]] const Shelf& Owned() const { return shelf_; }
    [[nodiscard]] bool Changed() const { return !(shelf_ == before_); }
    [[nodiscard]] bool CanUndo() const { return !past_.empty(); }
    /// "57 paints of yours, 3 of them marked; 12 shown"
    [[nodiscard]] std::string Summary() const;

  private:
    void Begin();
    void Own(const PaintColor& paint, bool owned);
    void List();
    void ListSets();
    void Sort();
    [[nodiscard]] MyPaintsRow RowOf(const ShelfPaint& paint) const;
    [[nodiscard]] bool Shows(const MyPaintsRow& row, std::string_view lowerText) const;
    [[nodiscard]] ShelfPaint& RequireOwned(int row);

    Workplace& place_;
    Shelf before_;  // as it was read
    Shelf shelf_;
    std::vector<Shelf> past_;
    std::map<PaintId, ShelfPaint> dropped_;
    MyPaintsSearch search_;
    std::vector<MyPaintsRow> rows_;
    std::vector<MyPaintsSet> sets_;
    std::vector<ImportProposal> proposals_;
};

}  // namespace vendrel
