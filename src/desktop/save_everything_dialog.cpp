#include "desktop/save_everything_dialog.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/named.h"
#include "desktop/text.h"
#include "export/qt_image.h"

namespace vendrel {
namespace {

// In a caption a lone & would underline the letter behind it.
QString InCaption(const std::string& file) {
    return Text(file).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

}  // namespace

SaveEverythingDialog::SaveEverythingDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Form.Everything()),
      name_(Named<QLineEdit>("KitName", tr("Kit's name"))),
      always_(new ValueLabel("AlwaysSaved", tr("Saved in any case"))),
      grid_(Named<QCheckBox>("SaveGrid", tr("Stipples, to touch them up another day"))),
      pdf_(Named<QCheckBox>("SavePdfToo", tr("Kit as PDF, to print"))),
      svg_(Named<QCheckBox>("SaveSvgToo", tr("Plan as SVG, for drawing programs and cutters"))),
      page_(Named<QCheckBox>("SavePageToo", tr("Page to paint along with"))),
      list_(Named<QCheckBox>("SaveListToo", tr("List of the paints to buy"))),
      plan_(new PlanPanel(*this)),
      folders_(new ValueLabel("SaveFolders", tr("Folders"))) {
    setWindowTitle(tr("Save Everything"));
    Arrange();
    Connect();
    grid_->setFocus();
}

void SaveEverythingDialog::Arrange() {
    auto* always = new QGroupBox(tr("Always"));
    (new QVBoxLayout(always))->addWidget(always_, 0, Qt::AlignTop);
    auto* chosen = new QGroupBox(tr("If you like"));
    auto* choices = new QVBoxLayout(chosen);
    choices->addWidget(grid_);
    choices->addWidget(pdf_);
    choices->addWidget(page_);
    choices->addWidget(svg_);
    choices->addWidget(list_);
    QPushButton* save =
        MakeButton("SaveEverything", tr("&Save"), [this] { form_.SaveButton_Click(); });
    save->setDefault(true);
    QPushButton* cancel =
        MakeButton("CancelEverything", tr("Cancel"), [this] { form_.CancelButton_Click(); });
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(save);
    buttons->addWidget(cancel);
    name_->setToolTip(
        tr("Names the files in place of the photo's name: two kits of one photo do "
           "not overwrite each other."));
    auto* name = new QHBoxLayout;
    name->addWidget(LabelFor(*name_, tr("Kit's n&ame")));
    name->addWidget(name_, 1);
    // Side by side: under one another they would leave small screens.
    auto* parts = new QHBoxLayout;
    parts->addWidget(always);
    parts->addWidget(chosen);
    auto* tab = new QWidget;
    auto* files = new QVBoxLayout(tab);
    files->addLayout(name);
    files->addLayout(parts);
    files->addWidget(folders_);
    files->addStretch(1);
    plan_->PutFirst(tab, tr("&Files"));
    auto* all = new QVBoxLayout(this);
    all->addWidget(plan_);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
    std::vector<QWidget*> order = plan_->Controls();
    order.insert(order.begin(), {name_, grid_, pdf_, page_, svg_, list_});
    order.insert(order.end(), {save, cancel});
    SetTabOrder(order);
}

void SaveEverythingDialog::Connect() {
    connect(name_, &QLineEdit::textEdited, this, [this](const QString& name) {
        Run([this, name] { form_.Name_Change(name.toStdString()); });
    });
    connect(grid_, &QCheckBox::clicked, this,
            [this](bool on) { Run([this, on] { form_.Grid_Click(on); }); });
    connect(pdf_, &QCheckBox::clicked, this,
            [this](bool on) { Run([this, on] { form_.Pdf_Click(on); }); });
    connect(svg_, &QCheckBox::clicked, this,
            [this](bool on) { Run([this, on] { form_.Svg_Click(on); }); });
    connect(page_, &QCheckBox::clicked, this,
            [this](bool on) { Run([this, on] { form_.Page_Click(on); }); });
    connect(list_, &QCheckBox::clicked, this,
            [this](bool on) { Run([this, on] { form_.List_Click(on); }); });
    for (const QCheckBox* output : {pdf_, page_, svg_, list_}) {
        connect(output, &QCheckBox::clicked, plan_, &PlanPanel::AskForPage);
    }
    connect(plan_, &PlanPanel::Chosen, this,
            [this](const PlanSettings& wanted) { Run([&] { form_.Plan().Choose(wanted); }); });
    connect(plan_, &PlanPanel::PageWanted, this, [this](int longest) {
        if (form_.HasPlan()) {
            Run([&] { plan_->ShowPage(ToImage(form_.Plan().Preview(longest))); });
        }
    });
}

void SaveEverythingDialog::Prepare() {
    form_.Form_Load();
    name_->setText(Text(form_.Name()));
    name_->setPlaceholderText(Text(form_.Controls().PhotoName));
    Mirror();
    SettleSize();
}

void SaveEverythingDialog::Mirror() {
    const SaveEverythingControls& shown = form_.Controls();
    QStringList always;
    for (const std::string& file : shown.Always) {
        always += Text(file);
    }
    always_->Show(always.join(QLatin1Char('\n')));
    grid_->setText(
        tr("S&tipples, to touch them up another day:\n%1").arg(InCaption(shown.GridFile)));
    pdf_->setText(tr("&Kit as PDF, to print:\n%1").arg(InCaption(shown.PdfFile)));
    page_->setText(tr("Page to paint along wit&h:\n%1").arg(InCaption(shown.PageFile)));
    svg_->setText(
        tr("Plan as S&VG, for drawing programs and cutters:\n%1").arg(InCaption(shown.SvgFile)));
    folders_->Show(tr("In %1").arg(Text(shown.Folders)));
    grid_->setChecked(form_.Grid());
    pdf_->setChecked(form_.Pdf());
    svg_->setChecked(form_.Svg());
    list_->setText(
        tr("List of the paints to b&uy, for spreadsheets:\n%1").arg(InCaption(shown.ListFile)));
    list_->setChecked(form_.List());
    page_->setChecked(form_.Page());
    plan_->SetPlanEnabled(form_.HasPlan());
    plan_->Mirror(form_.Plan());
}

}  // namespace vendrel
