#include "export/page_data.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <cmath>

#include "export/outline_path.h"
#include "export/plain_text.h"
#include "export/print_fonts.h"
#include "kitset/kit_mark.h"
#include "output/chart_contents.h"
#include "shell/symbol_of.h"
#include "support/list.h"

namespace vendrel {
namespace {

constexpr PathUnit kPageUnit{10, 0};
constexpr PathUnit kGlyphUnit{1000, 0};

qint64 PageLength(double pixels) {
    return std::llround(pixels * kPageUnit.PerPixel);
}

QJsonObject PaintOf(const PaintColor& paint, int symbol, const PrintSymbols& symbols) {
    PathText glyph(kGlyphUnit);
    AddOutline(glyph, symbols.Outline(symbol), {0, 0}, 1);
    return {{"symbol", ToQt(symbols.NameOf(symbol))},
            {"name", PlainText(paint.PaintName)},
            {"set", PlainText(paint.Mfg)},
            {"code", PlainText(paint.PaintCode)},
            {"color", ToQt(ColorOf(paint)).name()},
            {"glyph", QString::fromStdString(glyph.Text())}};
}

QJsonArray PaintsOf(const WorkState& state, const PrintSymbols& symbols) {
    QJsonArray paints;
    for (int paint = 1; paint <= state.PaintCount; ++paint) {
        paints.append(
            PaintOf(state.PaintColors[paint], SymbolOf(state.PaintColors, paint), symbols));
    }
    return paints;
}

QJsonArray RingsOf(const std::vector<PlanRing>& rings) {
    QJsonArray all;
    for (const PlanRing& ring : rings) {
        QJsonArray ways;
        for (const ChainWay way : ring) {
            ways.append(way.Reversed ? -way.Chain - 1 : way.Chain + 1);
        }
        all.append(ways);
    }
    return all;
}

QJsonArray AreasOf(const PrintPlan& plan) {
    QJsonArray areas;
    for (int area = 0; area < plan.Regions.Count(); ++area) {
        const Region& region = plan.Regions[area];
        const double mm2 = std::round(plan.Scale.Mm2(region.Size) * 10) / 10;
        areas.append(QJsonArray{region.Value - 1, mm2, RingsOf(At(plan.Lines.Rings, area))});
    }
    return areas;
}

QJsonArray ChainsOf(const PlanLines& lines) {
    QJsonArray chains;
    for (const PlanChain& chain : lines.Chains) {
        chains.append(QString::fromStdString(ChainPath(chain, kPageUnit)));
    }
    return chains;
}

QJsonArray LabelsOf(const PrintPlan& plan) {
    QJsonArray labels;
    for (const PlanLabel& label : plan.Labels) {
        QJsonArray numbers{label.Region, PageLength(label.Centre.X), PageLength(label.Centre.Y),
                           PageLength(label.Height)};
        if (label.PointsAt) {
            const int paint = plan.Regions[label.Region].Value;
            for (const PlanPoint& end : LeaderOf(label, plan.Aspects[paint])) {
                numbers.append(PageLength(end.X));
                numbers.append(PageLength(end.Y));
            }
        }
        labels.append(numbers);
    }
    return labels;
}

}  // namespace

QByteArray PageData(const WorkState& state, const PrintPlan& plan, const PrintSymbols& symbols,
                    const QString& title) {
    const PixelGrid& pixels = plan.Regions.Ids;
    const QJsonObject kit{{"title", title},
                          {"mark", ToQt(KitMark(state, state, state))},
                          {"width", PageLength(pixels.Across() + 1)},
                          {"height", PageLength(pixels.Down() + 1)},
                          {"paints", PaintsOf(state, symbols)},
                          {"areas", AreasOf(plan)},
                          {"chains", ChainsOf(plan.Lines)},
                          {"labels", LabelsOf(plan)}};
    QByteArray json = QJsonDocument(kit).toJson(QJsonDocument::Compact);
    return json.replace('<', "\\u003c");  // names must not end the script
}

}  // namespace vendrel
