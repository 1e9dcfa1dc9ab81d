#include "kitset/save_kit.h"

#include <algorithm>
#include <chrono>
#include <functional>

#include "kitset/kit_mark.h"
#include "kitset/kit_set.h"
#include "storage/stipple_file.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// Runs one step and notes how long it took.
template <class Step>
void Timed(SavedKit& saved, std::string_view name, Step step) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    step();
    const std::chrono::duration<double, std::milli> took = Clock::now() - start;
    saved.Milliseconds.emplace_back(name, took.count());
}

enum class GridStep { Write, AlreadyThere, KeepDifferent };

GridStep StepOf(const Workplace& place, const KitOrder& order) {
    const fs::path path = StippleFilePath(place.Folder, place.State, place.State);
    if (!fs::exists(path)) {
        return GridStep::Write;
    }
    const WorkState& state = place.State;
    const bool same = ReadTextFile(path) ==
                      FormatStippleFile({state.PaintColors, state.Stipples, state.CellsAcross,
                                         state.CellsDown, state.FinalColors});
    return same                                         ? GridStep::AlreadyThere
           : order.Different == DifferentGrid::Replaced ? GridStep::Write
                                                        : GridStep::KeepDifferent;
}

// These wait for nothing: the grid goes to the disk, and the painting is summed up, while the areas
// are numbered for the others.
bool IsReady(const Output& output) {
    return output.Id == OutputId::Grid || output.Id == OutputId::Painting;
}

class Saving {
  public:
    Saving(Workplace& place, const KitOrder& order)
        : place_(place),
          order_(order),
          job_(place, order.Fonts, order.Plan),
          set_(place.Folder, KitNameOf(place.State, place.State), place.Screen,
               KitMark(place.State, place.State, place.State)) {}

    SavedKit Run() {
        saved_.Mark = set_.Mark();
        SaveThose(IsReady);
        SaveThose(std::not_fn(IsReady));
        std::ranges::sort(saved_.Files, {}, &SavedKit::File::Output);
        saved_.Numbering = job_.Counts();
        if (!saved_.Files.empty()) {
            Timed(saved_, "set", [&] { Commit(); });
        }
        return std::move(saved_);
    }

  private:
    template <class Wanted>
    void SaveThose(Wanted wanted) {
        for (const Output& output : AllOutputs()) {
            if (!wanted(output)) {
                continue;
            }
            if (order_.Outputs.Has(output.Id)) {
                if (order_.Begins) {
                    order_.Begins(begun_++, order_.Outputs.Count());
                }
                Timed(saved_, output.Word, [&] { Save(output); });
            } else if (output.Id == OutputId::Grid && order_.FromGrid) {
                set_.Kept(output);
            }
        }
    }

    void Save(const Output& output) {
        const GridStep step =
            output.Id == OutputId::Grid ? StepOf(place_, order_) : GridStep::Write;
        const fs::path file = set_.Paths().File(output);
        if (step == GridStep::KeepDifferent) {
            saved_.Notes.push_back(
                file.lexically_normal().string() +
                " is a different grid and was kept. --replace-grid writes over it.");
            return;
        }
        if (step == GridStep::AlreadyThere) {
            set_.Kept(output);
        } else {
            output.Write(job_, set_.Waiting(output));
            set_.Written(output);
            if (output.Id == OutputId::Pdf) {
                saved_.Plan = job_.Planned->Figures();
            }
        }
        saved_.Files.push_back({output.Id, file});
    }

    void Commit() {
        for (std::string& note : set_.Commit()) {
            saved_.Notes.push_back(std::move(note));
        }
        saved_.List = set_.Paths().List();
    }

    const Workplace& place_;
    const KitOrder& order_;
    OutputJob job_;
    SavedKit saved_;
    int begun_ = 0;
    KitSet set_;
};

}  // namespace

SavedKit SaveKit(Workplace& place, const KitOrder& order) {
    return Saving(place, order).Run();
}

}  // namespace vendrel
