#include "forms/add_catalogue.h"

#include <algorithm>
#include <set>
#include <utility>

#include "forms/counted.h"
#include "paints/catalogue.h"
#include "support/error.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

std::size_t WidestRow(const CsvTable& table) {
    std::size_t width = 0;
    for (const CsvRow& row : table.Rows) {
        width = std::max(width, row.Fields.size());
    }
    return width;
}

int CountSets(const PaintList& paints) {
    std::set<std::string> sets;
    for (const PaintColor& paint : paints) {
        sets.insert(paint.Mfg);
    }
    return static_cast<int>(sets.size());
}

// The window names the file once.
std::string WithoutFile(const std::string& fault, const std::filesystem::path& file) {
    const std::string named = file.string() + ", l";
    return fault.starts_with(named) ? "L" + fault.substr(named.size()) : fault;
}

}  // namespace

void AddCatalogueForm::File_Chosen(const std::filesystem::path& file) {
    CsvTable table = ParseCsv(ReadTextFile(file), file);
    if (table.Rows.empty()) {
        throw FormatError(file, 1, "is empty. Choose a table of paints.");
    }
    table_ = std::move(table);
    file_ = file;
    name_ = file.stem().string();
    set_ = name_;
    columns_ = GuessColumns(table_);
    Read();
}

void AddCatalogueForm::Columns_Change(const CatalogueColumns& columns) {
    columns_ = columns;
    Read();
}

void AddCatalogueForm::Set_Change(const std::string& set) {
    set_ = set;
    Read();
}

void AddCatalogueForm::Read() {
    read_ = {};
    if (!HasTable()) {
        return;
    }
    if (!columns_.Name && !columns_.Code) {
        read_.Faults = {"Say which column holds the names."};
    } else if (!columns_.HasColor()) {
        read_.Faults = {"Say which columns hold the colors."};
    } else {
        read_ = ReadForeignCatalogue(table_, columns_, set_, file_);
        for (std::string& fault : read_.Faults) {
            fault = WithoutFile(fault, file_);
        }
    }
}

std::vector<std::string> AddCatalogueForm::ColumnNames() const {
    std::vector<std::string> names;
    for (std::size_t column = 0; column < WidestRow(table_); ++column) {
        std::string name = std::to_string(column + 1);
        const std::string_view heading = table_.Rows.front().Field(column);
        const std::string_view first =
            columns_.Heading && table_.Rows.size() > 1 ? table_.Rows[1].Field(column) : heading;
        if (columns_.Heading) {
            name += "  " + std::string(heading);
        }
        names.push_back(name + (first.empty() ? "" : "  (" + std::string(first) + ")"));
    }
    return names;
}

std::string AddCatalogueForm::Summary() const {
    if (!HasTable()) {
        return "Choose a table of paints: a CSV file as spreadsheets write it.";
    }
    if (Paints().Empty()) {
        return "No paint can be read yet.";
    }
    const int faults = static_cast<int>(Faults().size());
    return Counted(Paints().Count(), "paint", "paints") + " in " +
           Counted(CountSets(Paints()), "set", "sets") +
           (faults == 0 ? "." : ", " + Counted(faults, "line", "lines") + " left out.");
}

// The choice among the sets that were there stays.
void AddCatalogueForm::Reload() {
    WorkState& state = place_.State;
    std::set<std::string> selected;
    for (const PaintSet& set : state.PaintSets) {
        if (set.Selected) {
            selected.insert(set.Name);
        }
    }
    LoadMasterColors(state, state, place_.Screen, place_.Folder);
    BuildPaintSets(state);
    for (PaintSet& set : state.PaintSets) {
        set.Selected = selected.contains(set.Name);
    }
}

void AddCatalogueForm::AcceptButton_Click() {
    const std::filesystem::path added = AddCatalogue(place_.Folder, name_, Paints());
    Reload();
    place_.Screen.CloseForm(FormId::AddCatalogue);
    place_.Screen.ShowMessage("Add Catalogue",
                              "Data/catalogues/" + added.filename().string() + ": " + Summary() +
                                  " They are in My Paints and in the Template Shop; the Paint "
                                  "Shop paints with them when you choose their sets.");
}

void AddCatalogueForm::CancelButton_Click() {
    place_.Screen.CloseForm(FormId::AddCatalogue);
}

}  // namespace vendrel
