#include "forms/make_paintable.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "cleanup/paint_pass.h"
#include "convert/stipple_conversion.h"
#include "forms/require_grid.h"
#include "shell/palette.h"
#include "shell/scratch_place.h"
#include "shell/stipple_grid.h"
#include "support/decimals.h"
#include "support/error.h"
#include "touchup/laid_edits.h"

namespace vendrel {
namespace {

constexpr Color kOutline = Rgb(60, 60, 60);

// Dots on black would be no picture to compare with.
Surface PaintedAsItIs(const Workplace& place) {
    if (place.MainMenu[MenuId::PrintMenu].Enabled) {
        return place.Frames->WorkFrame.Picture;
    }
    ScratchPlace scratch(place);
    PaintAllCells(scratch.Place);
    return scratch.Frames.WorkFrame.Picture;
}

}  // namespace

void MakePaintable::Form_Load() {
    const WorkState& state = place_.State;
    RequireGrid(state);
    wish_ = state.Chosen;
    wish_.Paintable = true;
    wish_.Match = Matching::ByEye;
    wish_.CanvasCm = wish_.CanvasCm > 0 ? wish_.CanvasCm : kUsualCanvasCm;
    wish_.FinalPaints = wish_.FinalPaints > 0 ? wish_.FinalPaints : kFinalPaints.back();
    preview_ = std::make_unique<PaintablePreview>(place_);
    areasBefore_ = CountGridAreas(state);
    before_ = PaintedAsItIs(place_);
    protected_ = state.Protected.All().empty()
                     ? ValueGrid(state.CellsAcross - 1, state.CellsDown - 1)
                     : state.Protected;
    undo_.clear();
    redo_.clear();
    stroking_ = false;
    Show();
}

void MakePaintable::Show() {
    preview_->Make(wish_, protected_);
    after_ = outlinesOnly_ ? Outlines() : preview_->Painting();
}

Surface MakePaintable::Outlines() const {
    const ValueGrid& paints = preview_->State().PrintPaints;
    Surface outlines(paints.Across() + 1, paints.Down() + 1, kWhite);
    for (int y = 0; y <= paints.Down(); ++y) {
        for (int x = 0; x <= paints.Across(); ++x) {
            const int paint = paints(x, y);
            if ((x > 0 && paints(x - 1, y) != paint) || (y > 0 && paints(x, y - 1) != paint)) {
                outlines.Set(x, y, kOutline);
            }
        }
    }
    return outlines;
}

void MakePaintable::Match_Click(Matching match) {
    wish_.Match = match;
    Show();
}

void MakePaintable::FinalPaints_Click(int finalPaints) {
    wish_.FinalPaints = finalPaints;
    Show();
}

void MakePaintable::Smallest_Change(double mm2) {
    wish_.Limits.SmallestMm2 = std::clamp(mm2, 0.0, kMostSmallestMm2);
    Show();
}

void MakePaintable::Narrowest_Change(double mm) {
    wish_.Limits.NarrowestMm = std::clamp(mm, 0.0, kMostNarrowestMm);
    Show();
}

void MakePaintable::Detail_Change(int detail) {
    wish_.Detail = std::clamp(detail, 0, kMostDetail);
    Show();
}

void MakePaintable::Canvas_Change(double centimeters) {
    wish_.CanvasCm = std::clamp(centimeters, kSmallestCanvasCm, kLargestCanvasCm);
    Show();
}

void MakePaintable::Outlines_Click(bool only) {
    outlinesOnly_ = only;
    after_ = only ? Outlines() : preview_->Painting();
}

void MakePaintable::Brush_Change(int stipples) {
    brush_ = std::clamp(stipples, 1, kLargestBrush);
}

void MakePaintable::Stroke_Begin(bool protects) {
    strokeStart_ = protected_;
    protects_ = protects;
    stroking_ = true;
    lastCell_.reset();
}

// A quick hand passes stipples that nobody is told of.
void MakePaintable::Stroke_Over(CellPos cell) {
    if (!stroking_) {
        return;
    }
    const CellPos from = lastCell_.value_or(cell);
    const int steps = std::max({std::abs(cell.X - from.X), std::abs(cell.Y - from.Y), 1});
    for (int i = 1; i <= steps; ++i) {
        Dab({from.X + (cell.X - from.X) * i / steps, from.Y + (cell.Y - from.Y) * i / steps});
    }
    lastCell_ = cell;
}

// A round brush, so that a face is followed more easily.
void MakePaintable::Dab(CellPos cell) {
    const int reach = brush_ / 2;
    for (int dy = -reach; dy <= reach; ++dy) {
        for (int dx = -reach; dx <= reach; ++dx) {
            if (4 * (dx * dx + dy * dy) <= brush_ * brush_ &&
                protected_.Holds(cell.X + dx, cell.Y + dy)) {
                protected_(cell.X + dx, cell.Y + dy) = protects_ ? 1 : 0;
            }
        }
    }
}

void MakePaintable::Stroke_End() {
    if (!std::exchange(stroking_, false) || protected_ == strokeStart_) {
        return;
    }
    undo_.push_back(std::move(strokeStart_));
    redo_.clear();
    Show();
}

void MakePaintable::Undo_Click() {
    if (!undo_.empty()) {
        redo_.push_back(std::exchange(protected_, std::move(undo_.back())));
        undo_.pop_back();
        Show();
    }
}

void MakePaintable::Redo_Click() {
    if (!redo_.empty()) {
        undo_.push_back(std::exchange(protected_, std::move(redo_.back())));
        redo_.pop_back();
        Show();
    }
}

void MakePaintable::ProtectNothing_Click() {
    Stroke_Begin(false);
    std::ranges::fill(protected_.All(), 0);
    Stroke_End();
}

void MakePaintable::OkButton_Click() {
    WorkState& state = place_.State;
    const bool wasPainted = place_.MainMenu[MenuId::PrintMenu].Enabled;
    place_.Screen.CloseForm(FormId::MakePaintable);
    const bool otherKits = state.Chosen.Paintable;
    state.Chosen = wish_;
    state.Chosen.Paintable = otherKits;  // what is made of the next photo stays as chosen
    state.FinalColors = wish_.FinalPaints;
    state.Protected = protected_;
    SetPalette(state, preview_->State().PaintColors);
    SetGrid(state, preview_->State().Stipples);
    static_cast<KitEdits&>(state) = preview_->State();
    state.LaidOn = preview_->State().LaidOn;
    state.PaintableKit = true;
    state.StipplesMade = true;
    DrawStipplePicture(place_);
    SetupMenuItems(place_.MainMenu, 3);
    place_.MainMenu[MenuId::NextBestColors].Enabled = true;
    if (wasPainted) {
        PaintItNow_Click(place_);
    }
    EditsWereLaidOn(place_);
}

void MakePaintable::CancelButton_Click() {
    place_.Screen.CloseForm(FormId::MakePaintable);
}

std::vector<std::string> MakePaintable::FigureLines() const {
    const KitFigures& figures = preview_->Figures();
    const WorkState& state = preview_->State();
    const int joined = state.Edits.Empty() ? 0 : state.PaintCount - state.FinalColors;
    const std::string ofEdits =
        joined > 0 ? " (" + std::to_string(joined) + " more for your edits)" : "";
    return {
        std::to_string(figures.Areas) + " areas, before " + std::to_string(areasBefore_),
        "Smallest " + Decimals(figures.SmallestMm2, 1) + " mm\u00B2, narrowest part " +
            Decimals(figures.NarrowestMm, 1) + " mm",
        std::to_string(figures.BySize[0]) + " areas under 9 mm\u00B2, " +
            std::to_string(figures.BySize[0] + figures.BySize[1]) + " under 25 mm\u00B2",
        std::to_string(state.PaintCount) + " paints" + ofEdits + ", mean seen difference " +
            Decimals(preview_->SeenDifference(), 2),
        "About " + Decimals(figures.Hours, 0) + " hours: 20 s an area and 1 min per 10 cm\u00B2"};
}

}  // namespace vendrel
