#include "forms/kit_pdf.h"

#include <filesystem>

#include "forms/kit_saving.h"

namespace vendrel {

void KitPdfForm::Form_Load() {
    Sketch();
}

void KitPdfForm::Sketch() {
    sketch_ = SketchPlan(place_.State, place_.Frames->WorkFrame.Picture,
                         exporter_.Aspects(settings_.Symbols, place_.State->PaintCount));
    Measure();
}

void KitPdfForm::Measure() {
    if (sketch_) {
        figures_ = FiguresOf(*sketch_, settings_);
    }
}

void KitPdfForm::Paper_Click(Paper paper) {
    settings_.Sheet = paper;
    Measure();
}

void KitPdfForm::Symbols_Click(SymbolStyle style) {
    settings_.Symbols = style;
    Sketch();
}

void KitPdfForm::Canvas_Change(double centimetres) {
    settings_.CanvasCm = centimetres;
    Measure();
}

double KitPdfForm::WidestCm() const {
    return sketch_ ? WidestCanvasCm(*sketch_) : kLargestCanvasCm;
}

void KitPdfForm::SaveButton_Click() {
    KitOrder order{.Outputs = {}, .Fonts = &exporter_, .Plan = settings_};
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
