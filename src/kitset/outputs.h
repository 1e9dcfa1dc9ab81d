#pragma once

#include <bit>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "output/output_id.h"
#include "output/result_files.h"
#include "output/sheet_writer.h"
#include "plan/exporter.h"
#include "support/whole_file.h"

namespace vendrel {

/// What the writers of one kit share. The painting is numbered once, when the first asks for it,
/// and its plan is laid out once.
class OutputJob {
  public:
    OutputJob(Workplace& place, const Exporter* fonts, const PlanSettings& plan)
        : Place(place), Fonts(fonts) {
        if (fonts != nullptr) {
            Planned.emplace(place, *fonts, plan);
        }
    }

    Workplace& Place;
    const Exporter* Fonts;  // for outputs that need them
    std::optional<PlannedKit> Planned;

    [[nodiscard]] const NumberedPainting& Numbered();
    /// Of the numbering, when there was one.
    [[nodiscard]] std::optional<NumberingCounts> Counts() const;

  private:
    std::optional<NumberedPainting> numbered_;
};

/// One thing a kit can consist of. To add one is to add a row to the table in outputs.cpp.
struct Output {
    OutputId Id;
    std::string_view Word;  // on the command line
    std::string_view Kind;  // of the file in Results, see ResultFile; empty: the saved grid
    bool NeedsFonts;
    bool ByDefault;     // part of every kit of the command
    bool InEverything;  // part of Save Everything
    Lasting Power;      // what a power cut may take of it
    /// Writes the file, whole or not at all. Throws Error.
    void (*Write)(OutputJob& job, const Target& target);
};

/// All outputs, in the order in which they are told.
[[nodiscard]] std::span<const Output> AllOutputs();
[[nodiscard]] const Output& OutputOf(OutputId output);
/// Null when no output has that word.
[[nodiscard]] const Output* OutputNamed(std::string_view word);
/// Which of the outputs are meant.
[[nodiscard]] inline bool IsOutput(const Output& /*any*/) {
    return true;
}
[[nodiscard]] inline bool IsByDefault(const Output& output) {
    return output.ByDefault;
}
[[nodiscard]] inline bool IsInEverything(const Output& output) {
    return output.InEverything;
}
/// Their words, with `between` in between.
[[nodiscard]] std::string OutputWords(std::string_view between, bool (*wanted)(const Output&));

/// Where an output's file stands, existing or not.
[[nodiscard]] std::filesystem::path FileOf(const Output& output, const ProgramFolder& folder,
                                           const KitName& kit);

/// Some of the outputs.
class OutputChoice {
  public:
    OutputChoice() = default;
    explicit OutputChoice(bool (*wanted)(const Output&));

    [[nodiscard]] bool Has(OutputId output) const { return (bits_ & BitOf(output)) != 0; }
    void Add(OutputId output) { bits_ |= BitOf(output); }
    void Remove(OutputId output) { bits_ &= ~BitOf(output); }
    [[nodiscard]] int Count() const { return std::popcount(bits_); }
    [[nodiscard]] bool NeedsFonts() const;

  private:
    static std::uint32_t BitOf(OutputId output) { return 1U << static_cast<unsigned>(output); }
    std::uint32_t bits_ = 0;
};

}  // namespace vendrel
