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
    std::string SvgFile;
    std::string PageFile;
    std::string ListFile;
    std::string Folders;    // where they come to stand
    std::string PhotoName;  // names the files unless the kit has a name of its own
};

/// What Save Everything saves. What was chosen stays chosen until the program ends.
class SaveEverythingForm {
  public:
    SaveEverythingForm(Workplace& place, const Exporter* exporter)
        : place_(place), exporter_(exporter) {}

    /// Throws Error, and leaves the printed kit out, when it was chosen and cannot be printed.
    void Form_Load();
    /// Names the files in place of the photo's name, which "" brings back; once saved, for all that
    /// is made of this photo.
    void Name_Change(const std::string& name);
    /// Whether the stipples are saved too, to be touched up another day.
    void Grid_Click(bool wanted) { grid_ = wanted; }
    /// Whether the printed kit is saved too. Throws Error when the painting cannot be printed.
    void Pdf_Click(bool wanted) { Want(pdf_, wanted); }
    /// Whether the plan is saved as a drawing too.
    void Svg_Click(bool wanted) { Want(svg_, wanted); }
    /// Whether the page to paint along with is saved too.
    void Page_Click(bool wanted) { Want(page_, wanted); }
    /// Whether the list of paints to buy is saved too.
    void List_Click(bool wanted) { Want(list_, wanted); }
    /// Saves all that is chosen as one set, closes, lists the files and offers to open their
    /// folder. The painted picture on screen is the same before and after. Throws Error, also for a
    /// name that files cannot have, and FileError; then the files and the kit's name stay as they
    /// were, and the window open.
    void SaveButton_Click();
    void CancelButton_Click();

    [[nodiscard]] const SaveEverythingControls& Controls() const { return controls_; }
    [[nodiscard]] const std::string& Name() const { return name_; }
    [[nodiscard]] bool Grid() const { return grid_; }
    [[nodiscard]] bool Pdf() const { return pdf_; }
    [[nodiscard]] bool Svg() const { return svg_; }
    [[nodiscard]] bool Page() const { return page_; }
    [[nodiscard]] bool List() const { return list_; }
    /// Whether anything is chosen that the plan's settings hold for.
    [[nodiscard]] bool HasPlan() const { return pdf_ || svg_ || page_ || list_; }
    /// Measured while something of it is chosen.
    [[nodiscard]] PlanChoice& Plan() { return plan_; }

  private:
    [[nodiscard]] OutputChoice Chosen() const;
    void ListFiles();
    void Want(bool& output, bool wanted);

    Workplace& place_;
    const Exporter* exporter_;
    SaveEverythingControls controls_;
    std::string name_;
    bool grid_ = false;
    bool pdf_ = false;
    bool svg_ = false;
    bool page_ = false;
    bool list_ = false;
    PlanChoice plan_;
};

}  // namespace vendrel
