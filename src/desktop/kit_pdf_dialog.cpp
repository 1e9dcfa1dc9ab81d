#include "desktop/kit_pdf_dialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/named.h"

namespace vendrel {

KitPdfDialog::KitPdfDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place, context.Form.Exports()),
      plan_(new PlanPanel) {
    setWindowTitle(tr("Save Kit as PDF"));
    connect(plan_, &PlanPanel::PaperChosen, this,
            [this](Paper paper) { Run([&] { form_.Plan().Paper_Click(paper); }); });
    connect(plan_, &PlanPanel::CanvasChosen, this,
            [this](double width) { Run([&] { form_.Plan().Canvas_Change(width); }); });
    QPushButton* save = MakeButton("SavePdf", tr("Save PDF"), [this] { form_.SaveButton_Click(); });
    save->setDefault(true);
    QPushButton* cancel =
        MakeButton("CancelPdf", tr("Cancel"), [this] { form_.CancelButton_Click(); });
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(save);
    buttons->addWidget(cancel);
    auto* all = new QVBoxLayout(this);
    all->addWidget(plan_);
    all->addLayout(buttons);
    all->setSizeConstraint(QLayout::SetFixedSize);
    const auto choices = plan_->Controls();
    SetTabOrder({choices[0], choices[1], choices[2], choices[3], save, cancel});
}

void KitPdfDialog::Prepare() {
    form_.Form_Load();
    Mirror();
}

}  // namespace vendrel
