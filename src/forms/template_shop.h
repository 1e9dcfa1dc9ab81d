#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/paint_id.h"
#include "shell/workplace.h"

namespace vendrel {

/// What to look for in the catalogue.
struct PaintSearch {
    std::string Text{};           // part of set, name or code, without regard to case; empty: all
    std::string Set{};            // one set only; empty: all
    std::optional<Color> Near{};  // nearest first; else catalogue order
    bool OwnedOnly = false;       // the painter's own alone
};

/// What the template shop shows. Indexes count from 0; -1 is nothing.
struct TemplateShopControls {
    std::vector<std::string> TemplateList;
    int TemplateIndex = -1;
    PaintList Paints;               // of the chosen template
    bool ChosenIsTemplate = false;  // else its file could not be read as one
    std::vector<int> Found;         // catalogue rows, from 1
};

/// The library of templates: named lists of paints kept in files. Every change is written at once.
class TemplateShop {
  public:
    explicit TemplateShop(Workplace& place) : place_(place) {}

    /// Lists the templates; none is chosen yet.
    void Form_Load();
    /// The entry to choose first: the template in use, else the last one chosen; -1 none.
    [[nodiscard]] int Preselected() const;
    /// Throws when the file is no template; it is then chosen without paints.
    void TemplateList_Click(int entry);

    /// Throw Error for a name that cannot be used.
    void AddTemplate_Click(std::string_view name);
    void RenameTemplate_Click(std::string_view name);
    void DuplicateTemplate_Click(std::string_view name);
    /// Asks first.
    void DeleteTemplate_Click();

    void Search_Change(const PaintSearch& search);
    /// Adds paints of the catalogue (rows from 1) at the end; what is there is not added twice.
    /// Throws Error for a name with a double quote. Answers how many were added.
    int AddPaints_Click(const std::vector<int>& catalogueRows);
    /// The same with all of the sets that these paints are of.
    int AddSets_Click(const std::vector<int>& catalogueRows);
    /// Paints of the template count from 1.
    void RemovePaints_Click(const std::vector<int>& paints);
    /// Moves paints (ascending) one place up or down (by -1 or 1) together. False where one of them
    /// stands at the end.
    bool MovePaints_Click(const std::vector<int>& paints, int by);

    /// Replaces the paints by all that the photo is matched to with the selected sets. The work on
    /// the photo itself stays as it is.
    void FillFromPhoto_Click();
    /// A palette file, or a template from elsewhere, becomes a new template, which is chosen.
    void Import_Click(const std::filesystem::path& file);
    void Export_Click(const std::filesystem::path& file) const;
    void Done_Click();

    [[nodiscard]] const TemplateShopControls& Controls() const { return controls_; }
    /// The chosen template's name; empty when none is chosen.
    [[nodiscard]] std::string Chosen() const;
    /// The label of an owned paint's pot; nothing for others.
    [[nodiscard]] std::optional<std::string> OwnedAs(const PaintColor& paint) const;
    /// Names of the catalogue's sets.
    [[nodiscard]] std::vector<std::string> Sets() const;

  private:
    void ListAndChoose(std::string_view name);
    void ReadChosen();
    [[nodiscard]] std::string RequireChosen() const;
    /// False when the chosen file is no template and shall not be written over.
    [[nodiscard]] bool MayOverwrite();
    void Store(PaintList paints);
    void ReadOwned();

    Workplace& place_;
    std::map<PaintId, std::string> owned_;  // with their labels
    TemplateShopControls controls_;
};

}  // namespace vendrel
