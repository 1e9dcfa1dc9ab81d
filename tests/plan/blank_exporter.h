#pragma once

#include "plan/exporter.h"

namespace vendrel::test {

/// An exporter without fonts or drawing; what it writes is left to the test.
class BlankExporter : public Exporter {
  public:
    SymbolAspects Aspects(const PaintMarks& /*marks*/) const override {
        SymbolAspects aspects;
        aspects.fill(0.7);
        return aspects;
    }
    Surface Preview(PlannedKit& /*kit*/, int longest) const override {
        return Surface(longest, longest);
    }
    void WriteStickers(const std::vector<Sticker>& /*stickers*/, const StickerSheet& /*sheet*/,
                       int /*used*/, const Target& /*target*/) const override {}
    void WriteShopping(const ShoppingPage& /*page*/, const Target& /*target*/) const override {}
};

}  // namespace vendrel::test
