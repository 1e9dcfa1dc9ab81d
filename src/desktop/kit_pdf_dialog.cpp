#include "desktop/kit_pdf_dialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/named.h"
#include "export/qt_image.h"

namespace vendrel {

KitPdfDialog::KitPdfDialog(const ViewContext& context, QWidget* parent)
    : FormDialog(context, parent),
      form_(context.Place, context.Form.Exports(), context.Form.Everything().Plan()),
      plan_(new PlanPanel(*this)) {
    setWindowTitle(tr("Save Kit as PDF"));
    connect(plan_, &PlanPanel::Chosen, this,
            [this](const PlanSettings& wanted) { Run([&] { form_.Plan().Choose(wanted); }); });
    connect(plan_, &PlanPanel::PageWanted, this, [this](int longest) {
        Run([&] { plan_->ShowPage(ToImage(form_.Plan().Preview(longest))); });
    });
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
    std::vector<QWidget*> order = plan_->Controls();
    order.insert(order.end(), {save, cancel});
    SetTabOrder(order);
}

void KitPdfDialog::Prepare() {
    form_.Form_Load();
    Mirror();
    SettleSize();
}

}  // namespace vendrel
