#include "forms/plan_choice.h"

#include <algorithm>

namespace vendrel {

void PlanChoice::Measure(const Workplace& place, const Exporter& exporter) {
    place_ = &place;
    exporter_ = &exporter;
    sketch_ = SketchPlan(place.State, place.Frames->WorkFrame.Picture,
                         exporter.Aspects(settings_.Symbols, place.State->PaintCount));
    // Chosen for another painting, it may be wider than this one can be.
    settings_.CanvasCm = std::min(settings_.CanvasCm, WidestCm());
    figures_ = FiguresOf(*sketch_, settings_);
}

void PlanChoice::Restore(const PlanSettings& settings) {
    sketch_.reset();
    figures_.reset();
    settings_ = settings;
}

void PlanChoice::Choose(const PlanSettings& wanted) {
    if (!sketch_) {
        settings_ = wanted;
        return;
    }
    const bool remeasures = wanted.Symbols != settings_.Symbols;
    figures_ = FiguresOf(*sketch_, wanted);
    settings_ = wanted;
    if (remeasures) {
        Measure(*place_, *exporter_);
    }
}

double PlanChoice::WidestCm() const {
    return sketch_ ? WidestCanvasCm(*sketch_) : kLargestCanvasCm;
}

Surface PlanChoice::Preview(int longest) const {
    return sketch_ ? exporter_->Preview(*place_, settings_, longest) : Surface();
}

}  // namespace vendrel
