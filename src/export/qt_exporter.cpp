#include "export/qt_exporter.h"

#include "export/color_chart_image.h"
#include "export/kit_page.h"
#include "export/kit_pdf.h"
#include "export/kit_svg.h"
#include "export/plan_preview.h"
#include "export/print_symbols.h"
#include "export/shopping_list.h"
#include "export/shopping_pages.h"
#include "export/sticker_pages.h"
#include "support/error.h"

namespace vendrel {

SymbolAspects QtExporter::Aspects(const PaintMarks& marks) const {
    return PrintSymbols(marks).Aspects();
}

Surface QtExporter::Preview(PlannedKit& kit, int longest) const {
    return PreviewPlan(kit, longest);
}

void QtExporter::WriteStickers(const std::vector<Sticker>& stickers, const StickerSheet& sheet,
                               int used, const Target& target) const {
    WriteStickerPages(stickers, sheet, used, target);
}

void QtExporter::WriteShopping(const ShoppingPage& page, const Target& target) const {
    WriteShoppingPages(page, target);
}

void QtExporter::Write(OutputId output, PlannedKit& kit, const Target& target) const {
    switch (output) {
        case OutputId::Chart:
            WriteColorChart(kit.Place().State, target);
            return;
        case OutputId::Pdf:
            WriteKitPdf(kit, target);
            return;
        case OutputId::Svg:
            WriteKitSvg(kit, target);
            return;
        case OutputId::Page:
            WriteKitPage(kit, target);
            return;
        case OutputId::List:
            WriteShoppingList(kit, target);
            return;
        default:
            throw FileError(target.Place, "is written without fonts.");
    }
}

}  // namespace vendrel
