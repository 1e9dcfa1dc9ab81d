#include "desktop/save_everything_dialog.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/named.h"
#include "desktop/text.h"

namespace vendrel {

SaveEverythingDialog::SaveEverythingDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Form.Everything()),
      name_(Named<QLineEdit>("KitName", tr("Kit's name"))),
      always_(Named<QLabel>("AlwaysSaved", tr("Saved in any case"))),
      grid_(Named<QCheckBox>("SaveGrid", tr("Stipples, to touch them up another day"))),
      pdf_(Named<QCheckBox>("SavePdfToo", tr("Kit as PDF, to print"))),
      paper_(Named<QComboBox>("EverythingPaper", tr("Paper of the PDF"))),
      folders_(Named<QLabel>("SaveFolders", tr("Folders"))) {
    setWindowTitle(tr("Save Everything"));
    for (QLabel* label : {always_, folders_}) {
        label->setTextFormat(Qt::PlainText);
    }
    paper_->addItems({tr("A4"), tr("Letter"), tr("A3")});
    name_->setToolTip(
        tr("Names the files in place of the photo's name: two kits of one photo do "
           "not overwrite each other."));
    connect(name_, &QLineEdit::textEdited, this, [this](const QString& name) {
        Run([this, name] { form_.Name_Change(name.toStdString()); });
    });
    connect(grid_, &QCheckBox::clicked, this,
            [this](bool on) { Run([this, on] { form_.Grid_Click(on); }); });
    connect(pdf_, &QCheckBox::clicked, this,
            [this](bool on) { Run([this, on] { form_.Pdf_Click(on); }); });
    connect(paper_, &QComboBox::activated, this, [this](int index) {
        Run([this, index] { form_.Paper_Click(static_cast<Paper>(index)); });
    });
    auto* pdf = new QHBoxLayout;
    pdf->addWidget(pdf_);
    pdf->addWidget(LabelFor(*paper_, tr("&on")));
    pdf->addWidget(paper_);
    pdf->addStretch(1);
    auto* always = new QGroupBox(tr("Always"));
    (new QVBoxLayout(always))->addWidget(always_);
    auto* chosen = new QGroupBox(tr("If you like"));
    auto* choices = new QVBoxLayout(chosen);
    choices->addWidget(grid_);
    choices->addLayout(pdf);
    QPushButton* save =
        MakeButton("SaveEverything", tr("&Save"), [this] { form_.SaveButton_Click(); });
    save->setDefault(true);
    QPushButton* cancel =
        MakeButton("CancelEverything", tr("Cancel"), [this] { form_.CancelButton_Click(); });
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(save);
    buttons->addWidget(cancel);
    auto* name = new QHBoxLayout;
    name->addWidget(LabelFor(*name_, tr("Kit's &name")));
    name->addWidget(name_, 1);
    auto* all = new QVBoxLayout(this);
    all->addLayout(name);
    all->addWidget(always);
    all->addWidget(chosen);
    all->addWidget(folders_);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
    SetTabOrder({name_, grid_, pdf_, paper_, save, cancel});
    grid_->setFocus();
}

void SaveEverythingDialog::Load() {
    form_.Form_Load();
    name_->setText(Text(form_.Name()));
    name_->setPlaceholderText(Text(form_.Controls().PhotoName));
}

void SaveEverythingDialog::ListFiles() {
    const SaveEverythingControls& shown = form_.Controls();
    QStringList always;
    for (const std::string& file : shown.Always) {
        always += Text(file);
    }
    always_->setText(always.join(QLatin1Char('\n')));
    grid_->setText(tr("S&tipples, to touch them up another day: %1").arg(Text(shown.GridFile)));
    pdf_->setText(tr("Kit as &PDF, to print: %1").arg(Text(shown.PdfFile)));
    folders_->setText(tr("In %1").arg(Text(shown.Folders)));
}

void SaveEverythingDialog::Mirror() {
    ListFiles();
    grid_->setChecked(form_.Grid());
    pdf_->setChecked(form_.Pdf());
    paper_->setCurrentIndex(static_cast<int>(form_.Sheet()));
    paper_->setEnabled(form_.Pdf());
}

}  // namespace vendrel
