#include "forms/missing_paints.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "cleanup/paint_pass.h"
#include "edits/kit_base.h"
#include "edits/layer_recorder.h"
#include "forms/needs_of_kits.h"
#include "forms/require_grid.h"
#include "forms/small_picture.h"
#include "shelf/nearest_owned.h"
#include "shelf/shelf_file.h"
#include "shell/busy_pointer.h"
#include "shell/paint_id.h"
#include "support/list.h"
#include "touchup/laid_edits.h"

namespace vendrel {
namespace {

// More of itself is what is missing.
std::vector<Substitute> SubstitutesFor(const PaintColor& paint, const Shelf& shelf) {
    std::vector<Substitute> found;
    for (const NearPaint& near :
         NearestOwned(shelf, ColorOf(paint), MissingPaintsForm::kSubstitutes + 1)) {
        if (IdOf(*near.Paint) != IdOf(paint) && found.size() < MissingPaintsForm::kSubstitutes) {
            found.push_back({PaintOf(*near.Paint), near.Paint->Label, near.Seen});
        }
    }
    return found;
}

}  // namespace

void MissingPaintsForm::Form_Load() {
    RequireGrid(place_.State);
    exchanges_ = 0;
    Measure();
}

void MissingPaintsForm::Measure() {
    const BusyPointer busy(place_.Screen);
    shelf_ = ReadShelf(place_.Folder);
    SeeInCatalogue(shelf_, place_.State->MasterColors);
    missing_.clear();
    for (ShoppingItem& item : ListShopping(shelf_, {NeedsOfKitAtHand(place_, fonts_, plan_)})) {
        if (item.BuyMl > 0) {
            missing_.push_back({item, SubstitutesFor(item.Paint, shelf_)});
        }
    }
    chosen_ = missing_.empty() ? -1 : std::clamp(chosen_, 0, static_cast<int>(missing_.size()) - 1);
    picture_ = SmallPicture(place_.State);
}

void MissingPaintsForm::Missing_Click(int missing) {
    if (Holds(missing_, missing)) {
        chosen_ = missing;
    }
}

void MissingPaintsForm::Use_Click(int substitute) {
    if (!Holds(missing_, chosen_) || !Holds(At(missing_, chosen_).Nearest, substitute)) {
        return;
    }
    WorkState& state = place_.State;
    const bool painted = IsPainted(place_);
    const PaintColor missing = At(missing_, chosen_).Item.Paint;
    RequireBase(state, state, state, state);
    EditMoment step{.Name = "Use " + At(At(missing_, chosen_).Nearest, substitute).Paint.PaintName,
                    .Before = std::make_shared<EditLayer>(state.Edits),
                    .After = {},
                    .BaseBefore = {},
                    .BaseAfter = {}};
    LayerRecorder recorder({state.BasePaints, state.Base}, state.Edits);
    recorder.Exchange(recorder.NumberOf(missing),
                      recorder.NumberOf(At(At(missing_, chosen_).Nearest, substitute).Paint),
                      StipplesPaintedWith(state, PaintIndex(state.PaintColors).Find(missing)));
    state.Edits = recorder.Layer();
    step.After = std::make_shared<EditLayer>(state.Edits);
    AddMoment(state, std::move(step));
    ++exchanges_;
    LayEditsAgain(place_);
    PaintAgain(painted);
}

void MissingPaintsForm::Undo_Click() {
    if (exchanges_ > 0) {
        --exchanges_;
        const bool painted = IsPainted(place_);
        UndoLastTouchUp(place_);
        PaintAgain(painted);
    }
}

void MissingPaintsForm::PaintAgain(bool painted) {
    if (painted) {
        PaintItNow_Click(place_);
    }
    Measure();
}

void MissingPaintsForm::Done_Click() {
    place_.Screen.CloseForm(FormId::MissingPaints);
}

}  // namespace vendrel
