#pragma once

#include <optional>
#include <string>
#include <vector>

#include "shelf/shelf.h"
#include "shell/owned_first.h"
#include "shell/workplace.h"

namespace vendrel {

/// Where a kit's paints are chosen from.
enum class PaintsFrom { Sets, Template, Owned };

struct PaintSourceWish {
    PaintsFrom From = PaintsFrom::Sets;
    std::string Template{};  // its name
    bool ByEye = false;      // colors are matched so; always where what is owned goes first
    OwnedFirst Buying{};     // has no meaning where all paints are owned

    bool operator==(const PaintSourceWish&) const = default;
};

/// What the photo at hand comes to with a wish.
struct PaintSourceFigures {
    int Paints = 0;
    int ToBuy = 0;
    double Seen = 0;    // mean seen difference of stipples and their paints
    Surface Picture{};  // a pixel a stipple
};

/// One choice of where paints come from: sets, a template or what is owned, and whether that goes
/// first.
class PaintSourceForm {
  public:
    explicit PaintSourceForm(Workplace& place) : place_(place) {}

    /// Throws FileError, FormatError for a shelf that cannot be read.
    void Form_Load();
    void Choose(const PaintSourceWish& wish);
    /// Something else may have changed what is owned. Throws as Form_Load.
    void ReadOwned();
    /// Puts the choice in force. A photo that was changed to stipples is changed again, with its
    /// edits, and painted again if it was. Throws Error, with everything as it was.
    void AcceptButton_Click();
    void CancelButton_Click();

    [[nodiscard]] const PaintSourceWish& Wish() const { return wish_; }
    [[nodiscard]] const std::vector<std::string>& Templates() const { return templates_; }
    [[nodiscard]] const std::vector<std::string>& SelectedSets() const;
    [[nodiscard]] int OwnedCount() const { return owned_.Count(); }
    /// Converts a copy of the photo at hand; nothing without one, or without paints.
    [[nodiscard]] std::optional<PaintSourceFigures> Figures() const;

  private:
    void Apply(Workplace& place) const;

    Workplace& place_;
    PaintSourceWish wish_;
    std::vector<std::string> templates_;
    Shelf shelf_;
    PaintList owned_;
};

/// "Paint sets: Artist Acrylics and 2 more", "Template: Sky", "What I own, 40 paints", and ", owned
/// first": what is in force.
[[nodiscard]] std::string PaintSourceText(const WorkState& state);

}  // namespace vendrel
