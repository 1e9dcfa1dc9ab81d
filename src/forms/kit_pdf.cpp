#include "forms/kit_pdf.h"

#include <filesystem>

#include "shell/busy_pointer.h"

namespace vendrel {

void KitPdfForm::SaveButton_Click() {
    std::filesystem::path file;
    {
        const BusyPointer busy(place_.Screen);
        file = exporter_.WriteKitPdf(place_, settings_);
        place_.Screen.ReportProgress(0, 0);
        place_.Screen.SetCaption("Vendrel -" + place_.State.PictureName);
    }
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
