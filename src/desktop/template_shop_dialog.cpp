#include "desktop/template_shop_dialog.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/list_box.h"
#include "desktop/named.h"
#include "desktop/paint_items.h"
#include "desktop/text.h"
#include "output/chart_contents.h"
#include "support/list.h"

namespace vendrel {
namespace {

std::vector<int> RowsChosenIn(const QListWidget& list) {
    std::vector<int> rows;
    for (const QListWidgetItem* item : list.selectedItems()) {
        rows.push_back(list.row(item));
    }
    std::ranges::sort(rows);
    return rows;
}

// The last of them is where the keyboard goes on.
void ChooseRows(QListWidget& list, int first, int count) {
    if (count > 0) {
        list.setCurrentRow(first + count - 1, QItemSelectionModel::ClearAndSelect);
        for (int row = first; row < first + count; ++row) {
            list.item(row)->setSelected(true);
        }
        list.scrollToItem(list.item(first + count - 1));
    }
}

std::filesystem::path PathOf(const QString& file) {
    return std::filesystem::path(file.toStdString());
}

}  // namespace

TemplateShopDialog::TemplateShopDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place),
      templateList_(Named<QListWidget>("TemplateList", tr("Templates"))),
      paintsFrame_(new QGroupBox),
      swatches_(new SwatchBox([this](int swatch) -> const PaintColor* {
          const auto& paints = form_.Controls().Paints;
          return paints.Holds(swatch + 1) ? &paints[swatch + 1] : nullptr;
      })),
      paintList_(Named<QListWidget>("TemplatePaints", tr("Paints of the template"))),
      setBox_(Named<QComboBox>("SearchSet", tr("Paint set to search"))),
      searchText_(Named<QLineEdit>("SearchText", tr("Search set, name or code"))),
      ownedOnly_(Named<QCheckBox>("SearchOwned", tr("My paints alone"))),
      nearButton_(nullptr),
      foundList_(Named<QListWidget>("FoundPaints", tr("Paints of the catalogue"))) {
    setWindowTitle(tr("Template Shop"));
    auto* columns = new QHBoxLayout;
    columns->addWidget(MakeTemplates(), 2);
    columns->addWidget(MakePaints(), 3);
    columns->addWidget(MakeCatalogue(), 3);
    auto* all = new QVBoxLayout(this);
    all->addLayout(columns, 1);
    QPushButton* done = MakeButton("TemplateShopDone", tr("Done"), [this] { form_.Done_Click(); });
    done->setDefault(true);
    all->addWidget(done, 0, Qt::AlignRight);
    resize(1040, 600);
}

QWidget* TemplateShopDialog::MakeTemplates() {
    auto* frame = new QGroupBox(tr("T&emplates"));
    auto* column = new QVBoxLayout(frame);
    column->addWidget(templateList_, 1);
    OnChosen(*templateList_,
             [this](int entry) { Run([this, entry] { form_.TemplateList_Click(entry); }); });
    auto* buttons = new QGridLayout;
    buttons->addWidget(MakeButton("AddTemplate", tr("&Add…"),
                                  [this] {
                                      AskName(tr("Add Template"), {}, [this](const auto& name) {
                                          form_.AddTemplate_Click(name);
                                      });
                                  }),
                       0, 0);
    const auto add = [&](int row, int column_, const char* name, const QString& text,
                         const std::function<void()>& clicked) {
        needTemplate_.push_back(MakeButton(name, text, clicked));
        buttons->addWidget(needTemplate_.back(), row, column_);
    };
    add(0, 1, "DeleteTemplate", tr("&Delete"), [this] { form_.DeleteTemplate_Click(); });
    add(1, 0, "RenameTemplate", tr("&Rename…"), [this] {
        AskName(tr("Rename Template"), Text(form_.Chosen()),
                [this](const auto& name) { form_.RenameTemplate_Click(name); });
    });
    add(1, 1, "DuplicateTemplate", tr("D&uplicate…"), [this] {
        AskName(tr("Duplicate Template"), Text(form_.Chosen()) + tr(" copy"),
                [this](const auto& name) { form_.DuplicateTemplate_Click(name); });
    });
    buttons->addWidget(MakeButton("ImportTemplate", tr("&Import…"), [this] { ChooseImport(); }), 2,
                       0);
    add(2, 1, "ExportTemplate", tr("E&xport…"), [this] { ChooseExport(); });
    column->addLayout(buttons);
    needTemplate_.push_back(MakeButton("FillFromPhoto", tr("&Fill From Current Photo"),
                                       [this] { form_.FillFromPhoto_Click(); }));
    column->addWidget(needTemplate_.back());
    return frame;
}

QWidget* TemplateShopDialog::MakePaints() {
    auto* column = new QVBoxLayout(paintsFrame_);
    swatches_->setObjectName(QStringLiteral("TemplatePalette"));
    swatches_->setMinimumSize(240, 90);
    connect(swatches_, &SwatchBox::Resized, this, [this] { MirrorTemplate(); });
    column->addWidget(swatches_);
    column->addWidget(paintList_, 1);
    paintList_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto* row = new QHBoxLayout;
    for (QPushButton* button : {MakeButton("RemovePaint", tr("Re&move"),
                                           [this] { form_.RemovePaints_Click(ChosenPaints()); }),
                                MakeButton("PaintUp", tr("U&p"), [this] { MovePaints(-1); }),
                                MakeButton("PaintDown", tr("D&own"), [this] { MovePaints(1); })}) {
        needTemplate_.push_back(button);
        row->addWidget(button);
    }
    column->addLayout(row);
    return paintsFrame_;
}

QWidget* TemplateShopDialog::MakeCatalogue() {
    auto* frame = new QGroupBox(tr("&Catalogue"));
    auto* column = new QVBoxLayout(frame);
    column->addWidget(setBox_);
    searchText_->setPlaceholderText(tr("Search set, name or code"));
    searchText_->setClearButtonEnabled(true);
    column->addWidget(searchText_);
    nearButton_ = MakeButton("SearchNear", tr("&Nearest to a Color…"), [this] { PickColor(); });
    ownedOnly_->setText(tr("My paints a&lone"));
    auto* narrow = new QHBoxLayout;
    narrow->addWidget(nearButton_, 1);
    narrow->addWidget(ownedOnly_);
    column->addLayout(narrow);
    foundList_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    column->addWidget(foundList_, 1);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {MakeButton("AddPaint", tr("Add to &Template"),
                                           [this] { Added(form_.AddPaints_Click(ChosenRows())); }),
                                MakeButton("AddWholeSet", tr("Add Whole &Set"),
                                           [this] { Added(form_.AddSets_Click(ChosenRows())); })}) {
        needTemplate_.push_back(button);
        buttons->addWidget(button, 1);
    }
    column->addLayout(buttons);
    connect(ownedOnly_, &QCheckBox::clicked, this, [this] { Search(); });
    connect(setBox_, &QComboBox::activated, this, [this] { Search(); });
    connect(searchText_, &QLineEdit::textChanged, this, [this] { Search(); });
    OnTaken(*foundList_, [this] { Run([this] { Added(form_.AddPaints_Click(ChosenRows())); }); });
    return frame;
}

void TemplateShopDialog::Load() {
    form_.Form_Load();
    setBox_->addItem(tr("All paint sets"));
    for (const std::string& set : form_.Sets()) {
        setBox_->addItem(Text(set), Text(set));
    }
    form_.TemplateList_Click(form_.Preselected());
}

void TemplateShopDialog::Mirror() {
    const TemplateShopControls& shown = form_.Controls();
    MirrorList(*templateList_, shown.TemplateList, shown.TemplateIndex);
    for (QPushButton* button : needTemplate_) {
        button->setEnabled(shown.TemplateIndex >= 0);
    }
    MirrorTemplate();
    MirrorCatalogue();
}

void TemplateShopDialog::MirrorTemplate() {
    const TemplateShopControls& shown = form_.Controls();
    const int count = shown.Paints.Count();
    const QString title = shown.TemplateIndex < 0
                              ? tr("No template chosen")
                              : tr("%1 [%2 paints]").arg(Text(form_.Chosen())).arg(count);
    paintsFrame_->setTitle(WithoutMnemonics(title));
    swatches_->SetTitle(title);
    MirrorPaints(*paintList_, ItemsOf({shown.Paints.begin(), shown.Paints.end()}),
                 std::min(paintList_->currentRow(), count - 1));
    swatches_->SetLayout(LayOutSwatches(swatches_->width(), swatches_->height(), count,
                                        Context().Place.Screen.Screen().Twips.X));
}

void TemplateShopDialog::MirrorCatalogue() {
    std::vector<PaintColor> found;
    for (const int row : form_.Controls().Found) {
        found.push_back(Context().Place.State->MasterColors[row]);
    }
    const std::vector<PaintItem> items = ItemsOf(found);
    MirrorPaints(*foundList_, items,
                 std::min(foundList_->currentRow(), static_cast<int>(items.size()) - 1));
    nearButton_->setText(search_.Near ? tr("&Nearest to This Color (Click to End)")
                                      : tr("&Nearest to a Color…"));
    nearButton_->setIcon(search_.Near ? SwatchIcon(*search_.Near) : QIcon());
}

void TemplateShopDialog::Search() {
    search_.Text = searchText_->text().toStdString();
    search_.Set = setBox_->currentData().toString().toStdString();
    search_.OwnedOnly = ownedOnly_->isChecked();
    Run([this] { form_.Search_Change(search_); });
}

void TemplateShopDialog::PickColor() {
    if (search_.Near) {
        search_.Near.reset();
    } else {
        const QColor color = QColorDialog::getColor(Qt::gray, this, tr("Nearest to Which Color?"));
        if (!color.isValid()) {
            return;
        }
        search_.Near = Rgb(color.red(), color.green(), color.blue());
    }
    form_.Search_Change(search_);
    foundList_->scrollToTop();
}

void TemplateShopDialog::AskName(const QString& title, const QString& first,
                                 const std::function<void(const std::string&)>& use) {
    bool accepted = false;
    const QString name = QInputDialog::getText(this, title, tr("Name of the template:"),
                                               QLineEdit::Normal, first, &accepted);
    if (accepted) {
        use(name.trimmed().toStdString());
    }
}

void TemplateShopDialog::ChooseImport() {
    const QString file = QFileDialog::getOpenFileName(this, tr("Import a Palette"), {},
                                                      tr("Palettes and templates (*.gpl *.csv)"));
    if (!file.isEmpty()) {
        form_.Import_Click(PathOf(file));
    }
}

void TemplateShopDialog::ChooseExport() {
    const QString file = QFileDialog::getSaveFileName(this, tr("Export as a Palette"),
                                                      Text(form_.Chosen()) + QStringLiteral(".gpl"),
                                                      tr("Palettes (*.gpl)"));
    if (!file.isEmpty()) {
        form_.Export_Click(PathOf(file));
    }
}

std::vector<PaintItem> TemplateShopDialog::ItemsOf(const std::vector<PaintColor>& paints) const {
    std::vector<PaintItem> items;
    for (const PaintColor& paint : paints) {
        const QString label = Text(PaintLabel(paint));
        const auto owned = form_.OwnedAs(paint);
        items.push_back({ColorOf(paint), kNoColor, label,
                         owned ? tr("%1, yours, label %2").arg(label, Text(*owned)) : QString(),
                         owned.has_value()});
    }
    return items;
}

std::vector<int> TemplateShopDialog::ChosenRows() const {
    std::vector<int> rows;
    for (const int row : RowsChosenIn(*foundList_)) {
        rows.push_back(At(form_.Controls().Found, row));
    }
    return rows;
}

void TemplateShopDialog::Added(int paints) {
    MirrorTemplate();
    ChooseRows(*paintList_, paintList_->count() - paints, paints);
}

std::vector<int> TemplateShopDialog::ChosenPaints() const {
    std::vector<int> paints = RowsChosenIn(*paintList_);
    for (int& paint : paints) {
        ++paint;
    }
    return paints;
}

void TemplateShopDialog::MovePaints(int by) {
    const std::vector<int> paints = ChosenPaints();
    if (form_.MovePaints_Click(paints, by)) {
        MirrorTemplate();
        paintList_->clearSelection();
        for (const int paint : paints) {
            paintList_->item(paint + by - 1)->setSelected(true);
        }
        paintList_->setCurrentRow(paints.back() + by - 1, QItemSelectionModel::NoUpdate);
    }
}

}  // namespace vendrel
