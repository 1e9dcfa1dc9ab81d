#include "forms/plan_choice.h"

#include <algorithm>

#include "shelf/shelf_file.h"

namespace vendrel {

void PlanChoice::Measure(const Workplace& place, const Exporter& exporter) {
    exporter_ = &exporter;
    folder_ = &place.Folder;
    TakeLabels(settings_);
    figures_.reset();
    kit_.emplace(place, exporter, settings_);
    // Chosen for another painting, it may be wider than this one can be.
    settings_.CanvasCm = std::min(settings_.CanvasCm, WidestCm());
    kit_->Choose(settings_);
    figures_ = kit_->FiguresSoFar();
}

void PlanChoice::Restore(const PlanSettings& settings) {
    kit_.reset();
    figures_.reset();
    settings_ = settings;
}

// A kit keeps the labels it was saved with until its symbols are chosen anew.
void PlanChoice::TakeLabels(PlanSettings& settings) const {
    const bool chosenAnew = settings_.Symbols != SymbolStyle::Mine || settings.Labels.empty();
    if (settings.Symbols == SymbolStyle::Mine && chosenAnew && folder_ != nullptr) {
        settings.Labels = LabelsOnShelf(ReadShelf(*folder_));
    }
}

void PlanChoice::Choose(const PlanSettings& chosen) {
    PlanSettings wanted = chosen;
    TakeLabels(wanted);
    if (kit_) {
        (void)LayOutSheets(kit_->Sketch(), wanted);  // refuses what cannot be printed
        kit_->Choose(wanted);
        figures_ = kit_->FiguresSoFar();
    }
    settings_ = wanted;
}

double PlanChoice::WidestCm() {
    return kit_ ? WidestCanvasCm(kit_->Sketch()) : kLargestCanvasCm;
}

Surface PlanChoice::Preview(int longest) {
    if (!kit_) {
        return {};
    }
    figures_ = kit_->Figures();
    return exporter_->Preview(*kit_, longest);
}

}  // namespace vendrel
