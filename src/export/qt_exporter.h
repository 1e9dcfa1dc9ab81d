#pragma once

#include "export/gui_application.h"
#include "plan/exporter.h"

namespace vendrel {

/// Writes color charts and printable kits with the toolkit's fonts.
class QtExporter final : public Exporter {
  public:
    [[nodiscard]] SymbolAspects Aspects(const PaintMarks& marks) const override;
    [[nodiscard]] Surface Preview(PlannedKit& kit, int longest) const override;
    void WriteStickers(const std::vector<Sticker>& stickers, const StickerSheet& sheet, int used,
                       const Target& target) const override;
    void WriteShopping(const ShoppingPage& page, const Target& target) const override;
    void Write(OutputId output, PlannedKit& kit, const Target& target) const override;

  private:
    GuiApplication application_;
};

}  // namespace vendrel
