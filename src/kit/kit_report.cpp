#include "kit/kit_report.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "convert/working_size.h"
#include "kit/printable.h"
#include "support/decimals.h"
#include "support/size_text.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

constexpr std::size_t kLabelWidth = 14;

using Json = nlohmann::ordered_json;

std::string OneDecimal(double number) {
    return Decimals(number, 1);
}

void AddLine(std::string& text, std::string label, const std::string& value) {
    label.resize(kLabelWidth, ' ');
    text += "  " + label + Printable(value) + "\n";
}

struct FitWords {
    PhotoFit Fit;
    std::string_view Option;
    std::string_view Sentence;
};

constexpr FitWords kFitWords[] = {
    {PhotoFit::Keep, "keep", ", its shape kept"},
    {PhotoFit::Crop, "crop", ", cropped"},
    {PhotoFit::CropTop, "top", ", cropped below its top"},
    {PhotoFit::Stretch, "stretch", ""},
};
constexpr FitWords kFitsByItself{PhotoFit::Keep, "none", ""};

const FitWords& WordsOf(const std::optional<PhotoFit>& fit) {
    return fit ? *std::ranges::find(kFitWords, *fit, &FitWords::Fit) : kFitsByItself;
}

std::string MillisecondsLine(const KitReport& report) {
    std::string line;
    double total = 0;
    for (const auto& [step, milliseconds] : report.Milliseconds) {
        line += step + " " + OneDecimal(milliseconds) + ", ";
        total += milliseconds;
    }
    return line + "together " + OneDecimal(total);
}

Json JsonOf(const BitmapSize& size) {
    return {{"width", size.Width}, {"height", size.Height}};
}

Json JsonOf(const NumberingCounts& counts) {
    return {{"areas", counts.Areas},
            {"withoutSymbol", counts.AreasWithoutSymbol},
            {"symbols", counts.Symbols},
            {"outsideStipples", counts.SymbolsAstray},
            {"borderDots", counts.BorderDots}};
}

Json JsonOf(const PlanFigures& plan) {
    Json json{
        {"pages", plan.Pages},
        {"canvasCm", {{"width", plan.Canvas.Width / 10}, {"height", plan.Canvas.Height / 10}}},
        {"symbols", plan.Areas}};
    if (plan.Symbols) {
        json["below2mm"] = plan.Symbols->Small;
        json["smallestMm"] = plan.Symbols->SmallestMm;
    }
    return json;
}

Json JsonOf(const KitFigures& figures) {
    Json bySize = Json::object();
    for (std::size_t i = 0; i < kAreaClassesMm2.size(); ++i) {
        bySize["below" + Decimals(kAreaClassesMm2[i], 0)] = figures.BySize[i];
    }
    bySize["larger"] = figures.BySize.back();
    return {{"canvasCm", figures.CanvasCm},
            {"areas", figures.Areas},
            {"areasByMm2", bySize},
            {"belowLimits", figures.BelowLimits},
            {"smallestMm2", figures.SmallestMm2},
            {"narrowestMm", figures.NarrowestMm},
            {"hours", figures.Hours}};
}

Json JsonOf(const KitNeeds& kit) {
    Json paints = Json::array();
    for (const PaintNeed& need : kit.Needs) {
        const PaintColor& paint = kit.Paints[need.Paint];
        paints.push_back({{"set", paint.Mfg},
                          {"name", paint.PaintName},
                          {"code", paint.PaintCode},
                          {"color", HexOf(paint)},
                          {"cm2", need.Cm2},
                          {"ml", need.Ml}});
    }
    return {{"potMl", kit.Use.PotMl}, {"paints", std::move(paints)}};
}

Json JsonOf(const KitReport& report) {
    Json json = {{"photo", report.Photo},
                 {"picture", report.Picture},
                 {"name", report.Name},
                 {"difficulty", report.Difficulty},
                 {"mark", report.Mark},
                 {"photoSize", JsonOf(report.PhotoSize)},
                 {"workingSize", JsonOf(report.WorkingSize)},
                 {"fit", WordsOf(report.Fit).Option},
                 {"stretchPercent", StretchPercent(report.PhotoSize, report.WorkingSize)},
                 {"stipples", {{"across", report.CellsAcross}, {"down", report.CellsDown}}}};
    if (!report.FromGrid) {
        json["paints"]["matched"] = report.PaintsMatched;
    }
    json["paints"]["kept"] = report.PaintsKept;
    json["areas"] = report.Areas;
    json["loners"] = report.Loners;
    json["match"] = report.Matched;
    json["paintable"] = report.Paintable;
    json["figures"] = JsonOf(report.Figures);
    if (report.Seen) {
        json["figures"]["meanDifference"] = report.Seen->Pixels;
        json["figures"]["meanDifferenceAtArmsLength"] = report.Seen->AtArmsLength;
    }
    if (report.Numbering) {
        json["numbering"] = JsonOf(*report.Numbering);
    }
    if (report.Plan) {
        json["plan"] = JsonOf(*report.Plan);
    }
    if (report.Needs) {
        json["needs"] = JsonOf(*report.Needs);
    }
    json["milliseconds"] = Json::object();
    for (const auto& [step, number] : report.Milliseconds) {
        json["milliseconds"][step] = number;
    }
    json["files"] = Json::object();
    for (const auto& [output, file] : report.Files) {
        json["files"][output] = file;
    }
    if (!report.List.empty()) {
        json["kitList"] = report.List;
    }
    json["notes"] = report.Notes;
    return json;
}

// One line that people read too: spaces behind the commas, two decimals. Bytes that are no UTF-8
// are taken for Windows-1252.
std::string LineOf(const Json& json) {
    if (json.is_string()) {
        return Json(ToUtf8(json.get_ref<const std::string&>())).dump();
    }
    if (json.is_number_float()) {
        return Decimals(json.get<double>(), 2);
    }
    if (!json.is_structured()) {
        return json.dump();
    }
    std::string members;
    for (const auto& [name, value] : json.items()) {
        members += (members.empty() ? "" : ", ") +
                   (json.is_object() ? Json(name).dump() + ": " : "") + LineOf(value);
    }
    return json.is_object() ? "{" + members + "}" : "[" + members + "]";
}

// "12 below 9, 40 below 25, 300 below 100, 20 below 400, 5 larger"
std::string ClassesLine(const KitFigures& figures) {
    std::string line;
    for (std::size_t i = 0; i < kAreaClassesMm2.size(); ++i) {
        line +=
            std::to_string(figures.BySize[i]) + " below " + Decimals(kAreaClassesMm2[i], 0) + ", ";
    }
    return line + std::to_string(figures.BySize.back()) + " larger";
}

void AddFigures(std::string& text, const KitReport& report) {
    const KitFigures& figures = report.Figures;
    AddLine(text, "on a canvas",
            Decimals(figures.CanvasCm, 0) + " cm wide: " + std::to_string(figures.Areas) +
                " areas, about " + Decimals(figures.Hours, 0) + " hours of painting");
    AddLine(text, "by mm2", ClassesLine(figures));
    AddLine(text, "smallest",
            OneDecimal(figures.SmallestMm2) + " mm2, narrowest " + OneDecimal(figures.NarrowestMm) +
                " mm");
    if (report.Seen) {
        AddLine(text, "seen",
                "differs from the photo by " + Decimals(report.Seen->Pixels, 2) +
                    " (mean CIEDE2000), " + Decimals(report.Seen->AtArmsLength, 2) +
                    " at arm's length");
    }
}

}  // namespace

std::string SummaryOf(const KitReport& report) {
    std::string text = Printable(report.Photo) + ", " + report.Difficulty + "\n";
    AddLine(text, "picture", report.Picture);
    AddLine(text, "photo", SizeText(report.PhotoSize.Width, report.PhotoSize.Height) + " pixels");
    AddLine(text, "worked at",
            SizeText(report.WorkingSize.Width, report.WorkingSize.Height) +
                " pixels, stretched by " +
                OneDecimal(StretchPercent(report.PhotoSize, report.WorkingSize)) + " %" +
                std::string(WordsOf(report.Fit).Sentence));
    AddLine(text, "stipples", SizeText(report.CellsAcross, report.CellsDown));
    AddLine(text, "paints",
            (report.FromGrid ? "" : std::to_string(report.PaintsMatched) + " matched, ") +
                std::to_string(report.PaintsKept) + " kept");
    AddLine(text, "areas",
            std::to_string(report.Areas) + ", and " + std::to_string(report.Loners) + " loners");
    AddFigures(text, report);
    if (report.Numbering) {
        const NumberingCounts& n = *report.Numbering;
        AddLine(text, "numbered",
                std::to_string(n.Areas) + " areas, " + std::to_string(n.AreasWithoutSymbol) +
                    " of them without a symbol");
        AddLine(text, "symbols",
                std::to_string(n.Symbols) + " stamped, " + std::to_string(n.SymbolsAstray) +
                    " outside a stipple of their paint");
        AddLine(text, "border dots", std::to_string(n.BorderDots));
    }
    if (report.Plan) {
        AddLine(text, "plan",
                std::to_string(report.Plan->Pages) +
                    (report.Plan->Pages == 1 ? " page, canvas " : " pages, canvas ") +
                    OneDecimal(report.Plan->Canvas.Width / 10) + " x " +
                    OneDecimal(report.Plan->Canvas.Height / 10) + " cm" +
                    (report.Plan->Symbols
                         ? ", symbols from " + SmallestText(*report.Plan->Symbols) + " mm"
                         : ""));
    }
    AddLine(text, "mark", report.Mark);
    AddLine(text, "milliseconds", MillisecondsLine(report));
    for (const auto& [output, file] : report.Files) {
        AddLine(text, output, file);
    }
    if (!report.List.empty()) {
        AddLine(text, "kit list", report.List);
    }
    for (const std::string& note : report.Notes) {
        AddLine(text, "note", note);
    }
    return text;
}

std::string JsonLineOf(const KitReport& report) {
    return LineOf(JsonOf(report));
}

std::string JsonLineOf(const std::string& photo, const std::string& error) {
    return LineOf({{"photo", photo}, {"error", error}});
}

}  // namespace vendrel
