#include "desktop/dialogs.h"

#include "desktop/about_dialog.h"
#include "desktop/add_catalogue_dialog.h"
#include "desktop/color_chart_dialog.h"
#include "desktop/color_matcher_dialog.h"
#include "desktop/crop_photo_dialog.h"
#include "desktop/file_import_dialog.h"
#include "desktop/fit_photo_dialog.h"
#include "desktop/kit_pdf_dialog.h"
#include "desktop/kit_photo_dialog.h"
#include "desktop/make_paintable_dialog.h"
#include "desktop/missing_paints_dialog.h"
#include "desktop/my_paints_dialog.h"
#include "desktop/paint_shop_dialog.h"
#include "desktop/paint_source_dialog.h"
#include "desktop/save_everything_dialog.h"
#include "desktop/save_kit_dialog.h"
#include "desktop/shopping_dialog.h"
#include "desktop/template_shop_dialog.h"
#include "desktop/touch_up_dialog.h"

namespace vendrel {

std::unique_ptr<FormDialog> MakeDialog(FormId form, const ViewContext& context, QWidget* parent) {
    switch (form) {
        case FormId::FileImport:
            return std::make_unique<FileImportDialog>(context, parent);
        case FormId::KitPhoto:
            return std::make_unique<KitPhotoDialog>(context, parent);
        case FormId::SaveKit:
            return std::make_unique<SaveKitDialog>(context, parent);
        case FormId::CropPhoto:
            return std::make_unique<CropPhotoDialog>(context, parent);
        case FormId::FitPhoto:
            return std::make_unique<FitPhotoDialog>(context, parent);
        case FormId::PaintShop:
            return std::make_unique<PaintShopDialog>(context, parent);
        case FormId::ColorChart:
            return std::make_unique<ColorChartDialog>(context, parent);
        case FormId::KitPdf:
            return std::make_unique<KitPdfDialog>(context, parent);
        case FormId::SaveEverything:
            return std::make_unique<SaveEverythingDialog>(context, parent);
        case FormId::TemplateShop:
            return std::make_unique<TemplateShopDialog>(context, parent);
        case FormId::ColorMatcher:
            return std::make_unique<ColorMatcherDialog>(context, parent);
        case FormId::MakePaintable:
            return std::make_unique<MakePaintableDialog>(context, parent);
        case FormId::MyPaints:
            return std::make_unique<MyPaintsDialog>(context, parent);
        case FormId::PaintSource:
            return std::make_unique<PaintSourceDialog>(context, parent);
        case FormId::MissingPaints:
            return std::make_unique<MissingPaintsDialog>(context, parent);
        case FormId::Shopping:
            return std::make_unique<ShoppingDialog>(context, parent);
        case FormId::AddCatalogue:
            return std::make_unique<AddCatalogueDialog>(context, parent);
        case FormId::TouchUp:
            return std::make_unique<TouchUpDialog>(context, parent);
        case FormId::About:
            return std::make_unique<AboutDialog>(context, parent);
        default:
            return nullptr;
    }
}

}  // namespace vendrel
