#pragma once

#include <string>
#include <vector>

#include "paints/next_best.h"
#include "shell/paint_id.h"
#include "shell/workplace.h"

namespace vendrel {

/// Where the next best paints come from.
enum class MatchSource { SelectedSets, WholeCatalogue };

/// One paint of the palette in the matcher.
struct MatcherRow {
    PaintColor Original;
    PaintColor Current;
    int Stipples = 0;     // in what accepting gives
    int ShareTenths = 0;  // of that picture, in tenths of a percent
    int Symbol = 0;
    /// Also true for the same paint in another color: the catalogue may have been corrected.
    [[nodiscard]] bool Exchanged() const {
        return ColorOf(Original) != ColorOf(Current) || !SamePaint(Original, Current);
    }
};

/// Offers next best paints for those of the palette and exchanges them. Works on a copy of the
/// palette until accepted.
class ColorMatcher {
  public:
    /// How many next best paints are offered for each.
    static constexpr int kOffers = 12;

    explicit ColorMatcher(Workplace& place) : place_(place) {}

    /// Throws Error while there is no grid to match.
    void Form_Load();
    void Source_Click(MatchSource source);
    /// Chooses a paint of the palette, from 1.
    void PaintList_Click(int paint);
    /// Takes the offer, counted from 0, in the place of the chosen paint.
    void Exchange_Click(int offer);
    void PutBack_Click();
    void PutAllBack_Click();

    /// Converts the photo with the exchanged palette and closes, after asking when touched-up work
    /// would go.
    void AcceptButton_Click();
    void CancelButton_Click();
    /// Writes the palette as a template named after the kit; returns the name.
    std::string SaveTemplate_Click();

    /// One per paint of the palette.
    [[nodiscard]] const OneBased<MatcherRow>& Rows() const { return rows_; }
    [[nodiscard]] int Chosen() const { return chosen_; }
    [[nodiscard]] MatchSource Source() const { return source_; }
    [[nodiscard]] const std::vector<NextBestPaint>& Offers() const { return offers_; }
    [[nodiscard]] bool AnyExchanged() const;
    /// What accepting would give, one pixel a stipple.
    [[nodiscard]] const Surface& Preview() const { return preview_; }

  private:
    [[nodiscard]] PaintList Palette() const;
    void Exchange(Workplace& place) const;
    [[nodiscard]] PaintList Taken() const;
    void FindOffers();
    void ShowPreview();
    void CountRows(const WorkState& converted);
    void Changed();

    Workplace& place_;
    OneBased<MatcherRow> rows_;
    std::vector<NextBestPaint> offers_;
    MatchSource source_ = MatchSource::SelectedSets;
    int chosen_ = 0;
    Surface preview_;
};

}  // namespace vendrel
