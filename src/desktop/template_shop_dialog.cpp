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

std::vector<PaintItem> ItemsOf(const PaintList& paints) {
    std::vector<PaintItem> items;
    for (const PaintColor& paint : paints) {
        items.push_back({ColorOf(paint), kNoColor, Text(PaintLabel(paint))});
    }
    return items;
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
    auto* frame = new QGroupBox(tr("Templates"));
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
    swatches_->setAccessibleName(tr("Swatches of the template"));
    swatches_->setMinimumSize(240, 90);
    connect(swatches_, &SwatchBox::Resized, this, [this] { MirrorTemplate(); });
    column->addWidget(swatches_);
    column->addWidget(paintList_, 1);
    auto* row = new QHBoxLayout;
    for (QPushButton* button : {MakeButton("RemovePaint", tr("Re&move"),
                                           [this] { form_.RemovePaint_Click(ChosenPaint()); }),
                                MakeButton("PaintUp", tr("U&p"), [this] { MovePaint(-1); }),
                                MakeButton("PaintDown", tr("D&own"), [this] { MovePaint(1); })}) {
        needTemplate_.push_back(button);
        row->addWidget(button);
    }
    column->addLayout(row);
    return paintsFrame_;
}

QWidget* TemplateShopDialog::MakeCatalogue() {
    auto* frame = new QGroupBox(tr("Catalogue"));
    auto* column = new QVBoxLayout(frame);
    column->addWidget(setBox_);
    searchText_->setPlaceholderText(tr("Search set, name or code"));
    searchText_->setClearButtonEnabled(true);
    column->addWidget(searchText_);
    nearButton_ = MakeButton("SearchNear", tr("&Nearest to a Color…"), [this] { PickColor(); });
    column->addWidget(nearButton_);
    column->addWidget(foundList_, 1);
    needTemplate_.push_back(
        MakeButton("AddPaint", tr("Add to &Template"), [this] { AddChosenPaint(); }));
    column->addWidget(needTemplate_.back());
    connect(setBox_, &QComboBox::activated, this, [this] { Search(); });
    connect(searchText_, &QLineEdit::textChanged, this, [this] { Search(); });
    connect(foundList_, &QListWidget::itemDoubleClicked, this,
            [this] { Run([this] { AddChosenPaint(); }); });
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
    paintsFrame_->setTitle(shown.TemplateIndex < 0
                               ? tr("No template chosen")
                               : tr("%1 [%2 paints]").arg(Text(form_.Chosen())).arg(count));
    MirrorPaints(*paintList_, ItemsOf(shown.Paints), std::min(paintList_->currentRow(), count - 1));
    swatches_->SetLayout(LayOutSwatches(swatches_->width(), swatches_->height(), count,
                                        Context().Place.Screen.Screen().Twips.X));
}

void TemplateShopDialog::MirrorCatalogue() {
    std::vector<PaintItem> items;
    for (const int row : form_.Controls().Found) {
        const PaintColor& paint = Context().Place.State->MasterColors[row];
        items.push_back({ColorOf(paint), kNoColor, Text(PaintLabel(paint))});
    }
    MirrorPaints(*foundList_, items,
                 std::min(foundList_->currentRow(), static_cast<int>(items.size()) - 1));
    nearButton_->setText(search_.Near ? tr("&Nearest to This Color (Click to End)")
                                      : tr("&Nearest to a Color…"));
    nearButton_->setIcon(search_.Near ? SwatchIcon(*search_.Near) : QIcon());
}

void TemplateShopDialog::Search() {
    search_.Text = searchText_->text().toStdString();
    search_.Set = setBox_->currentData().toString().toStdString();
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
                                                      tr("Palettes (*.gpl *.csv)"));
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

void TemplateShopDialog::AddChosenPaint() {
    const int row = foundList_->currentRow();
    if (row < 0) {
        return;
    }
    if (form_.AddPaint_Click(At(form_.Controls().Found, row))) {
        MirrorTemplate();
    }
    paintList_->setCurrentRow(paintList_->count() - 1);
}

int TemplateShopDialog::ChosenPaint() const {
    return paintList_->currentRow() + 1;
}

void TemplateShopDialog::MovePaint(int by) {
    const int to = ChosenPaint() + by;
    if (to < 1 || to > paintList_->count()) {
        return;
    }
    form_.MovePaint_Click(ChosenPaint(), to);
    paintList_->setCurrentRow(to - 1);
}

}  // namespace vendrel
