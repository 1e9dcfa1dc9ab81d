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
      always_(Named<QLabel>("AlwaysSaved", tr("Saved in any case"))),
      grid_(Named<QCheckBox>("SaveGrid", tr("Stipples, to touch them up another day"))),
      pdf_(Named<QCheckBox>("SavePdfToo", tr("Kit as PDF, to print"))),
      paper_(Named<QComboBox>("EverythingPaper", tr("Paper of the PDF"))),
      svg_(Named<QCheckBox>("SaveSvgToo", tr("Plan as SVG, for drawing programs and cutters"))),
      page_(Named<QCheckBox>("SavePageToo", tr("Page to paint along with"))),
      folders_(Named<QLabel>("SaveFolders", tr("Folders"))) {
    setWindowTitle(tr("Save Everything"));
    for (QLabel* label : {always_, folders_}) {
        label->setTextFormat(Qt::PlainText);
    }
    paper_->addItems({tr("A4"), tr("Letter"), tr("A3")});
    connect(grid_, &QCheckBox::clicked, this,
            [this](bool on) { Run([this, on] { form_.Grid_Click(on); }); });
    connect(pdf_, &QCheckBox::clicked, this,
            [this](bool on) { Run([this, on] { form_.Pdf_Click(on); }); });
    connect(svg_, &QCheckBox::clicked, this,
            [this](bool on) { Run([this, on] { form_.Svg_Click(on); }); });
    connect(page_, &QCheckBox::clicked, this,
            [this](bool on) { Run([this, on] { form_.Page_Click(on); }); });
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
    choices->addWidget(page_);
    choices->addWidget(svg_);
    QPushButton* save =
        MakeButton("SaveEverything", tr("&Save"), [this] { form_.SaveButton_Click(); });
    save->setDefault(true);
    QPushButton* cancel =
        MakeButton("CancelEverything", tr("Cancel"), [this] { form_.CancelButton_Click(); });
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(save);
    buttons->addWidget(cancel);
    auto* all = new QVBoxLayout(this);
    all->addWidget(always);
    all->addWidget(chosen);
    all->addWidget(folders_);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
    SetTabOrder({grid_, pdf_, paper_, page_, svg_, save, cancel});
    grid_->setFocus();
}

void SaveEverythingDialog::Load() {
    form_.Form_Load();
    const SaveEverythingControls& shown = form_.Controls();
    QStringList always;
    for (const std::string& file : shown.Always) {
        always += Text(file);
    }
    always_->setText(always.join(QLatin1Char('\n')));
    grid_->setText(tr("S&tipples, to touch them up another day: %1").arg(Text(shown.GridFile)));
    pdf_->setText(tr("Kit as &PDF, to print: %1").arg(Text(shown.PdfFile)));
    page_->setText(
        tr("Page to pa&int along with, on a phone or tablet: %1").arg(Text(shown.PageFile)));
    svg_->setText(
        tr("Plan as S&VG, for drawing programs and cutters: %1").arg(Text(shown.SvgFile)));
    folders_->setText(tr("In %1").arg(Text(shown.Folders)));
}

void SaveEverythingDialog::Mirror() {
    grid_->setChecked(form_.Grid());
    pdf_->setChecked(form_.Pdf());
    svg_->setChecked(form_.Svg());
    page_->setChecked(form_.Page());
    paper_->setCurrentIndex(static_cast<int>(form_.Sheet()));
    paper_->setEnabled(form_.Pdf());
}

}  // namespace vendrel
