#pragma once

#include <string>
#include <vector>

#include "kitset/outputs.h"
#include "plan/exporter.h"
#include "shell/workplace.h"

namespace vendrel {

/// What the choice of files shows.
struct SaveEverythingControls {
    std::vector<std::string> Always;  // names of the files that are saved in any case
    std::string GridFile;
    std::string PdfFile;
    std::string SvgFile;
    std::string PageFile;
    std::string Folders;  // where they come to stand
};

/// What Save Everything saves. What was chosen stays chosen until the program ends.
class SaveEverythingForm {
  public:
    SaveEverythingForm(Workplace& place, const Exporter* exporter)
        : place_(place), exporter_(exporter) {}

    void Form_Load();
    /// Whether the stipples are saved too, to be touched up another day.
    void Grid_Click(bool wanted) { grid_ = wanted; }
    /// Whether the printed kit is saved too.
    void Pdf_Click(bool wanted) { pdf_ = wanted; }
    /// Whether the plan is saved as a drawing too.
    void Svg_Click(bool wanted) { svg_ = wanted; }
    /// Whether the page to paint along with is saved too.
    void Page_Click(bool wanted) { page_ = wanted; }
    void Paper_Click(Paper paper) { plan_.Sheet = paper; }
    /// Saves all that is chosen as one set, closes, lists the files and offers to open their
    /// folder. The painted picture on screen is the same before and after. Throws Error and
    /// FileError; then the files stay as they were, and the window open.
    void SaveButton_Click();
    void CancelButton_Click();

    [[nodiscard]] const SaveEverythingControls& Controls() const { return controls_; }
    [[nodiscard]] bool Grid() const { return grid_; }
    [[nodiscard]] bool Pdf() const { return pdf_; }
    [[nodiscard]] bool Svg() const { return svg_; }
    [[nodiscard]] bool Page() const { return page_; }
    [[nodiscard]] Paper Sheet() const { return plan_.Sheet; }

  private:
    [[nodiscard]] OutputChoice Chosen() const;

    Workplace& place_;
    const Exporter* exporter_;
    SaveEverythingControls controls_;
    bool grid_ = false;
    bool pdf_ = false;
    bool svg_ = false;
    bool page_ = false;
    PlanSettings plan_;
};

}  // namespace vendrel
