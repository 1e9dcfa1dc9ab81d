#include "forms/kit_pdf.h"

#include <filesystem>

#include "forms/kit_saving.h"

namespace vendrel {

void KitPdfForm::Form_Load() {
    plan_.Measure(place_, exporter_);
}

void KitPdfForm::SaveButton_Click() {
    KitOrder order{.Outputs = {}, .Fonts = &exporter_, .Plan = plan_.Settings()};
    order.Outputs.Add(OutputId::Pdf);
    const std::filesystem::path file = SaveFromWindow(place_, order).front();
    place_.Screen.CloseForm(FormId::KitPdf);
    if (place_.Screen.Ask("Save Kit as PDF",
                          "Saved " + file.lexically_normal().string() + ".\n\nOpen the folder?")) {
        place_.Screen.ShowFolder(file.parent_path());
    }
}

void KitPdfForm::CancelButton_Click() {
    place_.Screen.CloseForm(FormId::KitPdf);
}

}  // namespace vendrel
