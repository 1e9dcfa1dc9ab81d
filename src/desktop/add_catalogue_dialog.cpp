#include "desktop/add_catalogue_dialog.h"

#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/list_box.h"
#include "desktop/named.h"
#include "desktop/paint_items.h"
#include "desktop/text.h"
#include "output/chart_contents.h"

namespace vendrel {
namespace {

using Where = std::optional<std::size_t>;

constexpr int kFewestLetters = 16;  // of a column's name

Where ColumnIn(const QComboBox& box) {
    return box.currentIndex() > 0 ? Where(static_cast<std::size_t>(box.currentIndex()) - 1)
                                  : std::nullopt;
}

void ShowColumn(QComboBox& box, const QStringList& columns, const Where& chosen) {
    const QSignalBlocker quiet(&box);
    box.clear();
    box.addItem(QObject::tr("none"));
    box.addItems(columns);
    box.setCurrentIndex(chosen ? static_cast<int>(*chosen) + 1 : 0);
}

// What holds the colors is chosen together with how they are written.
std::array<Where, 3> ColumnsIn(const std::array<QComboBox*, 3>& boxes) {
    return {ColumnIn(*boxes[0]), ColumnIn(*boxes[1]), ColumnIn(*boxes[2])};
}

}  // namespace

AddCatalogueDialog::AddCatalogueDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place),
      file_(MakeButton("CatalogueFile", tr("Choose &File…"), [this] { ChooseFile(); })),
      name_(Named<QLineEdit>("CatalogueName", tr("Name of the catalogue"))),
      heading_(Named<QCheckBox>("CatalogueHeading", tr("The first row names the columns"))),
      names_(Named<QComboBox>("NameColumn", tr("Column of the names"))),
      codes_(Named<QComboBox>("CodeColumn", tr("Column of the codes"))),
      sets_(Named<QComboBox>("SetColumn", tr("Column of the sets"))),
      set_(Named<QLineEdit>("CatalogueSet", tr("Set of paints whose row names none"))),
      byHex_(Named<QRadioButton>("ByHex", tr("Colors as in #C08060"))),
      byRgb_(Named<QRadioButton>("ByRgb", tr("Colors as red, green and blue"))),
      byLab_(Named<QRadioButton>("ByLab", tr("Colors as L*a*b*"))),
      hex_(Named<QComboBox>("HexColumn", tr("Column of colors as in #C08060"))),
      questions_(new QGroupBox(tr("What the columns hold"))),
      colors_(new QGroupBox(tr("Colors"))),
      paints_(Named<QListWidget>("CataloguePaints", tr("Paints that can be read"))),
      faults_(Named<QListWidget>("CatalogueFaults", tr("Lines that are left out"))),
      summary_(new ValueLabel("CatalogueSummary", tr("The table"))),
      accept_(MakeButton("AcceptCatalogue", tr("Add Catalogue"),
                         [this] { form_.AcceptButton_Click(); })) {
    setWindowTitle(tr("Add Catalogue"));
    auto* asked = new QVBoxLayout;
    asked->addWidget(MakeQuestions());
    asked->addWidget(MakeColors());
    asked->addStretch(1);
    auto* halves = new QHBoxLayout;
    halves->addLayout(asked, 4);
    halves->addWidget(MakePaints(), 5);
    auto* all = new QVBoxLayout(this);
    all->addLayout(halves, 1);
    all->addLayout(MakeEnd());
    resize(980, 600);
}

QWidget* AddCatalogueDialog::MakeQuestions() {
    heading_->setText(tr("The first &row names the columns"));
    auto* rows = new QFormLayout(questions_);
    rows->addRow(file_);
    rows->addRow(heading_);
    rows->addRow(tr("&Names"), names_);
    rows->addRow(tr("Cod&es"), codes_);
    rows->addRow(tr("&Sets"), sets_);
    rows->addRow(tr("Set of &others"), set_);
    rows->addRow(tr("&Call it"), name_);
    for (QComboBox* box : {names_, codes_, sets_}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(kFewestLetters);
        connect(box, &QComboBox::activated, this, &AddCatalogueDialog::Change);
    }
    connect(heading_, &QCheckBox::clicked, this, &AddCatalogueDialog::Change);
    connect(set_, &QLineEdit::textEdited, this,
            [this](const QString& set) { Run([&] { form_.Set_Change(set.toStdString()); }); });
    connect(name_, &QLineEdit::textEdited, this,
            [this](const QString& name) { form_.Name_Change(name.toStdString()); });
    return questions_;
}

QWidget* AddCatalogueDialog::MakeThree(std::array<QComboBox*, 3>& boxes, const char* const* names,
                                       const QStringList& spoken) {
    auto* part = new QWidget;
    auto* row = new QHBoxLayout(part);
    row->setContentsMargins(20, 0, 0, 0);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes.at(i) = Named<QComboBox>(names[i], spoken.at(static_cast<qsizetype>(i)));
        boxes.at(i)->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        boxes.at(i)->setMinimumContentsLength(kFewestLetters / 3);
        row->addWidget(boxes.at(i), 1);
    }
    return part;
}

QWidget* AddCatalogueDialog::MakeColors() {
    constexpr const char* kRgb[] = {"RedColumn", "GreenColumn", "BlueColumn"};
    constexpr const char* kLab[] = {"LColumn", "AColumn", "BColumn"};
    byHex_->setText(tr("as in #C08060 (&hex)"));
    byRgb_->setText(tr("red, &green and blue, 0 to 255"));
    byLab_->setText(tr("&L*, a* and b* of daylight"));
    auto* rows = new QVBoxLayout(colors_);
    auto* hex = new QWidget;
    auto* row = new QHBoxLayout(hex);
    row->setContentsMargins(20, 0, 0, 0);
    row->addWidget(hex_);
    QWidget* rgb =
        MakeThree(rgb_, kRgb, {tr("Column of red"), tr("Column of green"), tr("Column of blue")});
    QWidget* lab =
        MakeThree(lab_, kLab, {tr("Column of L*"), tr("Column of a*"), tr("Column of b*")});
    const std::pair<QRadioButton*, QWidget*> kinds[] = {
        {byHex_, hex}, {byRgb_, rgb}, {byLab_, lab}};
    for (const auto& [kind, columns] : kinds) {
        rows->addWidget(kind);
        rows->addWidget(columns);
        connect(kind, &QRadioButton::clicked, this, &AddCatalogueDialog::Change);
        for (QComboBox* box : columns->findChildren<QComboBox*>()) {
            connect(box, &QComboBox::activated, this, [this, kind = kind] {
                kind->setChecked(true);
                Change();
            });
        }
    }
    byHex_->setChecked(true);
    return colors_;
}

QWidget* AddCatalogueDialog::MakePaints() {
    auto* frame = new QGroupBox(tr("What comes of it"));
    auto* column = new QVBoxLayout(frame);
    column->addWidget(LabelFor(*paints_, tr("&Paints")));
    column->addWidget(paints_, 3);
    column->addWidget(LabelFor(*faults_, tr("Left ou&t")));
    column->addWidget(faults_, 1);
    paints_->setUniformItemSizes(true);
    faults_->setWordWrap(true);
    return frame;
}

QLayout* AddCatalogueDialog::MakeEnd() {
    auto* row = new QHBoxLayout;
    row->addWidget(summary_, 1);
    accept_->setDefault(true);
    row->addWidget(accept_);
    row->addWidget(
        MakeButton("CancelCatalogue", tr("Cancel"), [this] { form_.CancelButton_Click(); }));
    return row;
}

// What is added comes first, and the questions then.
void AddCatalogueDialog::Load() {
    QTimer::singleShot(0, file_, &QPushButton::click);
}

void AddCatalogueDialog::ChooseFile() {
    const QString file = QFileDialog::getOpenFileName(this, tr("Add Which Table of Paints?"), {},
                                                      tr("Tables (*.csv *.tsv *.txt);;All (*)"));
    if (file.isEmpty()) {
        return;
    }
    form_.File_Chosen(std::filesystem::path(file.toStdString()));
    const CatalogueColumns& guessed = form_.Columns();
    byHex_->setChecked(guessed.Hex || !guessed.HasColor());
    byRgb_->setChecked(!guessed.Hex && guessed.Rgb[0]);
    byLab_->setChecked(!guessed.Hex && guessed.Lab[0]);
    names_->setFocus();
}

void AddCatalogueDialog::Change() {
    CatalogueColumns columns{.Heading = heading_->isChecked(),
                             .Set = ColumnIn(*sets_),
                             .Name = ColumnIn(*names_),
                             .Code = ColumnIn(*codes_)};
    if (byHex_->isChecked()) {
        columns.Hex = ColumnIn(*hex_);
    } else if (byRgb_->isChecked()) {
        columns.Rgb = ColumnsIn(rgb_);
    } else {
        columns.Lab = ColumnsIn(lab_);
    }
    Run([&] { form_.Columns_Change(columns); });
}

void AddCatalogueDialog::Mirror() {
    questions_->setTitle(form_.HasTable() ? Text(form_.File().filename().string())
                                          : tr("What the columns hold"));
    const QSignalBlocker quiet[] = {QSignalBlocker(name_), QSignalBlocker(set_)};
    for (QWidget* asked :
         std::initializer_list<QWidget*>{heading_, names_, codes_, sets_, set_, name_, colors_}) {
        asked->setEnabled(form_.HasTable());
    }
    heading_->setChecked(form_.Columns().Heading);
    if (name_->text() != Text(form_.Name())) {
        name_->setText(Text(form_.Name()));
    }
    if (set_->text() != Text(form_.Set())) {
        set_->setText(Text(form_.Set()));
    }
    MirrorColumns();
    std::vector<PaintItem> items;
    for (const PaintColor& paint : form_.Paints()) {
        items.push_back({ColorOf(paint), kNoColor, Text(PaintLabel(paint))});
    }
    MirrorPaints(*paints_, items, -1);
    MirrorList(*faults_, form_.Faults(), -1);
    summary_->Show(Text(form_.Summary()));
    accept_->setEnabled(!form_.Paints().Empty());
}

void AddCatalogueDialog::MirrorColumns() {
    QStringList names;
    for (const std::string& name : form_.ColumnNames()) {
        names << Text(name);
    }
    const CatalogueColumns& columns = form_.Columns();
    ShowColumn(*names_, names, columns.Name);
    ShowColumn(*codes_, names, columns.Code);
    ShowColumn(*sets_, names, columns.Set);
    // Of the other ways the choice stays for whoever comes back to them.
    ShowColumn(*hex_, names, byHex_->isChecked() ? columns.Hex : ColumnIn(*hex_));
    const std::array<Where, 3> rgb = byRgb_->isChecked() ? columns.Rgb : ColumnsIn(rgb_);
    const std::array<Where, 3> lab = byLab_->isChecked() ? columns.Lab : ColumnsIn(lab_);
    for (std::size_t i = 0; i < rgb.size(); ++i) {
        ShowColumn(*rgb_.at(i), names, rgb.at(i));
        ShowColumn(*lab_.at(i), names, lab.at(i));
    }
}

}  // namespace vendrel
