#include "export/kit_svg.h"

#include <QtCore/QXmlStreamWriter>
#include <cmath>
#include <vector>

#include "export/outline_path.h"
#include "export/plain_text.h"
#include "export/print_fonts.h"
#include "export/print_symbols.h"
#include "export/save_drawn.h"
#include "kitset/kit_mark.h"
#include "output/chart_contents.h"
#include "plan/plan_pen.h"
#include "shell/symbol_of.h"

namespace vendrel {
namespace {

constexpr int kMmDecimals = 2;  // of a millimeter
constexpr auto kSvg = "http://www.w3.org/2000/svg";
constexpr auto kInkscape = "http://www.inkscape.org/namespaces/inkscape";
constexpr auto kRdf = "http://www.w3.org/1999/02/22-rdf-syntax-ns#";
constexpr auto kWork = "http://creativecommons.org/ns#";
constexpr auto kDublinCore = "http://purl.org/dc/elements/1.1/";

QString MmText(double mm) {
    constexpr double kFine = 1000;
    return QString::number(std::round(mm * kFine) / kFine, 'g', 10);
}

class SvgPlan {
  public:
    SvgPlan(const WorkState& state, const PrintPlan& plan, const PrintSymbols& symbols,
            QByteArray& svg)
        : state_(state),
          plan_(plan),
          symbols_(symbols),
          unit_{plan.Scale.MmPerPixel(), kMmDecimals},
          xml_(&svg) {
        xml_.setAutoFormatting(true);
        xml_.setAutoFormattingIndent(1);
    }

    void Draw(int gray) {
        xml_.writeStartDocument();
        StartRoot();
        WriteMetadata();
        DrawPaints();
        DrawOutlines(ToQt(PlanInk(kBorderGray, gray)).name());
        DrawSymbols(ToQt(PlanInk(kSymbolGray, gray)).name());
        xml_.writeEndDocument();
    }

  private:
    void StartRoot();
    void WriteMetadata();
    void StartLayer(const QString& id, const QString& label);
    void DrawPaints();
    void DrawOutlines(const QString& ink);
    void DrawSymbols(const QString& ink);
    void DrawLeader(const PlanLabel& label, double aspect, const QString& ink);
    void DrawPath(const std::string& path) {
        xml_.writeAttribute("d", QString::fromStdString(path));
    }

    const WorkState& state_;
    const PrintPlan& plan_;
    const PrintSymbols& symbols_;
    PathUnit unit_;
    QXmlStreamWriter xml_;
};

void SvgPlan::StartRoot() {
    xml_.writeDefaultNamespace(kSvg);
    xml_.writeNamespace(kInkscape, "inkscape");
    xml_.writeNamespace(kRdf, "rdf");
    xml_.writeNamespace(kWork, "cc");
    xml_.writeNamespace(kDublinCore, "dc");
    xml_.writeStartElement(kSvg, "svg");
    const QString width = MmText(plan_.Pages.Canvas.Width);
    const QString height = MmText(plan_.Pages.Canvas.Height);
    xml_.writeAttribute("version", "1.1");
    xml_.writeAttribute("width", width + "mm");
    xml_.writeAttribute("height", height + "mm");
    xml_.writeAttribute("viewBox", "0 0 " + width + " " + height);
}

void SvgPlan::WriteMetadata() {
    const QString title = PlainText(KitTitle(state_, state_));
    xml_.writeTextElement(kSvg, "title", title);
    xml_.writeStartElement(kSvg, "metadata");
    xml_.writeStartElement(kRdf, "RDF");
    xml_.writeStartElement(kWork, "Work");
    xml_.writeAttribute(kRdf, "about", "");
    xml_.writeTextElement(kDublinCore, "format", "image/svg+xml");
    xml_.writeTextElement(kDublinCore, "title", title);
    xml_.writeTextElement(kDublinCore, "identifier",
                          "kit " + ToQt(KitMark(state_, state_, state_)));
    xml_.writeEndElement();
    xml_.writeEndElement();
    xml_.writeEndElement();
}

void SvgPlan::StartLayer(const QString& id, const QString& label) {
    xml_.writeStartElement(kSvg, "g");
    xml_.writeAttribute(kInkscape, "groupmode", "layer");
    xml_.writeAttribute("id", id);
    xml_.writeAttribute(kInkscape, "label", label);
}

// One click on a layer's eye shows the finished painting; until then the drawing is the plan.
void SvgPlan::DrawPaints() {
    std::vector<std::vector<int>> areas(static_cast<std::size_t>(state_.PaintCount) + 1);
    for (int area = 0; area < plan_.Regions.Count(); ++area) {
        areas[static_cast<std::size_t>(plan_.Regions[area].Value)].push_back(area);
    }
    StartLayer("paints", "Paints");
    xml_.writeAttribute("style", "display:none");
    xml_.writeAttribute("fill-rule", "evenodd");
    for (int paint = 1; paint <= state_.PaintCount; ++paint) {
        const PaintColor& color = state_.PaintColors[paint];
        const QString symbol = ToQt(symbols_.NameOf(SymbolOf(state_.PaintColors, paint)));
        StartLayer(QString("paint-%1").arg(paint), symbol + " " + PlainText(PaintLabel(color)));
        xml_.writeAttribute("fill", ToQt(ColorOf(color)).name());
        for (const int area : areas[static_cast<std::size_t>(paint)]) {
            xml_.writeEmptyElement(kSvg, "path");
            xml_.writeAttribute("id", QString("area-%1").arg(area + 1));
            DrawPath(AreaPath(plan_.Lines, area, unit_));
        }
        xml_.writeEndElement();
    }
    xml_.writeEndElement();
}

void SvgPlan::DrawOutlines(const QString& ink) {
    StartLayer("outlines", "Outlines");
    xml_.writeAttribute("fill", "none");
    xml_.writeAttribute("stroke", ink);
    xml_.writeAttribute("stroke-width", MmText(kBorderMm));
    xml_.writeAttribute("stroke-linecap", "square");
    for (const PlanChain& chain : plan_.Lines.Chains) {
        xml_.writeEmptyElement(kSvg, "path");
        DrawPath(ChainPath(chain, unit_));
    }
    xml_.writeEndElement();
}

void SvgPlan::DrawSymbols(const QString& ink) {
    std::vector<QPainterPath> outlines(1);
    for (int paint = 1; paint <= state_.PaintCount; ++paint) {
        outlines.push_back(symbols_.Outline(SymbolOf(state_.PaintColors, paint)));
    }
    StartLayer("symbols", "Symbols");
    xml_.writeAttribute("fill", ink);
    xml_.writeAttribute("fill-rule", "evenodd");
    for (const PlanLabel& label : plan_.Labels) {
        const int paint = plan_.Regions[label.Region].Value;
        PathText path(unit_);
        AddOutline(path, outlines[static_cast<std::size_t>(paint)], label.Centre, label.Height);
        xml_.writeEmptyElement(kSvg, "path");
        DrawPath(path.Text());
        DrawLeader(label, plan_.Aspects[paint], ink);
    }
    xml_.writeEndElement();
}

void SvgPlan::DrawLeader(const PlanLabel& label, double aspect, const QString& ink) {
    if (!label.PointsAt) {
        return;
    }
    const PlanLine leader = LeaderOf(label, aspect);
    PathText path(unit_);
    path.MoveTo(leader.front());
    path.LineTo(leader.back());
    xml_.writeEmptyElement(kSvg, "path");
    xml_.writeAttribute("fill", "none");
    xml_.writeAttribute("stroke", ink);
    xml_.writeAttribute("stroke-width", MmText(kBorderMm));
    DrawPath(path.Text());
    xml_.writeEmptyElement(kSvg, "circle");
    xml_.writeAttribute("cx", MmText(plan_.Scale.Mm(leader.back().X)));
    xml_.writeAttribute("cy", MmText(plan_.Scale.Mm(leader.back().Y)));
    xml_.writeAttribute("r", MmText(kLeaderDotMm));
}

}  // namespace

void WriteKitSvg(PlannedKit& kit, const Target& target) {
    const Workplace& place = kit.Place();
    place.Screen.SetCaption("Drawing the Plan");
    const PrintSymbols symbols(kit.Marks());
    QByteArray svg;
    SvgPlan(place.State, kit.InOnePiece(), symbols, svg).Draw(kit.Settings().Gray);
    SaveDrawn(place.Screen, svg, target);
}

}  // namespace vendrel
