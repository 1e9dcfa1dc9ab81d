#include "export/drawn_kit.h"

#include <QtGui/QImageReader>
#include <algorithm>

#include "output/chart_contents.h"
#include "shell/work_settings.h"
#include "support/decimals.h"
#include "support/error.h"

namespace vendrel {
namespace {

// Pages in front of the plan are laid out at least that wide, and printed smaller where the paper
// is narrower.
constexpr double kFrontMm = 200;

SizeMm FrontOf(const PlanSettings& settings) {
    return FrontPaperFor(settings.Sheet, settings.InInches()).Size;
}

double FrontScaleOf(const PlanSettings& settings) {
    return std::min(1.0, FrontOf(settings).Width / kFrontMm);
}

SizeMm LaidOutFront(const PlanSettings& settings) {
    const SizeMm front = FrontOf(settings);
    const double scale = FrontScaleOf(settings);
    return {front.Width / scale, front.Height / scale};
}

std::vector<PlanRect> BoxesOf(const PrintPlan& plan) {
    std::vector<PlanRect> boxes;
    for (const PlanLabel& label : plan.Labels) {
        const PrintScale scale = plan.Scale;
        const PlanRect box = BoxOf(label, plan.Aspects[plan.Regions[label.Region].Value]);
        boxes.push_back(
            {scale.Mm(box.Left), scale.Mm(box.Top), scale.Mm(box.Right), scale.Mm(box.Bottom)});
    }
    return boxes;
}

Surface PaintingOf(const PaintedRegions& regions, const WorkState& state) {
    Surface painting(regions.Ids.Across() + 1, regions.Ids.Down() + 1);
    for (int y = 0; y < painting.Height(); ++y) {
        for (int x = 0; x < painting.Width(); ++x) {
            const Region& region = regions[regions.Ids(x, y)];
            painting.Set(x, y, ColorOf(state.PaintColors[region.Value]));
        }
    }
    return painting;
}

QImage LogoOf(const PlanSettings& settings) {
    if (settings.Logo.empty()) {
        return {};
    }
    QImageReader reader(QString::fromStdString(settings.Logo.string()));
    reader.setAutoTransform(true);
    QImage logo = reader.read();
    if (logo.isNull()) {
        throw FileError(settings.Logo,
                        "cannot be read as a logo. Choose a PNG or JPEG picture for it.");
    }
    return logo;
}

std::vector<LeafletPart> LeafletOf(PlannedKit& kit) {
    const PlanSettings& settings = kit.Settings();
    const WorkState& state = kit.Place().State;
    const PlanFigures figures = kit.Figures();
    return ReadLeaflet(settings.Shop, {.Order = settings.Shop.Order,
                                       .Title = PrintedName(state),
                                       .Difficulty = std::string(DifficultyWord(state)),
                                       .Paints = std::to_string(state.PaintCount),
                                       .Canvas = SizeText(figures.Canvas, settings.InInches()),
                                       .Hours = Decimals(std::max(1.0, figures.Hours), 0),
                                       .Maker = settings.Maker});
}

std::vector<PaintNeed> NeedsOf(PlannedKit& kit) {
    const PrintPlan& plan = kit.OnPages();
    return PaintNeeds({plan.Regions, plan.Paints, plan.Pages, plan.Scale},
                      kit.Place().State->PaintCount, kit.Settings().Use);
}

}  // namespace

DrawnKit::DrawnKit(PlannedKit& kit)
    : marks_(kit.Marks()),
      symbols_(marks_),
      pages_{kit.Place(),
             kit.OnPages(),
             symbols_,
             marks_,
             LaidOutFront(kit.Settings()),
             FrontScaleOf(kit.Settings()),
             BoxesOf(kit.OnPages()),
             PaintingOf(kit.OnPages().Regions, kit.Place().State),
             kit.Settings(),
             NeedsOf(kit),
             LogoOf(kit.Settings()),
             SmallestText(*kit.Figures().Symbols),
             OrderCode(kit.Settings().Shop.Order),
             LeafletOf(kit)} {}

}  // namespace vendrel
