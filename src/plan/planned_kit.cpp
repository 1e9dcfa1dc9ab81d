#include "plan/planned_kit.h"

#include <utility>

#include "plan/exporter.h"

namespace vendrel {
namespace {

// Whether lines and symbols stand where they stood.
bool IsLaidOutAlike(PlanSettings one, const PlanSettings& other) {
    one.InchCanvas = other.InchCanvas;
    one.Gray = other.Gray;
    one.Use = other.Use;
    one.GroupBySet = other.GroupBySet;
    one.Maker = other.Maker;
    one.Logo = other.Logo;
    one.Shop = other.Shop;
    return one == other;
}

}  // namespace

PlannedKit::PlannedKit(const Workplace& place, const Exporter& fonts, PlanSettings settings)
    : place_(place), fonts_(fonts), settings_(std::move(settings)) {}

void PlannedKit::Choose(const PlanSettings& wanted) {
    if (!IsLaidOutAlike(wanted, settings_)) {
        onPages_.reset();
        inOnePiece_.reset();
    }
    if (wanted.Symbols != settings_.Symbols || wanted.Labels != settings_.Labels) {
        sketch_.reset();
    }
    settings_ = wanted;
}

PaintMarks PlannedKit::Marks() const {
    return MarksFor(settings_.Symbols, settings_.Labels, place_.State->PaintColors);
}

const PlanSketch& PlannedKit::Sketch() {
    if (!sketch_) {
        sketch_ =
            SketchPlan(place_.State, place_.Frames->WorkFrame.Picture, fonts_.Aspects(Marks()));
    }
    return *sketch_;
}

const PrintPlan& PlannedKit::OnPages() {
    if (!onPages_) {
        onPages_ = inOnePiece_ ? WithOtherLabels(*inOnePiece_, Sketch(), PlanCut::AtPages)
                               : MakePrintPlan(place_.State, Sketch(), settings_, PlanCut::AtPages);
    }
    return *onPages_;
}

const PrintPlan& PlannedKit::InOnePiece() {
    if (!inOnePiece_) {
        inOnePiece_ = onPages_ ? WithOtherLabels(*onPages_, Sketch(), PlanCut::Nowhere)
                               : MakePrintPlan(place_.State, Sketch(), settings_, PlanCut::Nowhere);
    }
    return *inOnePiece_;
}

std::vector<PaintNeed> PlannedKit::Needs() {
    const PlanSketch& sketch = Sketch();
    const PlanSheets sheets = LayOutSheets(sketch, settings_);
    return PaintNeeds({sketch.Regions, sketch.Paints, sheets.Pages, sheets.Scale},
                      place_.State->PaintCount, settings_.Use);
}

PlanFigures PlannedKit::Figures() {
    return FiguresOf(Sketch(), settings_, OnPages());
}

PlanFigures PlannedKit::FiguresSoFar() {
    return onPages_ ? Figures() : FiguresOf(Sketch(), settings_);
}

}  // namespace vendrel
