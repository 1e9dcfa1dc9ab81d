#include "forms/plan_choice.h"

#include <algorithm>

namespace vendrel {

void PlanChoice::Measure(const Workplace& place, const Exporter& exporter) {
    sketch_ = SketchPlan(place.State, place.Frames->WorkFrame.Picture,
                         exporter.Aspects(settings_.Symbols, place.State->PaintCount));
    // Chosen for another painting, it may be wider than this one can be.
    settings_.CanvasCm = std::min(settings_.CanvasCm, WidestCm());
    Follow();
}

void PlanChoice::Follow() {
    if (sketch_) {
        figures_ = FiguresOf(*sketch_, settings_);
    }
}

void PlanChoice::Paper_Click(Paper paper) {
    settings_.Sheet = paper;
    Follow();
}

void PlanChoice::Canvas_Change(double centimeters) {
    settings_.CanvasCm = centimeters;
    Follow();
}

double PlanChoice::WidestCm() const {
    return sketch_ ? WidestCanvasCm(*sketch_) : kLargestCanvasCm;
}

}  // namespace vendrel
