#include "kit/kit_report.h"

#include <array>
#include <charconv>

#include "convert/working_size.h"

namespace vendrel {
namespace {

constexpr std::size_t kLabelWidth = 14;

std::string OneDecimal(double number) {
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, 1);
    return {text.data(), end.ptr};
}

std::string Times(int across, int down) {
    return std::to_string(across) + " x " + std::to_string(down);
}

void AddLine(std::string& text, std::string label, const std::string& value) {
    label.resize(kLabelWidth, ' ');
    text += "  " + label + value + "\n";
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

JsonObject JsonOf(const BitmapSize& size) {
    return JsonObject().Add("width", size.Width).Add("height", size.Height);
}

JsonObject JsonOf(const NumberingCounts& counts) {
    JsonObject object;
    object.Add("areas", counts.Areas)
        .Add("withoutSymbol", counts.AreasWithoutSymbol)
        .Add("symbols", counts.Symbols)
        .Add("outsideStipples", counts.SymbolsAstray)
        .Add("borderDots", counts.BorderDots);
    return object;
}

}  // namespace

std::string SummaryOf(const KitReport& report) {
    std::string text = report.Photo + ", " + report.Difficulty + "\n";
    AddLine(text, "picture", report.Picture);
    AddLine(text, "photo", Times(report.PhotoSize.Width, report.PhotoSize.Height) + " pixels");
    AddLine(text, "worked at",
            Times(report.WorkingSize.Width, report.WorkingSize.Height) + " pixels, stretched by " +
                OneDecimal(StretchPercent(report.PhotoSize, report.WorkingSize)) + " %");
    AddLine(text, "stipples", Times(report.CellsAcross, report.CellsDown));
    AddLine(text, "paints",
            (report.FromGrid ? "" : std::to_string(report.PaintsMatched) + " matched, ") +
                std::to_string(report.PaintsKept) + " kept");
    AddLine(text, "areas",
            std::to_string(report.Areas) + ", and " + std::to_string(report.Loners) + " loners");
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

JsonObject JsonOf(const KitReport& report) {
    JsonObject paints;
    if (!report.FromGrid) {
        paints.Add("matched", report.PaintsMatched);
    }
    paints.Add("kept", report.PaintsKept);
    JsonObject object;
    object.Add("photo", report.Photo)
        .Add("picture", report.Picture)
        .Add("name", report.Name)
        .Add("difficulty", report.Difficulty)
        .Add("mark", report.Mark)
        .Add("photoSize", JsonOf(report.PhotoSize))
        .Add("workingSize", JsonOf(report.WorkingSize))
        .Add("stretchPercent", StretchPercent(report.PhotoSize, report.WorkingSize))
        .Add("stipples",
             JsonObject().Add("across", report.CellsAcross).Add("down", report.CellsDown))
        .Add("paints", paints)
        .Add("areas", report.Areas)
        .Add("loners", report.Loners);
    if (report.Numbering) {
        object.Add("numbering", JsonOf(*report.Numbering));
    }
    JsonObject milliseconds;
    for (const auto& [step, number] : report.Milliseconds) {
        milliseconds.Add(step, number);
    }
    JsonObject files;
    for (const auto& [output, file] : report.Files) {
        files.Add(output, file);
    }
    object.Add("milliseconds", milliseconds).Add("files", files);
    if (!report.List.empty()) {
        object.Add("kitList", report.List);
    }
    object.Add("notes", report.Notes);
    return object;
}

}  // namespace vendrel
