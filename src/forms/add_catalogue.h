#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "paints/foreign_catalogue.h"
#include "shell/workplace.h"

namespace vendrel {

/// Makes a table of paints from elsewhere one of the catalogues: asks what its columns hold and
/// shows the paints that come of it.
class AddCatalogueForm {
  public:
    explicit AddCatalogueForm(Workplace& place) : place_(place) {}

    /// Guesses the columns. Throws FileError, FormatError, with the table before it kept.
    void File_Chosen(const std::filesystem::path& file);
    void Columns_Change(const CatalogueColumns& columns);
    /// The paint set of rows that name none.
    void Set_Change(const std::string& set);
    /// The catalogue's own name.
    void Name_Change(const std::string& name) { name_ = name; }
    /// Puts the paints that could be read among the catalogues, for this session too. Throws Error,
    /// FileError; the window then stays open.
    void AcceptButton_Click();
    void CancelButton_Click();

    [[nodiscard]] bool HasTable() const { return !table_.Rows.empty(); }
    [[nodiscard]] const std::filesystem::path& File() const { return file_; }
    [[nodiscard]] const std::string& Name() const { return name_; }
    [[nodiscard]] const std::string& Set() const { return set_; }
    [[nodiscard]] const CatalogueColumns& Columns() const { return columns_; }
    /// Each by number, heading and first field: "2  Name (Cadmium Red)".
    [[nodiscard]] std::vector<std::string> ColumnNames() const;
    [[nodiscard]] const PaintList& Paints() const { return read_.Paints; }
    /// A sentence with its line for every row that is left out, or one that says what is missing.
    [[nodiscard]] const std::vector<std::string>& Faults() const { return read_.Faults; }
    /// "212 paints in 3 sets, 2 lines left out."
    [[nodiscard]] std::string Summary() const;

  private:
    void Read();
    void Reload();

    Workplace& place_;
    std::filesystem::path file_;
    CsvTable table_;
    CatalogueColumns columns_;
    std::string name_;
    std::string set_;
    ForeignCatalogue read_;
};

}  // namespace vendrel
