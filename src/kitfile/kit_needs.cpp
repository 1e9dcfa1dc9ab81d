#include "kitfile/kit_needs.h"

#include "cleanup/paint_pass.h"
#include "kitfile/take_kit.h"
#include "plan/planned_kit.h"

namespace vendrel {

KitNeeds NeedsOfKit(Workplace& place, const KitFile& kit, const std::filesystem::path& photo,
                    const Exporter& fonts) {
    TakeKit(place, kit, photo);
    PaintItNow_Click(place);
    PlannedKit planned(place, fonts, kit.Print);
    return {kit.Title,     place.State->PaintColors, planned.Needs(),
            kit.Print.Use, planned.Marks(),          kit.Print.InInches()};
}

}  // namespace vendrel
