#include "kitset/outputs.h"

#include <algorithm>

#include "output/painting_writer.h"
#include "storage/stipple_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

void WriteGrid(OutputJob& job, const Target& target) {
    const WorkState& state = job.Place.State;
    WriteStippleFile(
        target,
        {state.PaintColors, state.Stipples, state.CellsAcross, state.CellsDown, state.FinalColors},
        Lasting::Remade);  // the set syncs it
}

template <OutputId kId>
void WriteWithFonts(OutputJob& job, const Target& target) {
    job.Fonts->Write(kId, *job.Planned, target);
}

constexpr bool kFonts = true;
constexpr bool kByDefault = true;
constexpr bool kInEverything = true;

constexpr Output kOutputs[] = {
    {OutputId::Sheet, "sheet", "PBS.BMP", !kFonts, kByDefault, kInEverything, Lasting::Remade,
     [](OutputJob& job, const Target& target) { job.Numbered().WriteSheet(target); }},
    {OutputId::Reference, "reference", "Symbol Reference.BMP", !kFonts, kByDefault, kInEverything,
     Lasting::Remade,
     [](OutputJob& job, const Target& target) { job.Numbered().WriteReference(target); }},
    {OutputId::Painting, "painting", "Painting.BMP", !kFonts, kByDefault, kInEverything,
     Lasting::Remade,
     [](OutputJob& job, const Target& target) {
         WritePainting(job.Place.Screen, job.Place.Frames->WorkFrame.Picture, target);
     }},
    {OutputId::Chart, "chart", "Color Chart.BMP", kFonts, kByDefault, kInEverything,
     Lasting::Remade, WriteWithFonts<OutputId::Chart>},
    {OutputId::Grid, "grid", "", !kFonts, kByDefault, !kInEverything, Lasting::Synced, WriteGrid},
    {OutputId::Pdf, "pdf", "Kit.pdf", kFonts, !kByDefault, !kInEverything, Lasting::Remade,
     WriteWithFonts<OutputId::Pdf>},
    {OutputId::Svg, "svg", "Plan.svg", kFonts, !kByDefault, !kInEverything, Lasting::Remade,
     WriteWithFonts<OutputId::Svg>},
    {OutputId::Page, "page", "Paint Along.html", kFonts, !kByDefault, !kInEverything,
     Lasting::Remade, WriteWithFonts<OutputId::Page>},
    {OutputId::List, "list", "Paints.csv", kFonts, !kByDefault, !kInEverything, Lasting::Remade,
     WriteWithFonts<OutputId::List>},
};

}  // namespace

const NumberedPainting& OutputJob::Numbered() {
    if (!numbered_) {
        numbered_.emplace(Place);
    }
    return *numbered_;
}

std::optional<NumberingCounts> OutputJob::Counts() const {
    return numbered_ ? std::optional(numbered_->Counts()) : std::nullopt;
}

std::span<const Output> AllOutputs() {
    return kOutputs;
}

const Output& OutputOf(OutputId output) {
    return *std::ranges::find(kOutputs, output, &Output::Id);
}

const Output* OutputNamed(std::string_view word) {
    const auto* const found = std::ranges::find(kOutputs, word, &Output::Word);
    return found == std::end(kOutputs) ? nullptr : found;
}

std::string OutputWords(std::string_view between, bool (*wanted)(const Output&)) {
    std::string words;
    for (const Output& output : kOutputs) {
        if (wanted(output)) {
            words += words.empty() ? "" : between;
            words += output.Word;
        }
    }
    return words;
}

fs::path FileOf(const Output& output, const ProgramFolder& folder, const KitName& kit) {
    return output.Kind.empty() ? StippleFilePath(folder, kit.Photo, kit.Difficulty)
                               : ResultFile(folder, kit, output.Kind);
}

OutputChoice::OutputChoice(bool (*wanted)(const Output&)) {
    for (const Output& output : kOutputs) {
        if (wanted(output)) {
            Add(output.Id);
        }
    }
}

bool OutputChoice::NeedsFonts() const {
    return std::ranges::any_of(
        kOutputs, [this](const Output& output) { return output.NeedsFonts && Has(output.Id); });
}

}  // namespace vendrel
