#pragma once

#include "output/output_id.h"
#include "plan/planned_kit.h"
#include "plan/shopping.h"
#include "plan/sticker_sheet.h"
#include "support/surface.h"
#include "support/target.h"

namespace vendrel {

/// Writes what needs fonts.
class Exporter {
  public:
    Exporter() = default;
    Exporter(const Exporter&) = delete;
    Exporter& operator=(const Exporter&) = delete;
    virtual ~Exporter() = default;

    /// How wide the symbols of a kit's paints are as the pages show them. Throws Error for a
    /// missing font.
    [[nodiscard]] virtual SymbolAspects Aspects(const PaintMarks& marks) const = 0;

    /// The first page of the plan as it would be printed, so many pixels at its longer side. Throws
    /// as Write.
    [[nodiscard]] virtual Surface Preview(PlannedKit& kit, int longest) const = 0;

    /// Writes pot labels at true size, see StickerPlace. Throws Error without any or for a missing
    /// font, FileError.
    virtual void WriteStickers(const std::vector<Sticker>& stickers, const StickerSheet& sheet,
                               int used, const Target& target) const = 0;

    /// Writes a list to take along to the shop, with boxes to tick. Throws Error when there is
    /// nothing to buy or for a missing font, FileError.
    virtual void WriteShopping(const ShoppingPage& page, const Target& target) const = 0;

    /// Writes the color chart, the kit's pages, its plan as a drawing, the page to paint along with
    /// or the list of paints to `target`, whole or not at all. The painted picture stays as it is.
    /// Throws Error for an unpainted picture, more paints than symbols, a missing font or an output
    /// that needs none, FileError.
    virtual void Write(OutputId output, PlannedKit& kit, const Target& target) const = 0;
};

}  // namespace vendrel
