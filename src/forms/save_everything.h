#pragma once

#include <string>
#include <vector>

#include "forms/plan_choice.h"
#include "kitset/outputs.h"

namespace vendrel {

/// What the choice of files shows.
struct SaveEverythingControls {
    std::vector<std::string> Always;  // names of the files that are saved in any case
    std::string GridFile;
    std::string PdfFile;
    std::string Folders;  // where they come to stand
};

/// What Save Everything saves. What was chosen stays chosen until the program ends.
class SaveEverythingForm {
  public:
    SaveEverythingForm(Workplace& place, const Exporter* exporter)
        : place_(place), exporter_(exporter) {}

    /// Throws Error, and leaves the printed kit out, when it was chosen and cannot be printed.
    void Form_Load();
    /// Whether the stipples are saved too, to be touched up another day.
    void Grid_Click(bool wanted) { grid_ = wanted; }
    /// Whether the printed kit is saved too. Throws Error when the painting cannot be printed.
    void Pdf_Click(bool wanted);
    /// Saves all that is chosen as one set, closes, lists the files and offers to open their
    /// folder. The painted picture on screen is the same before and after. Throws Error and
    /// FileError; then the files stay as they were, and the window open.
    void SaveButton_Click();
    void CancelButton_Click();

    [[nodiscard]] const SaveEverythingControls& Controls() const { return controls_; }
    [[nodiscard]] bool Grid() const { return grid_; }
    [[nodiscard]] bool Pdf() const { return pdf_; }
    /// Measured while the printed kit is chosen.
    [[nodiscard]] PlanChoice& Plan() { return plan_; }

  private:
    [[nodiscard]] OutputChoice Chosen() const;

    Workplace& place_;
    const Exporter* exporter_;
    SaveEverythingControls controls_;
    bool grid_ = false;
    bool pdf_ = false;
    PlanChoice plan_;
};

}  // namespace vendrel
